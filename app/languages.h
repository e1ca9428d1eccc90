// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTranslator>

namespace velquon {

/// Codes (ISO 639-1) of the languages in which the program shows its texts, English first.
[[nodiscard]] const QStringList& language_codes();

/// The language to use for someone who prefers some languages.
/// \param preferred names such as "de-AT" or "fr", the most wanted first
/// \return code of the first that there is; English when there is none
[[nodiscard]] QString language_for(const QStringList& preferred);

/// A language in which texts are shown while this object lives. It needs the application object and
/// is made before windows, which keep the texts that they were made with.
class ShownLanguage {
 public:
  /// \param code one of language_codes(), or empty for the desktop's language
  explicit ShownLanguage(const QString& code);
  ~ShownLanguage();
  ShownLanguage(const ShownLanguage&) = delete;
  ShownLanguage& operator=(const ShownLanguage&) = delete;
  ShownLanguage(ShownLanguage&&) = delete;
  ShownLanguage& operator=(ShownLanguage&&) = delete;

 private:
  QByteArray languages_before_;  ///< in which the C library tells reasons
  QTranslator of_qt_;
  QTranslator own_;
};

}  // namespace velquon
