// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/step_pace.h"

#include <gtest/gtest.h>

// The pace of a repeated motion, with a clock moved by hand.

namespace velquon {
namespace {

constexpr std::uint64_t start = 1'000'000;  // microseconds
constexpr std::uint64_t delay = 5'000;

class StepPaceTest : public ::testing::Test {
 protected:
  StepPaceTest() { pace.start(start + delay); }

  std::uint64_t stepsAfter(std::uint64_t since_start, std::uint64_t the_delay = delay) {
    return pace.takeStepsDue(start + since_start, the_delay);
  }
  [[nodiscard]] std::uint64_t dueAfterStart() const { return pace.next_due() - start; }

  StepPace pace;
};

TEST_F(StepPaceTest, ATimerThatKeepsItsTimeMakesOneStepEachTime) {
  for (std::uint64_t step = 1; step <= 1000; ++step) {
    ASSERT_EQ(stepsAfter(step * delay), 1U);
    ASSERT_EQ(dueAfterStart(), (step + 1) * delay);
  }
}

TEST_F(StepPaceTest, ATimerThatIsAlwaysLateKeepsTheRate) {
  // Each wait lasts 1.7 ms longer than was asked for.
  constexpr std::uint64_t overdue = 1'700;
  std::uint64_t now = start;
  std::uint64_t steps = 0;
  while (now < start + 10'000'000) {
    now += pace.untilNext(now) + overdue;
    steps += pace.takeStepsDue(now, delay);
  }
  EXPECT_EQ(steps, (now - start) / delay);
}

TEST_F(StepPaceTest, StepsThatCostMoreThanTheDelayAreMadeSeveralAtOnce) {
  // A frame takes 23 ms, during which no timer fires.
  std::uint64_t now = start;
  std::uint64_t steps = 0;
  while (now < start + 10'000'000) {
    now += 23'000;
    steps += pace.takeStepsDue(now, delay);
  }
  EXPECT_EQ(steps, (now - start) / delay);
}

TEST_F(StepPaceTest, ATimerThatIsALittleEarlyMakesItsStepAndTheNextIsDueNoEarlier) {
  EXPECT_EQ(stepsAfter(4'600), 1U);
  EXPECT_EQ(dueAfterStart(), 10'000U);
  EXPECT_EQ(pace.untilNext(start + 4'600), 5'400U);
}

struct LateCase {
  std::uint64_t late;
  std::uint64_t steps;
  std::uint64_t next_due;  // after the start
};

class LateStepPace : public StepPaceTest, public ::testing::WithParamInterface<LateCase> {};

TEST_P(LateStepPace, MakesUpForWhatFellDueWithinAQuarterOfASecond) {
  const auto& [late, steps, next_due] = GetParam();
  EXPECT_EQ(stepsAfter(delay + late), steps);
  EXPECT_EQ(dueAfterStart(), next_due);
}

INSTANTIATE_TEST_SUITE_P(Lateness, LateStepPace,
                         ::testing::Values(LateCase{0, 1, 10'000}, LateCase{4'999, 1, 10'000},
                                           LateCase{5'000, 2, 15'000}, LateCase{60'000, 13, 70'000},
                                           LateCase{249'999, 50, 255'000},
                                           LateCase{250'000, 51, 260'000},
                                           // Later than that, as if the step had been due just now.
                                           LateCase{250'001, 1, 260'001},
                                           LateCase{60'000'000, 1, 60'010'000}));

TEST_F(StepPaceTest, AfterAStandstillThatIsNotMadeUpForTheRateIsAsBefore) {
  EXPECT_EQ(stepsAfter(3'000'000), 1U);
  EXPECT_EQ(stepsAfter(3'005'000), 1U);
  EXPECT_EQ(stepsAfter(3'021'000), 3U);
}

TEST_F(StepPaceTest, ANewDelayCountsFromTheNextStepOn) {
  EXPECT_EQ(stepsAfter(5'000), 1U);
  EXPECT_EQ(stepsAfter(10'000, 20'000), 1U);
  EXPECT_EQ(dueAfterStart(), 30'000U);
  EXPECT_EQ(stepsAfter(30'000, 10'000), 1U);
  EXPECT_EQ(dueAfterStart(), 40'000U);
}

TEST_F(StepPaceTest, AStepOverdueIsNotWaitedFor) {
  EXPECT_EQ(pace.untilNext(start), delay);
  EXPECT_EQ(pace.untilNext(start + delay), 0U);
  EXPECT_EQ(pace.untilNext(start + 2 * delay), 0U);
}

TEST_F(StepPaceTest, WithoutADelayEachFiringMakesOneStep) {
  EXPECT_EQ(stepsAfter(5'000, 0), 1U);
  EXPECT_EQ(stepsAfter(100'000, 0), 1U);
}

TEST_F(StepPaceTest, AMotionStartedAgainOwesNothingOfTheOneBefore) {
  EXPECT_EQ(stepsAfter(5'000), 1U);
  pace.start(start + 100'000);
  EXPECT_EQ(stepsAfter(100'000), 1U);
  EXPECT_EQ(dueAfterStart(), 105'000U);
}

}  // namespace
}  // namespace velquon
