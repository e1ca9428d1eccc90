#include "platform/value_slider.h"

#include <QAccessible>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

namespace velquon {

namespace {

// The knob moves in whole positions; that many lie between two ticks.
constexpr int positions_per_tick = 100'000;
constexpr int steps_per_tick = 10;

}  // namespace

ValueSlider::ValueSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setTickPosition(QSlider::TicksBelow);
  setSingleStep(positions_per_tick / steps_per_tick);
  setPageStep(positions_per_tick);
  setTickInterval(positions_per_tick);
  placeKnob();
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
  moveTo(min_value_ +
         (max_value_ - min_value_) * (static_cast<double>(position) / knobPositions()));
}

void ValueSlider::placeKnob() {
  const QSignalBlocker no_signal(this);
  const bool stops_above_zero = zero_excluded_ && min_value_ == 0.0;
  setRange(stops_above_zero ? singleStep() : 0, knobPositions());
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
