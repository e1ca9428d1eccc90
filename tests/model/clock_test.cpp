// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The wait of the replay, by a clock that is moved by hand.

#include "model/clock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace velquon::test {

namespace {

constexpr std::uint64_t high_word_changes = std::uint64_t{7} << 32;

/// Reads out given times one after the other and counts the readings.
class ScriptedClock {
 public:
  explicit ScriptedClock(std::vector<std::uint64_t> times) : times_(std::move(times)) {}

  [[nodiscard]] Clock clock() {
    return [this] { return times_.at(readings_++); };
  }
  /// Readings so far; reading beyond the last time throws.
  [[nodiscard]] std::size_t readings() const { return readings_; }

 private:
  std::vector<std::uint64_t> times_;
  std::size_t readings_ = 0;
};

}  // namespace

TEST(ClockTest, APauseEndsWhenMoreThanItsTimeHasPassed) {
  ScriptedClock times({1000, 1000, 5000, 10'999, 11'000, 11'001, 90'000});
  pause_for_microseconds(10'000, times.clock());
  EXPECT_EQ(times.readings(), 6U);
}

TEST(ClockTest, APauseOfNothingEndsWithTheNextMicrosecond) {
  ScriptedClock times({1000, 1000, 1001, 1002});
  pause_for_microseconds(0, times.clock());
  EXPECT_EQ(times.readings(), 3U);
}

TEST(ClockTest, APauseThatCrossesAChangeOfTheHighWordBeginsAnew) {
  ScriptedClock times({high_word_changes - 9'000, high_word_changes - 1, high_word_changes + 2,
                       high_word_changes + 3,  // the new start
                       high_word_changes + 9'000, high_word_changes + 10'003,
                       high_word_changes + 10'004, high_word_changes + 90'000});
  pause_for_microseconds(10'000, times.clock());
  EXPECT_EQ(times.readings(), 7U);
}

TEST(ClockTest, APauseDoesNotEndOnTheReadingThatCrossesTheChange) {
  // Seen by the old start alone, far more than its time has passed.
  ScriptedClock times({high_word_changes - 1, high_word_changes + 50'000,
                       high_word_changes + 50'001, high_word_changes + 60'002});
  pause_for_microseconds(10'000, times.clock());
  EXPECT_EQ(times.readings(), 4U);
}

TEST(ClockTest, TheProgramsClockNeverStepsBackAndTellsMicroseconds) {
  const std::uint64_t start = Microseconds();
  pause_for_microseconds(2'000, Microseconds);
  EXPECT_GT(Microseconds() - start, 2'000U);
}

}  // namespace velquon::test
