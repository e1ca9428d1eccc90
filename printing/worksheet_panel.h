// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <optional>

#include "printing/worksheet_order.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace velquon {

/// Asks which worksheets are to be printed. It is accepted only with an order that can be made.
class WorksheetPanel : public QDialog {
  Q_OBJECT

 public:
  /// \param preset what is offered; its type must be set
  explicit WorksheetPanel(const WorksheetOrder& preset, QWidget* parent = nullptr);

  /// What the user asks for; what stood in the preset and was not touched is the same to the bit.
  [[nodiscard]] const WorksheetOrder& order() const { return order_; }
  [[nodiscard]] bool withAnswers() const;

 private:
  void addChoices(QFormLayout& form);
  void addNumbers(QFormLayout& form);
  QWidget* makeButtons();
  /// Reads the fields; what cannot be read is told and cannot be accepted.
  void takeOrder();
  /// \return what is wrong with the fields, or nothing
  [[nodiscard]] std::optional<QString> problemOf(WorksheetOrder& order) const;

  WorksheetOrder order_;
  QComboBox* type_popup_ = nullptr;
  QLineEdit* field_box_ = nullptr;
  QLineEdit* side_box_ = nullptr;
  QLineEdit* energy_box_ = nullptr;
  QSpinBox* count_box_ = nullptr;
  QLineEdit* seed_box_ = nullptr;
  QComboBox* paper_popup_ = nullptr;
  QCheckBox* answers_check_ = nullptr;
  QLabel* problem_label_ = nullptr;
  QPushButton* save_button_ = nullptr;
};

}  // namespace velquon
