// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/picture_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace velquon {

namespace {

QString name_of(PictureFormat format) {
  switch (format) {
    case PictureFormat::png:
      return PicturePanel::tr("PNG: pixels, as on the screen");
    case PictureFormat::svg:
      return PicturePanel::tr("SVG: lines, black on white");
    case PictureFormat::pdf:
      break;
  }
  return PicturePanel::tr("PDF: lines, black on white");
}

}  // namespace

PicturePanel::PicturePanel(PictureOffer offer, const PictureChoices& preset, QWidget* parent)
    : QDialog(parent), offer_(std::move(offer)), choices_(preset), size_label_(new QLabel) {
  setWindowTitle(tr("Save Picture"));
  size_label_->setObjectName(QStringLiteral("picture_size_label"));
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(makeForm());
  auto* const values =
      makeCheck(tr("With the &values of the event"), &PictureChoices::values, offer_.has_values);
  values->setObjectName(QStringLiteral("picture_values_check"));
  auto* const legend =
      makeCheck(tr("With a &legend below the picture"), &PictureChoices::legend, offer_.has_legend);
  legend->setObjectName(QStringLiteral("picture_legend_check"));
  layout->addWidget(values);
  layout->addWidget(legend);
  layout->addWidget(makeButtons());
  // In the dialog by now: before, Return would be for the first button, Cancel.
  save_button_->setDefault(true);
  tellSize();
}

QLayout* PicturePanel::makeForm() {
  auto* const form = new QFormLayout;
  if (std::ranges::find(offer_.formats, choices_.format) == offer_.formats.end()) {
    choices_.format = offer_.formats.front();
  }
  if (offer_.formats.size() > 1) {
    auto* const formats = new QComboBox;
    formats->setObjectName(QStringLiteral("picture_format_popup"));
    for (const PictureFormat format : offer_.formats) {
      formats->addItem(name_of(format), static_cast<int>(format));
    }
    formats->setCurrentIndex(formats->findData(static_cast<int>(choices_.format)));
    connect(formats, &QComboBox::currentIndexChanged, this, [this, formats] {
      choices_.format = static_cast<PictureFormat>(formats->currentData().toInt());
      tellSize();
    });
    form->addRow(tr("&Format:"), formats);
  }
  auto* const times = new QSpinBox;
  times->setObjectName(QStringLiteral("picture_scale_box"));
  times->setRange(1, largest_picture_scale);
  times->setSuffix(tr(" ×", "times the size on the screen"));
  times->setValue(choices_.scale);
  connect(times, &QSpinBox::valueChanged, this, [this](int scale) {
    choices_.scale = scale;
    tellSize();
  });
  form->addRow(tr("&Size:"), times);
  form->addRow(QString(), size_label_);
  return form;
}

QCheckBox* PicturePanel::makeCheck(const QString& text, bool PictureChoices::*choice,
                                   bool is_offered) {
  auto* const check = new QCheckBox(text);
  check->setChecked(is_offered && choices_.*choice);
  check->setEnabled(is_offered);
  connect(check, &QCheckBox::toggled, this, [this, choice](bool on) {
    choices_.*choice = on;
    tellSize();
  });
  return check;
}

QWidget* PicturePanel::makeButtons() {
  auto* const buttons = new QDialogButtonBox;
  save_button_ = buttons->addButton(tr("Sa&ve…"), QDialogButtonBox::AcceptRole);
  // Last, or the Tab key would not reach it.
  buttons->addButton(QDialogButtonBox::Cancel);
  save_button_->setObjectName(QStringLiteral("picture_save_button"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void PicturePanel::tellSize() {
  const QSize size = offer_.size(choices_);
  const QString text =
      choices_.format == PictureFormat::png ? tr("%1 × %2 pixels") : tr("%1 × %2 points");
  size_label_->setText(text.arg(size.width()).arg(size.height()));
}

}  // namespace velquon
