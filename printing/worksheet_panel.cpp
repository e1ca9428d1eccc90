// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/worksheet_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <array>
#include <charconv>
#include <initializer_list>
#include <utility>

#include "files/number_in.h"
#include "widgets/model_text.h"

namespace velquon {

namespace {

/// The shortest text that is read back as the same number.
QString exact_text(float value) {
  std::array<char, 32> digits{};
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return QString::fromLatin1(digits.data(), end - digits.data());
}

template <typename Widget>
Widget* named(Widget* widget, const char* name) {
  widget->setObjectName(QLatin1String(name));
  return widget;
}

}  // namespace

WorksheetPanel::WorksheetPanel(const WorksheetOrder& preset, QWidget* parent)
    : QDialog(parent), order_(preset), problem_label_(named(new QLabel, "problem_label")) {
  setWindowTitle(tr("Print Worksheets"));
  auto* const layout = new QVBoxLayout(this);
  auto* const form = new QFormLayout;
  layout->addLayout(form);
  addChoices(*form);
  addNumbers(*form);
  answers_check_ =
      named(new QCheckBox(tr("With an &answer key in a file of its own")), "answers_check");
  answers_check_->setChecked(true);
  layout->addWidget(answers_check_);
  problem_label_->setWordWrap(true);
  layout->addWidget(problem_label_);
  layout->addWidget(makeButtons());
  // In the dialog by now: before, Return would be for the first button, Cancel.
  save_button_->setDefault(true);
  takeOrder();
}

bool WorksheetPanel::withAnswers() const {
  return answers_check_->isChecked();
}

void WorksheetPanel::addChoices(QFormLayout& form) {
  type_popup_ = named(new QComboBox, "worksheet_type_popup");
  for (const EventType& type : event_types()) {
    type_popup_->addItem(model_text(type.name));
  }
  type_popup_->setCurrentIndex(static_cast<int>(order_.type - event_types().data()));
  form.addRow(tr("&Event:"), type_popup_);
  paper_popup_ = named(new QComboBox, "worksheet_paper_popup");
  for (const QPageSize::PageSizeId size : {QPageSize::A4, QPageSize::Letter}) {
    paper_popup_->addItem(QPageSize::name(size), size);
  }
  paper_popup_->setCurrentIndex(paper_popup_->findData(order_.paper));
  form.addRow(tr("&Paper:"), paper_popup_);
  for (const QComboBox* const popup : {type_popup_, paper_popup_}) {
    connect(popup, &QComboBox::currentIndexChanged, this, &WorksheetPanel::takeOrder);
  }
}

void WorksheetPanel::addNumbers(QFormLayout& form) {
  field_box_ = named(new QLineEdit(exact_text(order_.values.B_field)), "field_box");
  side_box_ = named(new QLineEdit(exact_text(order_.values.sides_cm)), "side_box");
  energy_box_ = named(new QLineEdit(exact_text(order_.values.kinetic_Mev)), "energy_box");
  seed_box_ = named(new QLineEdit(QString::number(order_.seed)), "seed_box");
  count_box_ = named(new QSpinBox, "count_box");
  count_box_->setRange(1, most_worksheets);
  count_box_->setValue(order_.events);
  form.addRow(tr("Magnetic &field, kG:"), field_box_);
  form.addRow(tr("&Side of the chamber, cm:"), side_box_);
  form.addRow(tr("&Kinetic energy, MeV:"), energy_box_);
  form.addRow(tr("&Number of worksheets:"), count_box_);
  form.addRow(tr("See&d:"), seed_box_);
  for (const QLineEdit* const box : {field_box_, side_box_, energy_box_, seed_box_}) {
    connect(box, &QLineEdit::textChanged, this, &WorksheetPanel::takeOrder);
  }
  connect(count_box_, &QSpinBox::valueChanged, this, &WorksheetPanel::takeOrder);
}

QWidget* WorksheetPanel::makeButtons() {
  auto* const buttons = new QDialogButtonBox;
  save_button_ = named(buttons->addButton(tr("Sa&ve as PDF…"), QDialogButtonBox::AcceptRole),
                       "worksheet_save_button");
  // Last, or the Tab key would not reach it.
  buttons->addButton(QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void WorksheetPanel::takeOrder() {
  WorksheetOrder order = order_;
  const auto problem = problemOf(order);
  problem_label_->setText(problem.value_or(QString()));
  save_button_->setEnabled(!problem);
  if (!problem) {
    order_ = order;
  }
}

std::optional<QString> WorksheetPanel::problemOf(WorksheetOrder& order) const {
  order.type = &event_types()[static_cast<std::size_t>(type_popup_->currentIndex())];
  order.paper = paper_popup_->currentData().value<QPageSize::PageSizeId>();
  order.events = count_box_->value();
  for (const auto& [key, box] : {std::pair("field", field_box_), std::pair("side", side_box_),
                                 std::pair("energy", energy_box_)}) {
    const OrderEntry& entry = order_entry(key);
    if (!entry.take(order, box->text().trimmed().toStdString())) {
      const auto wanted = entry.wanted;
      return tr("'%1' is not %2.").arg(box->text(), model_text(wanted));
    }
  }
  const auto seed = number_in<std::uint32_t>(seed_box_->text().trimmed().toStdString());
  if (!seed) {
    return tr("'%1' is not a whole number from 0 to 4294967295.").arg(seed_box_->text());
  }
  order.seed = *seed;
  return std::nullopt;
}

}  // namespace velquon
