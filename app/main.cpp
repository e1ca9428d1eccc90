// The desktop program.

#include <QApplication>
#include <csignal>
#include <cstdio>
#include <string>

#include "app/application.h"
#include "app/command_line.h"
#include "app/desktop.h"
#include "app/event_documents.h"
#include "app/pictures.h"
#include "app/user_dialogs.h"
#include "app/x_display.h"

namespace {

int end_with(const QString& text, int status) {
  std::FILE* const out = status == 0 ? stdout : stderr;
  const bool written = std::fputs(qPrintable(text), out) >= 0 && std::fflush(out) == 0;
  return written ? status : 1;
}

int end_for_want_of(const QString& missing) {
  return end_with(QStringLiteral("velquon: %1\n").arg(velquon::as_one_line(missing)), 1);
}

}  // namespace

int main(int argc, char** argv) {
  // A file that grows beyond a limit is an error to be told, not the program's end.
  std::signal(SIGXFSZ, SIG_IGN);
  QStringList arguments;
  for (int i = 0; i < argc; ++i) {
    arguments << QString::fromLocal8Bit(argv[i]);
  }
  const velquon::ParsedCommandLine parsed = velquon::parse_command_line(arguments);
  if (!parsed.options) {
    return end_with(parsed.message, parsed.status);
  }
  if (const std::string missing = velquon::missing_for_windows(); !missing.empty()) {
    return end_for_want_of(QString::fromStdString(missing));
  }
  velquon::prepare_desktop();
  const QApplication qt_application(argc, argv);
  velquon::start_glut();
  velquon::finish_desktop();
  velquon::DesktopDialogs dialogs;
  velquon::Application application(parsed.options->seed, dialogs);
  application.showWindows();
  if (!application.viewsCanDraw()) {
    return end_for_want_of(QStringLiteral(
        "the OpenGL driver gives the views no context of version 2.1 to draw with"));
  }
  if (!parsed.options->pictures.isEmpty()) {
    return velquon::save_pictures(application, parsed.options->pictures);
  }
  const QString& file = parsed.options->file;
  if (!file.isEmpty() && !application.documents().application_openFile(file)) {
    std::fprintf(stderr, "velquon: cannot open %s\n", qPrintable(velquon::as_one_line(file)));
  }
  return QApplication::exec();
}
