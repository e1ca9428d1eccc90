// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSlider>

namespace velquon {

/// A slider for real numbers with tick marks. A value that the program sets is kept exactly as the
/// 32-bit float it is, even outside the range, the knob then resting at the nearest end; the user's
/// own moves stay in the range. Page keys and clicks beside the knob go to the next tick, arrow keys
/// to the next tenth between two ticks, wherever a drag has left the knob. The wheel turns the
/// slider only while it has the focus.
class ValueSlider : public QSlider {
  Q_OBJECT
  Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
  Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
  Q_PROPERTY(int tickMarks READ tickMarks WRITE setTickMarks)
  Q_PROPERTY(bool zeroExcluded READ zeroExcluded WRITE setZeroExcluded)
  Q_PROPERTY(QString unit READ unit WRITE setUnit)

 public:
  explicit ValueSlider(QWidget* parent = nullptr);

  [[nodiscard]] double minValue() const { return min_value_; }
  [[nodiscard]] double maxValue() const { return max_value_; }
  /// Number of tick marks, evenly spread from the least value to the greatest; at least 2.
  [[nodiscard]] int tickMarks() const { return tick_marks_; }
  /// Unit of the values, for screen readers.
  [[nodiscard]] QString unit() const { return unit_; }

  /// A new bound moves a value that lies beyond it onto it.
  void setMinValue(double value);
  void setMaxValue(double value);
  void setTickMarks(int count);
  void setUnit(const QString& unit) { unit_ = unit; }

  /// Lets the user choose no value below one step when the least value is 0.
  void setZeroExcluded(bool excluded);
  [[nodiscard]] bool zeroExcluded() const { return zero_excluded_; }

  [[nodiscard]] float floatValue() const { return value_; }
  [[nodiscard]] double doubleValue() const { return static_cast<double>(value_); }
  /// Sets the value without a signal.
  void setFloatValue(float value);

  [[nodiscard]] double closestTickMarkValueToValue(double value) const;
  /// The distance between two places of the arrow keys.
  [[nodiscard]] double stepValue() const;

  /// Sets the value as a move of the knob would: within the range, with the signal.
  void moveTo(double value);

 Q_SIGNALS:
  /// The user moved the knob.
  void moved();

 private:
  void takeKnobPosition(int position);
  void goToMark(int action);
  void placeKnob();
  [[nodiscard]] int knobPositions() const;
  [[nodiscard]] double tickDistance() const;
  [[nodiscard]] double lowestChoice() const;

  double min_value_ = 0.0;
  double max_value_ = 1.0;
  int tick_marks_ = 11;
  float value_ = 0.0F;
  bool zero_excluded_ = false;
  QString unit_;
};

}  // namespace velquon
