// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/recording_dialogs.h"

#include <ostream>

namespace velquon::test {

void RecordingDialogs::alert(const QString& title, const QString& message) {
  alerts.push_back({title, message});
  if (on_alert) {
    on_alert();
  }
}

void RecordingDialogs::alertAboutFile(const QString& title, const QString& message,
                                      const QString& path) {
  files_told.push_back(path);
  alert(title, message);
}

QString RecordingDialogs::fileToOpen(const QString& title, const QString& filter) {
  questions.push_back({title, filter, {}, {}});
  return answer;
}

QStringList RecordingDialogs::filesToOpen(const QString& title, const QString& filter) {
  questions.push_back({title, filter, {}, {}});
  return file_answers;
}

SaveAnswer RecordingDialogs::askToSave(const QString& title, const QString& message) {
  unsaved_questions.push_back({title, message});
  return save_answer;
}

QString RecordingDialogs::fileToSave(const QString& title, const QString& suggestion,
                                     const QString& filter, const QString& suffix) {
  questions.push_back({title, filter, suggestion, suffix});
  return answer;
}

void PrintTo(const RecordingDialogs::Alert& alert, std::ostream* out) {
  *out << '"' << alert.title.toStdString() << "\" / \"" << alert.message.toStdString() << '"';
}

void PrintTo(const RecordingDialogs::Question& question, std::ostream* out) {
  *out << '"' << question.title.toStdString() << "\", " << question.filter.toStdString() << ", \""
       << question.suggestion.toStdString() << "\", ." << question.suffix.toStdString();
}

}  // namespace velquon::test
