// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QTranslator>
#include <memory>

#include "app/languages.h"

namespace velquon::test {

/// A language made of English: each text that can be translated comes with other vowels, longer by
/// four tenths, between « and ». What is not looked up, or is in no file of translations, stays as
/// it is.
class PseudoLanguage : public QTranslator {
 public:
  /// \param file of translations, whose contexts and texts are the program's
  explicit PseudoLanguage(const QString& file);

  [[nodiscard]] QString translate(const char* context, const char* source, const char* comment,
                                  int count) const override;
  [[nodiscard]] bool isEmpty() const override { return false; }

 private:
  QHash<QString, QSet<QString>> texts_;  ///< of the program, by their contexts
};

/// A language in which windows and pages come while this object lives.
class TestedLanguage {
 public:
  /// \param code "pseudo" or one of the program's languages
  explicit TestedLanguage(const QString& code);

  [[nodiscard]] bool isPseudo() const { return pseudo_ != nullptr; }

 private:
  std::unique_ptr<PseudoLanguage> pseudo_;
  std::unique_ptr<ShownLanguage> shown_;
};

/// What of a text comes from no translation, for a person to read: words of three letters or more
/// outside of « and ». Units, key names and the program's own names and formulas are the same in all
/// languages.
QString untranslated_part(QString text);

}  // namespace velquon::test
