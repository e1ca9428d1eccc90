// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include "engine/chamber_values.h"
#include "record/event_maker.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace velquon {

class UserDialogs;

/// Asks which events to make and what to note of each, has them made while it shows how far that is,
/// and is accepted once they are. Until then Cancel ends it, and nothing is noted.
class MakeEventsDialog : public QDialog {
  Q_OBJECT

 public:
  /// \param type    kind of events offered, an index of `event_types`
  /// \param values  values offered
  /// \param dialogs tells of failures
  MakeEventsDialog(std::size_t type, const ChamberValues& values, UserDialogs& dialogs,
                   QWidget* parent);

  /// What was noted, once the dialog is accepted.
  [[nodiscard]] MeasurementTable takeRows() { return maker_.takeRows(); }
  [[nodiscard]] int events() const;

  /// Takes another program for `velquon-events`.
  void setTool(const QString& path) { tool_ = path; }

  void reject() override;

 private:
  void layOut(std::size_t type);
  void addRow(QFormLayout& form, const QString& label, QWidget* field, const char* name);
  [[nodiscard]] EventOrder order() const;
  void make();
  void showRunning(bool is_running);

  UserDialogs& dialogs_;
  ChamberValues offered_;
  QString tool_;
  EventMaker maker_;
  QComboBox* type_popup_;
  QSpinBox* events_box_;
  QDoubleSpinBox* field_box_;
  QDoubleSpinBox* side_box_;
  QDoubleSpinBox* energy_box_;
  QCheckBox* random_box_;
  QDoubleSpinBox* seed_box_;
  QComboBox* sampled_popup_;
  QProgressBar* progress_;
  QDialogButtonBox* buttons_;
  QPushButton* make_button_;
};

}  // namespace velquon
