// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/make_events_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "widgets/model_text.h"
#include "widgets/user_dialogs.h"

namespace velquon {

namespace {

constexpr int most_events = 100'000;
constexpr int usual_events = 1000;

/// Takes a number with a decimal point or comma and shows it with a point, as all of the program does.
class NumberBox : public QDoubleSpinBox {
 public:
  explicit NumberBox(QWidget* parent) : QDoubleSpinBox(parent) { setLocale(QLocale::c()); }

  [[nodiscard]] double valueFromText(const QString& text) const override {
    return QDoubleSpinBox::valueFromText(with_point(text));
  }
  QValidator::State validate(QString& text, int& position) const override {
    text = with_point(text);
    return QDoubleSpinBox::validate(text, position);
  }

 private:
  static QString with_point(QString text) {
    return text.replace(QLatin1Char(','), QLatin1Char('.'));
  }
};

/// Decimals that a value is shown with: more than usual where these would show little of it.
int decimals_for(double value, int usual) {
  constexpr int most = 9;
  constexpr double lost_at_most = 1.0e-3;
  int decimals = usual;
  while (decimals < most) {
    const double unit = std::pow(10.0, -decimals);
    if (std::fabs(std::round(value / unit) * unit - value) <= lost_at_most * std::fabs(value)) {
      break;
    }
    ++decimals;
  }
  return decimals;
}

/// \param offered widens the range where it lies beyond, as a value from a file may
QDoubleSpinBox* number_box(double lowest, double highest, int decimals, const QString& unit,
                           float offered, QWidget* parent) {
  const auto value = static_cast<double>(offered);
  auto* const box = new NumberBox(parent);
  box->setDecimals(decimals_for(value, decimals));
  box->setRange(std::min(lowest, value), std::max(highest, value));
  box->setSuffix(unit);
  box->setValue(value);
  return box;
}

/// The value of a box, or the one offered while the box shows just that, rounded.
float value_of(const QDoubleSpinBox& box, float offered) {
  const double rounded = box.valueFromText(box.textFromValue(static_cast<double>(offered)));
  return box.value() == rounded ? offered : static_cast<float>(box.value());
}

}  // namespace

MakeEventsDialog::MakeEventsDialog(std::size_t type, const ChamberValues& values,
                                   UserDialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      dialogs_(dialogs),
      offered_(values),
      tool_(EventMaker::findTool()),
      type_popup_(new QComboBox(this)),
      events_box_(new QSpinBox(this)),
      field_box_(number_box(0.0, 100.0, 3, tr(" kG"), values.B_field, this)),
      side_box_(number_box(1.0, 100'000.0, 1, tr(" cm"), values.sides_cm, this)),
      energy_box_(number_box(0.0001, 1e6, 4, tr(" MeV"), values.kinetic_Mev, this)),
      random_box_(new QCheckBox(tr("&Random seed"), this)),
      seed_box_(number_box(0.0, 4'294'967'295.0, 0, QString(), 1.0F, this)),
      sampled_popup_(new QComboBox(this)),
      progress_(new QProgressBar(this)),
      buttons_(new QDialogButtonBox(this)),
      make_button_(buttons_->addButton(tr("&Make"), QDialogButtonBox::AcceptRole)) {
  setObjectName(QStringLiteral("make_events_dialog"));
  setWindowTitle(tr("Make Events"));
  // After the other button, or the Tab key would not reach it.
  buttons_->addButton(QDialogButtonBox::Cancel);
  layOut(type);
  connect(random_box_, &QCheckBox::toggled, this,
          [this](bool is_random) { seed_box_->setEnabled(!is_random); });
  connect(make_button_, &QPushButton::clicked, this, &MakeEventsDialog::make);
  connect(buttons_, &QDialogButtonBox::rejected, this, &MakeEventsDialog::reject);
  connect(&maker_, &EventMaker::madeSoFar, progress_, &QProgressBar::setValue);
  connect(&maker_, &EventMaker::finished, this, &QDialog::accept);
  connect(&maker_, &EventMaker::failed, this, [this](const QString& reason) {
    showRunning(false);
    dialogs_.alert(tr("No events"), tr("velquon-events made no events: %1.").arg(reason));
  });
  random_box_->setChecked(true);
  showRunning(false);
}

void MakeEventsDialog::layOut(std::size_t type) {
  for (const EventType& known : event_types()) {
    type_popup_->addItem(model_text(known.name));
  }
  type_popup_->setCurrentIndex(static_cast<int>(type));
  events_box_->setRange(1, most_events);
  events_box_->setValue(usual_events);
  // In the order of SampledQuantity.
  sampled_popup_->addItems(
      {tr("Decay length of the primary"), tr("Momentum of the primary"),
       tr("Transverse momentum of the primary"), tr("Momentum of the first charged product"),
       tr("Transverse momentum of the first charged product"), tr("Number of visible tracks")});
  random_box_->setObjectName(QStringLiteral("random_seed_box"));
  random_box_->setToolTip(tr("Other events each time; the seed is noted with them"));
  progress_->setObjectName(QStringLiteral("make_events_progress"));
  progress_->setAccessibleName(tr("Events made"));
  make_button_->setObjectName(QStringLiteral("make_button"));
  make_button_->setDefault(true);
  buttons_->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cancel_button"));

  auto* const form = new QFormLayout;
  addRow(*form, tr("&Event:"), type_popup_, "make_type_popup");
  addRow(*form, tr("&Number of events:"), events_box_, "make_number_box");
  addRow(*form, tr("&Field:"), field_box_, "make_field_box");
  addRow(*form, tr("S&ide of the chamber:"), side_box_, "make_side_box");
  addRow(*form, tr("&Kinetic energy:"), energy_box_, "make_energy_box");
  form->addRow(QString(), random_box_);
  addRow(*form, tr("&Seed:"), seed_box_, "make_seed_box");
  addRow(*form, tr("&Quantity to note:"), sampled_popup_, "make_sampled_popup");
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(progress_);
  layout->addWidget(buttons_);
}

void MakeEventsDialog::addRow(QFormLayout& form, const QString& label, QWidget* field,
                              const char* name) {
  field->setObjectName(QLatin1String(name));
  field->setAccessibleName(
      QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')).trimmed());
  form.addRow(label, field);
}

int MakeEventsDialog::events() const {
  return events_box_->value();
}

EventOrder MakeEventsDialog::order() const {
  return {.type = static_cast<std::size_t>(type_popup_->currentIndex()),
          .values = {.B_field = value_of(*field_box_, offered_.B_field),
                     .sides_cm = value_of(*side_box_, offered_.sides_cm),
                     .kinetic_Mev = value_of(*energy_box_, offered_.kinetic_Mev)},
          .seed = random_box_->isChecked() ? QRandomGenerator::global()->generate()
                                           : static_cast<std::uint32_t>(seed_box_->value()),
          .events = events_box_->value(),
          .sampled = static_cast<SampledQuantity>(sampled_popup_->currentIndex())};
}

void MakeEventsDialog::make() {
  if (tool_.isEmpty()) {
    dialogs_.alert(tr("No events"),
                   tr("The program velquon-events, which makes them, is not installed."));
    return;
  }
  progress_->setRange(0, events_box_->value());
  progress_->setValue(0);
  showRunning(true);
  maker_.start(tool_, order());
}

void MakeEventsDialog::reject() {
  maker_.cancel();
  QDialog::reject();
}

void MakeEventsDialog::showRunning(bool is_running) {
  for (QWidget* const field :
       {static_cast<QWidget*>(type_popup_), static_cast<QWidget*>(events_box_),
        static_cast<QWidget*>(field_box_), static_cast<QWidget*>(side_box_),
        static_cast<QWidget*>(energy_box_), static_cast<QWidget*>(random_box_),
        static_cast<QWidget*>(sampled_popup_), static_cast<QWidget*>(make_button_)}) {
    field->setEnabled(!is_running);
  }
  seed_box_->setEnabled(!is_running && !random_box_->isChecked());
  progress_->setVisible(is_running);
}

}  // namespace velquon
