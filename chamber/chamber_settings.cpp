// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chamber/chamber_settings.h"

#include <QComboBox>
#include <QLabel>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>

#include "model/chamber_model.h"
#include "ui_chamber_window.h"
#include "widgets/number_text.h"
#include "widgets/value_editor.h"
#include "widgets/value_label.h"
#include "widgets/value_slider.h"

namespace velquon {

namespace {

// Bounds of the energy ranges in MeV: range i reaches from entry i + 1 up to entry i.
constexpr std::array<float, 8> evalues{10000.0F, 1000.0F, 100.0F, 10.0F, 1.0F, 0.1F, 0.01F, 0.0F};
constexpr std::size_t last_range = evalues.size() - 2;

// The ticks stand at 1, 2 ... 10 times the lower end of a range, in the range from 0 at 0, 1 ... 10
// tenths of its upper end.
constexpr int ticks_of_a_decade = 10;
constexpr int ticks_from_zero = 11;

// A label shows the nearest tick when the value is closer than that: a share of the energy's
// greatest value, and the same number of kG and of metres.
constexpr double energy_tolerance_share = 0.004;
constexpr double tick_tolerance = 0.0065;

struct EnergyPrecision {
  double below;  ///< MeV
  int decimals;
};
constexpr std::array<EnergyPrecision, 4> energy_precisions{
    {{0.1, 4}, {10.0, 3}, {100.0, 2}, {HUGE_VAL, 1}}};

double snapped_value(const ValueSlider& slider, double tolerance) {
  const double value = slider.doubleValue();
  const double tick = slider.closestTickMarkValueToValue(value);
  return std::fabs(tick - value) < tolerance ? tick : value;
}

int energy_decimals(double energy_MeV) {
  for (const auto& [below, decimals] : energy_precisions) {
    if (energy_MeV < below) {
      return decimals;
    }
  }
  return energy_precisions.back().decimals;
}

void show_value(QLabel& label, const QString& text, double value, int decimals) {
  constexpr int width = 5;
  label.setText(text.arg(fixed_text(value, width, decimals)));
}

}  // namespace

ChamberSettings::ChamberSettings(const Ui::ChamberWindow& controls, ChamberModel& model)
    : controls_(controls), model_(model) {
  QObject::connect(controls_.efactor_popup, &QComboBox::currentIndexChanged,
                   controls_.efactor_popup,
                   [this] { reset_energy_range(controls_.efactor_popup); });
  QObject::connect(controls_.energy_slider, &ValueSlider::moved, controls_.energy_slider,
                   [this] { reset_energy(controls_.energy_slider); });
  QObject::connect(controls_.magfield_slider, &ValueSlider::moved, controls_.magfield_slider,
                   [this] { reset_field(controls_.magfield_slider); });
  QObject::connect(controls_.size_slider, &ValueSlider::moved, controls_.size_slider,
                   [this] { reset_sides(controls_.size_slider); });
  letValuesBeTyped();
}

void ChamberSettings::letValuesBeTyped() {
  struct Typed {
    ValueLabel* label;
    const ValueSlider* slider;
    ValueBounds bounds;
    std::function<void(double)> take;
  };
  const auto bounds_of = [](const ValueSlider& slider, const char* unit) {
    constexpr int decimals = 4;
    return ValueBounds{.least = slider.minValue(),
                       .most = slider.maxValue(),
                       .decimals = decimals,
                       .unit = QLatin1String(unit)};
  };
  // Whatever range the slider has: the typed energy chooses it. An energy of 0 is not offered.
  constexpr int energy_digits = 6;
  const ValueBounds energies{.least = 1e-6,
                             .most = static_cast<double>(evalues.front()),
                             .decimals = energy_digits,
                             .unit = QStringLiteral("MeV")};
  for (const Typed& typed :
       {Typed{controls_.magfield_text, controls_.magfield_slider,
              bounds_of(*controls_.magfield_slider, "kG"),
              [this](double field_kG) { setFieldControl(static_cast<float>(field_kG)); }},
        Typed{controls_.sides_text, controls_.size_slider, bounds_of(*controls_.size_slider, "m"),
              [this](double side_m) {
                controls_.size_slider->setFloatValue(static_cast<float>(side_m));
                reset_sides(controls_.size_slider);
              }},
        Typed{controls_.kinetic_energy_text, controls_.energy_slider, energies,
              [this](double energy_MeV) { setEnergyControl(static_cast<float>(energy_MeV)); }}}) {
    typed.label->setEditable();
    QObject::connect(typed.label, &ValueLabel::editAsked, typed.label, [typed] {
      ValueEditor::open(*typed.label, typed.bounds, typed.slider->doubleValue(), typed.take);
    });
  }
}

void ChamberSettings::showValues(const ChamberValues& values) {
  finishTyping();
  setFieldControl(values.B_field);
  setSidesControl(values.sides_cm);
  setEnergyControl(values.kinetic_Mev);
}

void ChamberSettings::setEnergyControl(float energy_MeV) {
  setEnergyRange(energy_MeV);
  controls_.energy_slider->setFloatValue(energy_MeV);
  reset_energy(controls_.energy_slider);
}

void ChamberSettings::setEnergyRange(float energy_MeV) {
  std::size_t range = 0;
  while (range < last_range && evalues[range + 1] > energy_MeV) {
    ++range;
  }
  controls_.efactor_popup->setCurrentIndex(static_cast<int>(range));
  reset_energy_range(controls_.efactor_popup);
}

void ChamberSettings::reset_energy_range(const QComboBox* sender) {
  const auto range = static_cast<std::size_t>(sender->currentIndex());
  controls_.energy_slider->setTickMarks(range == last_range ? ticks_from_zero : ticks_of_a_decade);
  controls_.energy_slider->setMinValue(static_cast<double>(evalues.at(range + 1)));
  controls_.energy_slider->setMaxValue(static_cast<double>(evalues.at(range)));
  reset_energy(controls_.energy_slider);
}

void ChamberSettings::reset_energy(const ValueSlider* sender) {
  const double shown = snapped_value(*sender, energy_tolerance_share * sender->maxValue());
  show_value(*controls_.kinetic_energy_text, QStringLiteral("T = %1 MeV"), shown,
             energy_decimals(shown));
  reportValues();
}

void ChamberSettings::setFieldControl(float field_kG) {
  controls_.magfield_slider->setFloatValue(field_kG);
  reset_field(controls_.magfield_slider);
}

void ChamberSettings::reset_field(const ValueSlider* sender) {
  show_value(*controls_.magfield_text, QStringLiteral("B = %1 kG"),
             snapped_value(*sender, tick_tolerance), 3);
  reportValues();
}

void ChamberSettings::setSidesControl(float side_cm) {
  controls_.size_slider->setFloatValue(metres_from_cm(side_cm));
  reset_sides(controls_.size_slider);
}

void ChamberSettings::reset_sides(const ValueSlider* sender) {
  show_value(*controls_.sides_text, QStringLiteral("L = %1 m"),
             snapped_value(*sender, tick_tolerance), 3);
  reportValues();
}

void ChamberSettings::reportValues() {
  model_.setChosen({.B_field = controls_.magfield_slider->floatValue(),
                    .sides_cm = cm_from_metres(controls_.size_slider->floatValue()),
                    .kinetic_Mev = controls_.energy_slider->floatValue()});
}

void ChamberSettings::finishTyping() {
  for (const QWidget* const label :
       {controls_.magfield_text, controls_.sides_text, controls_.kinetic_energy_text}) {
    ValueEditor::finish(*label);
  }
}

void ChamberSettings::setNextChamberValues() {
  finishTyping();
  reportValues();
  model_.setNext(model_.chosen());
}

}  // namespace velquon
