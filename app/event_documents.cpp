// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/event_documents.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

#include <sys/stat.h>

#include "app/chamber_controller.h"
#include "chamber/chamber_settings.h"
#include "printing/whole_file.h"
#include "widgets/model_text.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

// No layout has a field beyond that many bytes, and what follows the last field is ignored.
constexpr auto longest_event_file = qint64{256} * 1024;

/// The bytes of a regular file that a reader can want, or why it cannot be loaded.
struct Loaded {
  QByteArray bytes;
  QString problem;
};

/// Why something at a path is no regular file; empty when it is one.
QString problem_of_kind(const QString& path) {
  struct stat state {};
  if (::stat(QFile::encodeName(path).constData(), &state) != 0) {
    return QString::fromLocal8Bit(std::strerror(errno));
  }
  if (S_ISDIR(state.st_mode)) {
    return EventDocuments::tr("It is a folder");
  }
  return S_ISREG(state.st_mode) ? QString() : EventDocuments::tr("It is no regular file");
}

Loaded load(const QString& path) {
  Loaded loaded{{}, problem_of_kind(path)};
  if (!loaded.problem.isEmpty()) {
    return loaded;
  }
  QFile file(path);
  if (file.open(QIODevice::ReadOnly)) {
    loaded.bytes = file.read(longest_event_file);
  }
  if (file.error() != QFileDevice::NoError) {
    loaded.problem = file.errorString();
  }
  return loaded;
}

}  // namespace

EventDocuments::EventDocuments(ChamberController& controller, UserDialogs& dialogs)
    : controller_(controller), dialogs_(dialogs) {}

void EventDocuments::save_event_file() {
  const ShownEvent& shown = *controller_.model().shown();
  const auto bytes = encode_event(shown.points(), shown.values);
  const QString path = dialogs_.fileToSave(tr("Save Event"), event_name_text(shown.name),
                                           tr("Event files (*.cwd)"), QStringLiteral("cwd"));
  if (path.isEmpty()) {
    return;
  }
  if (const auto reason = write_whole_file(path, QByteArrayView(bytes))) {
    dialogs_.alert(tr("Not saved"), tr("Velquon can't write the file %1: %2.").arg(path, *reason));
    return;
  }
  controller_.renameWindows(QFileInfo(path).fileName());
}

void EventDocuments::open_event_file(bool importing) {
  const QString path = importing
                           ? dialogs_.fileToOpen(tr("Import PC Event"),
                                                 tr("PC event files (*.cwd *.CWD *.txt *.TXT)"))
                           : dialogs_.fileToOpen(tr("Open Event"), tr("Event files (*.cwd)"));
  if (!path.isEmpty()) {
    readAndDisplayFile(path);
  }
}

bool EventDocuments::application_openFile(const QString& path) {
  return readAndDisplayFile(path);
}

bool EventDocuments::readAndDisplayFile(const QString& path) {
  const auto [bytes, problem] = load(path);
  if (!problem.isEmpty()) {
    return false;
  }
  ChamberModel& model = controller_.model();
  const auto refusal =
      model.open(std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))),
                 QFileInfo(path).fileName().toStdString(), [this] { tellNegativeField(); });
  if (refusal) {
    tellRefusal(*refusal, path);
    return false;
  }
  controller_.settings().showValues(model.next());
  controller_.displayViews();
  controller_.reorderWindows();
  return true;
}

QString EventDocuments::problemOfLoading(const QString& path) {
  return load(path).problem;
}

void EventDocuments::tellRefusal(Refusal refusal, const QString& path) {
  dialogs_.alertAboutFile(refusal == Refusal::bad_data ? tr("Bad data") : tr("Wrong format"),
                          tr("Sorry, Velquon can't read this file."), path);
}

void EventDocuments::tellNegativeField() {
  dialogs_.alert(tr("You should know..."),
                 tr("The event was created with the chamber's magnetic field set to "
                    "a negative value.  The controls and display will show the "
                    "absolute value of the field."));
}

}  // namespace velquon
