// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The desktop program.

#include <QApplication>
#include <csignal>
#include <cstdio>
#include <string>
#include <vector>

#include "app/application.h"
#include "app/command_line.h"
#include "app/desktop.h"
#include "app/desktop_dialogs.h"
#include "app/event_documents.h"
#include "app/languages.h"
#include "app/pictures.h"
#include "app/start_file.h"
#include "app/worksheet_request.h"
#include "app/x_display.h"
#include "files/standard_streams.h"

namespace {

/// The arguments of a program as C has them. They must outlive the application object.
class ArgumentVector {
 public:
  explicit ArgumentVector(const QStringList& words) : count_(static_cast<int>(words.size())) {
    for (const QString& word : words) {
      words_.push_back(word.toLocal8Bit());
    }
    for (QByteArray& word : words_) {
      pointers_.push_back(word.data());
    }
    pointers_.push_back(nullptr);
  }

  [[nodiscard]] int& count() { return count_; }
  [[nodiscard]] char** pointers() { return pointers_.data(); }

 private:
  std::vector<QByteArray> words_;
  std::vector<char*> pointers_;
  int count_;
};

int end_with(const QString& text, int status) {
  std::FILE* const out = status == 0 ? stdout : stderr;
  const bool written = std::fputs(qPrintable(text), out) >= 0 && std::fflush(out) == 0;
  return written ? status : 1;
}

int end_without(const QString& missing) {
  return end_with(QStringLiteral("velquon: %1\n").arg(velquon::as_one_line(missing)), 1);
}

}  // namespace

int main(int argc, char** argv) {
  velquon::keep_places_of_closed_streams();
  // A file that grows beyond a limit is an error to be told, not the program's end, and so is an
  // output that nobody reads any more.
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  QStringList arguments;
  for (int i = 0; i < argc; ++i) {
    arguments << QString::fromLocal8Bit(argv[i]);
  }
  const velquon::ParsedCommandLine parsed = velquon::parse_command_line(arguments);
  if (!parsed.options) {
    return end_with(parsed.message, parsed.status);
  }
  if (parsed.options->worksheets) {
    return velquon::leave_worksheets(*parsed.options->worksheets, parsed.options->language);
  }
  if (!parsed.options->display.isEmpty()) {
    // For what of the program has its display not from Qt.
    qputenv("DISPLAY", parsed.options->display.toLocal8Bit());
  }
  if (const std::string missing = velquon::missing_for_windows(); !missing.empty()) {
    return end_without(QString::fromStdString(missing));
  }
  velquon::prepare_desktop();
  ArgumentVector qt_arguments(parsed.options->qt_arguments);
  const QApplication qt_application(qt_arguments.count(), qt_arguments.pointers());
  if (const QString platform = QGuiApplication::platformName(); platform != QStringLiteral("xcb")) {
    return end_with(
        QStringLiteral("velquon: the windows need Qt's platform 'xcb', and this is '%1'\n")
            .arg(platform),
        1);
  }
  velquon::finish_desktop();
  const velquon::ShownLanguage language(parsed.options->language);
  velquon::DesktopDialogs dialogs;
  velquon::Application application(parsed.options->seed, dialogs);
  application.showWindows();
  if (!application.viewsCanDraw()) {
    return end_without(
        QStringLiteral("the OpenGL driver gives the views no context of version 2.1 to draw with"));
  }
  if (!parsed.options->pictures.isEmpty()) {
    return velquon::save_pictures(application, parsed.options->pictures);
  }
  if (!parsed.options->file.isEmpty()) {
    velquon::open_start_file(application.documents(), dialogs, parsed.options->file);
  }
  return QApplication::exec();
}
