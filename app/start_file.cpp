// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start_file.h"

#include <QCoreApplication>
#include <cstdio>

#include "app/command_line.h"
#include "app/event_documents.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

void say_not_opened(const QString& path, const QString& reason) {
  std::fprintf(stderr, "velquon: cannot open %s: %s\n", qPrintable(as_one_line(path)),
               qPrintable(reason));
}

}  // namespace

void open_start_file(EventDocuments& documents, UserDialogs& dialogs, const QString& path) {
  if (const QString problem = EventDocuments::problemOfLoading(path); !problem.isEmpty()) {
    say_not_opened(path, problem);
    dialogs.alertAboutFile(
        EventDocuments::tr("Not opened"),
        EventDocuments::tr("Velquon can't open the file it was started with: %1.").arg(problem),
        path);
  } else if (!documents.application_openFile(path)) {
    say_not_opened(path, EventDocuments::tr("It is no event file"));
  }
}

}  // namespace velquon
