// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The desktop program with someone who answers from the command line in the user's place.
//   scripted_program save FILE                     saves an event of three points
//   scripted_program save-again-and-again FILE     saves two events in turn until it is killed
//   scripted_program print {chamber|projection} EVENT PDF

#include <QApplication>
#include <cstdio>

#include "app/application.h"
#include "app/chamber_controller.h"
#include "app/desktop.h"
#include "app/event_documents.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "projection/projection_view.h"
#include "projection/projector_window.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/printing.h"
#include "tests/support/documents/recording_dialogs.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

int save(Application& application, RecordingDialogs& dialogs, const QString& file) {
  application.controller().setChamberData(spiral(3));
  dialogs.answer = file;
  application.documents().save_event_file();
  return dialogs.alerts.empty() ? 0 : 1;
}

int save_again_and_again(Application& application, RecordingDialogs& dialogs, const QString& file) {
  dialogs.answer = file;
  for (int i = 0; dialogs.alerts.empty(); ++i) {
    application.controller().setChamberData(spiral(i % 2 == 0 ? 5000 : 3));
    application.documents().save_event_file();
    if (i == 0) {
      std::puts("saving");
      std::fflush(stdout);
    }
  }
  return 1;
}

int print(Application& application, const QString& view, const QString& event,
          const QString& page) {
  application.showWindows();
  const bool on_screen = wait_until_exposed(&application.chamberWindow()) &&
                         wait_until_exposed(&application.projectorWindow());
  if (!on_screen || !application.documents().readAndDisplayFile(event)) {
    return 1;
  }
  ChamberView& chamber = *application.chamberWindow().view();
  Printable* const printed = view == QStringLiteral("chamber")
                                 ? static_cast<Printable*>(&chamber)
                                 : application.projectorWindow().view();
  print_to_pdf(*printed, chamber, a4, page);
  std::printf("%g\n", chamber.devicePixelRatioF());
  return 0;
}

int run(const QStringList& arguments) {
  RecordingDialogs dialogs;
  Application application(1, dialogs);
  const QString& command = arguments.at(1);
  if (command == QStringLiteral("save")) {
    return save(application, dialogs, arguments.at(2));
  }
  if (command == QStringLiteral("save-again-and-again")) {
    return save_again_and_again(application, dialogs, arguments.at(2));
  }
  return print(application, arguments.at(2), arguments.at(3), arguments.at(4));
}

}  // namespace

}  // namespace velquon::test

int main(int argc, char** argv) {
  velquon::prepare_desktop();
  const QApplication qt_application(argc, argv);
  velquon::finish_desktop();
  return velquon::test::run(QApplication::arguments());
}
