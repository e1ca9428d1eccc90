// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The turntable by a clock that the test moves.

#include "model/turntable.h"

#include <gtest/gtest.h>

#include <array>

namespace velquon::test {

namespace {

constexpr std::uint64_t start_time = 5'000'000'000;

/// A turntable that has made its first step.
Turntable turning(RotationDirection direction = RotationDirection::forward) {
  Turntable turntable;
  EXPECT_TRUE(turntable.start(direction, start_time));
  EXPECT_EQ(turntable.takeStepsDue(start_time), 1U);
  return turntable;
}

}  // namespace

TEST(TurntableTest, StandsAtFirst) {
  const Turntable turntable;
  EXPECT_FALSE(turntable.is_rotating());
  EXPECT_EQ(turntable.steps(), 0);
  EXPECT_EQ(turntable.axis(), 1);
  EXPECT_EQ(turntable.delay(), 0.01);
}

TEST(TurntableTest, RatesAreTheDelaysBetweenSteps) {
  struct Case {
    RotationRate rate;
    double delay;
    std::uint64_t steps_in_a_fifth_of_a_second;
  };
  constexpr std::array cases{Case{RotationRate::faster, 0.005, 40},
                             Case{RotationRate::standard, 0.01, 20},
                             Case{RotationRate::slower, 0.02, 10}};
  for (const auto& [rate, delay, steps] : cases) {
    Turntable turntable = turning();
    turntable.setRate(rate);
    EXPECT_EQ(turntable.rate(), rate);
    EXPECT_EQ(turntable.delay(), delay);
    // The step that is waited for was set by the delay before.
    const std::uint64_t due = start_time + turntable.untilNext(start_time);
    EXPECT_EQ(turntable.takeStepsDue(due + 200'000 - 1), steps);
  }
}

TEST(TurntableTest, DirectionIsTheSignOfAStep) {
  EXPECT_EQ(turning(RotationDirection::forward).angle(), 0.5F);
  EXPECT_EQ(turning(RotationDirection::reverse).angle(), -0.5F);
}

TEST(TurntableTest, ARunningOneOnlyTakesTheOtherDirection) {
  Turntable turntable = turning();
  const std::uint64_t until_next = turntable.untilNext(start_time + 4'000);
  EXPECT_FALSE(turntable.start(RotationDirection::reverse, start_time + 4'000));
  EXPECT_EQ(turntable.angle(), -0.5F);
  EXPECT_EQ(turntable.untilNext(start_time + 4'000), until_next);
}

TEST(TurntableTest, StopsAndStartsAnew) {
  Turntable turntable = turning();
  turntable.stop();
  EXPECT_FALSE(turntable.is_rotating());
  EXPECT_TRUE(turntable.start(RotationDirection::forward, start_time + 70));
  EXPECT_EQ(turntable.untilNext(start_time + 70), 0U);
}

TEST(TurntableTest, AxesAreNumberedFromOneToThree) {
  Turntable turntable;
  for (const auto& [asked, taken] : {std::pair{1, 1}, {2, 2}, {3, 3}, {0, 1}, {7, 3}}) {
    turntable.setAxis(asked);
    EXPECT_EQ(turntable.axis(), taken) << asked;
  }
}

TEST(TurntableTest, CountsEveryStep) {
  Turntable turntable = turning();
  EXPECT_EQ(turntable.steps(), 1);
  EXPECT_EQ(turntable.takeStepsDue(start_time + 30'000), 3U);
  EXPECT_EQ(turntable.steps(), 4);
}

TEST(TurntableTest, AStandstillOfMoreThanAQuarterOfASecondIsNotMadeUpFor) {
  Turntable turntable = turning();
  EXPECT_EQ(turntable.takeStepsDue(start_time + 10'000 + 250'001), 1U);
}

}  // namespace velquon::test
