// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include "model/chamber_model.h"

namespace velquon {

class UserDialogs;

/// Files of the shown event for other programs: the same bytes that `velquon-events` writes of it as
/// the one event of a run. Each is written whole or not at all; a failure leaves a file of that name
/// as it was and is told in an alert.
class EventExports : public QObject {
  Q_OBJECT

 public:
  EventExports(ChamberModel& model, UserDialogs& dialogs);

  [[nodiscard]] bool hasPoints() const;
  /// Whether it is known what happened in the event.
  [[nodiscard]] bool hasRecord() const;

  /// Asks for a name and writes the points as a table.
  void exportPoints();
  /// Asks for a name and writes what happened: as a HepMC3 record under a name with that ending, as
  /// a table under another one.
  void exportRecord();

 private:
  /// \param filter kinds of files offered
  [[nodiscard]] QString fileFor(const QString& title, const QString& filter);
  void write(const QString& path, const QByteArray& bytes);

  ChamberModel& model_;
  UserDialogs& dialogs_;
};

}  // namespace velquon
