// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include "files/event_file.h"

namespace velquon {

class ChamberController;
class UserDialogs;

/// Event files: asks for them, reads them into the model and writes the shown event.
class EventDocuments : public QObject {
  Q_OBJECT

 public:
  EventDocuments(ChamberController& controller, UserDialogs& dialogs);

  /// Asks for a name and writes the shown event there, whole or not at all. A failure leaves a file
  /// of that name as it was and is told in an alert.
  void save_event_file();

  /// Asks for an event file and shows it.
  /// \param importing offers the names that files of the PC edition have, too
  void open_event_file(bool importing);

  /// Shows an event file opened on the program's behalf: named at the start, dropped on a window.
  /// \return whether it is shown
  bool application_openFile(const QString& path);

  /// Reads, checks and shows one event file. A refusal is told in an alert and changes nothing; a
  /// file that cannot be loaded is left without a word.
  /// \return whether it is shown
  bool readAndDisplayFile(const QString& path);

  /// Why a file cannot be loaded; empty when it can.
  [[nodiscard]] static QString problemOfLoading(const QString& path);

 private:
  void tellRefusal(Refusal refusal, const QString& path);
  void tellNegativeField();

  ChamberController& controller_;
  UserDialogs& dialogs_;
};

}  // namespace velquon
