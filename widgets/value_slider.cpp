// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/value_slider.h"

#include <QAccessible>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "widgets/wheel_guard.h"

namespace velquon {

namespace {

// The knob moves in whole positions; that many lie between two ticks.
constexpr int positions_per_tick = 100'000;
constexpr int steps_per_tick = 10;

/// The 32-bit float of a decimal number near a value. The bounds of a range are 32-bit floats
/// themselves, so that a tick computed between 0.1 and 1 is not quite 0.2.
double round_decimal(double value) {
  constexpr int digits = 7;
  return static_cast<double>(QString::number(value, 'g', digits).toFloat());
}

/// The next multiple of a distance beyond a position, which is not negative.
int mark_above(int position, int distance) {
  return (position / distance + 1) * distance;
}

int mark_below(int position, int distance) {
  return ((position + distance - 1) / distance - 1) * distance;
}

}  // namespace

ValueSlider::ValueSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setTickPosition(QSlider::TicksBelow);
  setSingleStep(positions_per_tick / steps_per_tick);
  setPageStep(positions_per_tick);
  setTickInterval(positions_per_tick);
  placeKnob();
  take_wheel_only_with_focus(*this);
  connect(this, &QSlider::actionTriggered, this, &ValueSlider::goToMark);
  connect(this, &QSlider::valueChanged, this, &ValueSlider::takeKnobPosition);
}

void ValueSlider::setMinValue(double value) {
  min_value_ = value;
  setFloatValue(std::max(value_, static_cast<float>(min_value_)));
}

void ValueSlider::setMaxValue(double value) {
  max_value_ = value;
  setFloatValue(std::min(value_, static_cast<float>(max_value_)));
}

void ValueSlider::setTickMarks(int count) {
  tick_marks_ = std::max(count, 2);
  placeKnob();
}

void ValueSlider::setZeroExcluded(bool excluded) {
  zero_excluded_ = excluded;
  placeKnob();
}

void ValueSlider::setFloatValue(float value) {
  value_ = value;
  placeKnob();
  QAccessibleValueChangeEvent event(this, doubleValue());
  QAccessible::updateAccessibility(&event);
}

double ValueSlider::closestTickMarkValueToValue(double value) const {
  const double last = tick_marks_ - 1;
  const double nearest = std::round((value - min_value_) / tickDistance());
  return min_value_ + (max_value_ - min_value_) * (std::clamp(nearest, 0.0, last) / last);
}

double ValueSlider::stepValue() const {
  return tickDistance() / steps_per_tick;
}

void ValueSlider::moveTo(double value) {
  if (!std::isfinite(value)) {
    return;
  }
  value_ = static_cast<float>(std::clamp(value, lowestChoice(), max_value_));
  placeKnob();
  QAccessibleValueChangeEvent event(this, doubleValue());
  QAccessible::updateAccessibility(&event);
  Q_EMIT moved();
}

void ValueSlider::takeKnobPosition(int position) {
  moveTo(round_decimal(min_value_ + (max_value_ - min_value_) *
                                        (static_cast<double>(position) / knobPositions())));
}

void ValueSlider::goToMark(int action) {
  switch (action) {
    case SliderSingleStepAdd:
      setSliderPosition(mark_above(value(), singleStep()));
      break;
    case SliderSingleStepSub:
      setSliderPosition(mark_below(value(), singleStep()));
      break;
    case SliderPageStepAdd:
      setSliderPosition(mark_above(value(), pageStep()));
      break;
    case SliderPageStepSub:
      setSliderPosition(mark_below(value(), pageStep()));
      break;
    case SliderToMinimum:
    case SliderToMaximum:
      // A value from outside the range lets the knob rest at an end without being there.
      takeKnobPosition(sliderPosition());
      break;
    default:
      break;
  }
}

void ValueSlider::placeKnob() {
  const QSignalBlocker no_signal(this);
  setRange(0, knobPositions());
  // While one bound is set and the other not yet, the range can be empty.
  const double span = max_value_ - min_value_;
  const double fraction = span > 0.0 ? (doubleValue() - min_value_) / span : 0.0;
  const double position = std::clamp(fraction, 0.0, 1.0) * knobPositions();
  setValue(static_cast<int>(std::lround(position)));
}

int ValueSlider::knobPositions() const {
  return positions_per_tick * (tick_marks_ - 1);
}

double ValueSlider::tickDistance() const {
  return (max_value_ - min_value_) / static_cast<double>(tick_marks_ - 1);
}

double ValueSlider::lowestChoice() const {
  return zero_excluded_ && min_value_ == 0.0 ? stepValue() : min_value_;
}

}  // namespace velquon
