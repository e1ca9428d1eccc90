// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "widgets/user_dialogs.h"

namespace velquon::test {

/// Answers in the user's place and remembers what he was asked and told.
class RecordingDialogs : public UserDialogs {
 public:
  struct Alert {
    QString title;
    QString message;

    friend bool operator==(const Alert&, const Alert&) = default;
  };

  /// A question for a file; a file to open has neither suggestion nor suffix.
  struct Question {
    QString title;
    QString filter;
    QString suggestion;
    QString suffix;

    friend bool operator==(const Question&, const Question&) = default;
  };

  void alert(const QString& title, const QString& message) override;
  void alertAboutFile(const QString& title, const QString& message, const QString& path) override;
  QString fileToOpen(const QString& title, const QString& filter) override;
  QStringList filesToOpen(const QString& title, const QString& filter) override;
  SaveAnswer askToSave(const QString& title, const QString& message) override;
  QString fileToSave(const QString& title, const QString& suggestion, const QString& filter,
                     const QString& suffix) override;

  QString answer;            ///< path that every question gets; empty is giving up
  QStringList file_answers;  ///< paths that a question for several files gets
  SaveAnswer save_answer = SaveAnswer::cancel;
  std::vector<Alert> unsaved_questions;  ///< whether to save, in the order asked
  std::vector<Alert> alerts;             ///< in the order told
  std::vector<QString> files_told;       ///< paths that alerts were about
  std::vector<Question> questions;       ///< in the order asked
  std::function<void()> on_alert;        ///< called while an alert is up
};

/// How a failing test shows these.
void PrintTo(const RecordingDialogs::Alert& alert, std::ostream* out);
void PrintTo(const RecordingDialogs::Question& question, std::ostream* out);

}  // namespace velquon::test
