// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include "model/measurements.h"

namespace velquon {

class UserDialogs;

/// Files of measurements: saving, opening, adding those of a class, and what is asked before rows are
/// lost. A file is written whole or not at all, and one that is refused changes nothing.
class MeasurementFiles : public QObject {
  Q_OBJECT

 public:
  MeasurementFiles(Measurements& measurements, UserDialogs& dialogs, QObject* parent = nullptr);

  /// Asks for a name and writes all rows.
  /// \return whether they are in a file now
  bool save();
  /// Asks for a file and puts its rows in the place of all, having asked about unsaved ones.
  void open();
  /// Asks for files and appends their rows, each with the name of its file: those of all of them, or
  /// none when one is refused.
  void addFiles();

  /// Asks what to do with unsaved rows, if there are any, before they are lost.
  /// \return whether they may go
  [[nodiscard]] bool mayDiscard();

 private:
  /// The rows of a file; says why when there are none.
  [[nodiscard]] std::optional<MeasurementTable> load(const QString& path);

  Measurements& measurements_;
  UserDialogs& dialogs_;
};

/// Writes a file whole or not at all, and tells in an alert why it could not be written.
bool write_or_tell(UserDialogs& dialogs, const QString& path, QByteArrayView bytes);

}  // namespace velquon
