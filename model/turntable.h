// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

#include "model/step_pace.h"

namespace velquon {

/// How fast the turntable turns.
enum class RotationRate : std::uint8_t { faster, standard, slower };

/// Which way the turntable turns.
enum class RotationDirection : std::uint8_t { forward, reverse };

/// The turntable on which the chamber turns in small steps about one of its axes. Times are
/// microseconds of one clock that never steps back; it reads no clock and runs no timer itself.
class Turntable {
 public:
  /// Starts the turntable from the moment given, or gives a running one its direction.
  /// \return whether it stood before, so that its first step is to be made now
  bool start(RotationDirection direction, std::uint64_t now);
  void stop() { is_rotating_ = false; }
  [[nodiscard]] bool is_rotating() const { return is_rotating_; }

  /// A running turntable takes the rate at its next step.
  void setRate(RotationRate rate) { rate_ = rate; }
  [[nodiscard]] RotationRate rate() const { return rate_; }
  /// \param axis 1 for x, 2 for y, 3 for z; any other is the nearest of these
  void setAxis(int axis);
  [[nodiscard]] int axis() const { return axis_; }

  /// Seconds between two steps.
  [[nodiscard]] double delay() const;
  /// Degrees of a step.
  [[nodiscard]] float angle() const { return angle_; }
  /// Steps made since the program's start.
  [[nodiscard]] std::int64_t steps() const { return steps_; }

  /// Takes the steps that are due when a timer has fired, each a turn by `angle` about `axis`: at
  /// least one, and those that fell due meanwhile. Only while it turns.
  [[nodiscard]] std::uint64_t takeStepsDue(std::uint64_t now);
  /// Microseconds from now until the next step is due.
  [[nodiscard]] std::uint64_t untilNext(std::uint64_t now) const { return pace_.untilNext(now); }

 private:
  bool is_rotating_ = false;
  RotationRate rate_ = RotationRate::standard;
  int axis_ = 1;
  float angle_ = 0.5F;
  std::int64_t steps_ = 0;
  StepPace pace_;
};

}  // namespace velquon
