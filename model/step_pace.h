// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace velquon {

/// Says which steps of a repeated motion are due, so that it keeps its rate whatever a single step
/// costs. A step is due one delay after the one before it was due, however late that one was made.
/// Times are microseconds of one clock that never steps back. Reads no clock and runs no timer.
class StepPace {
 public:
  /// A motion that is later than that, after the program stood still for a while, does not catch
  /// up: steps made at once keep mouse and keys waiting and make the motion leap.
  static constexpr std::uint64_t most_lateness = 250'000;

  /// Begins a motion.
  /// \param first_due when its first step is due
  constexpr void start(std::uint64_t first_due) { next_due_ = first_due; }

  /// Takes the steps that are to be made when a timer has fired: the one that it was set for, also
  /// when it fired a little early, and those that fell due meanwhile.
  /// \param now   the present time
  /// \param delay from one step to the next, as it is now; with 0 nothing is made up for
  /// \return how many steps to make at once, at least 1
  [[nodiscard]] constexpr std::uint64_t takeStepsDue(std::uint64_t now, std::uint64_t delay) {
    if (now > next_due_ + most_lateness) {
      next_due_ = now;
    }
    const std::uint64_t late = now > next_due_ ? now - next_due_ : 0;
    const std::uint64_t steps = delay == 0 ? 1 : 1 + late / delay;
    next_due_ += steps * delay;
    return steps;
  }

  /// When the next step is due.
  [[nodiscard]] constexpr std::uint64_t next_due() const { return next_due_; }

  /// Time from now until the next step is due, 0 when it is overdue.
  [[nodiscard]] constexpr std::uint64_t untilNext(std::uint64_t now) const {
    return next_due_ > now ? next_due_ - now : 0;
  }

 private:
  std::uint64_t next_due_ = 0;
};

}  // namespace velquon
