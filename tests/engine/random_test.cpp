// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/random.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "engine/kinematics.h"
#include "tests/support/scripted_rand.h"
#include "tests/support/statistics.h"

namespace velquon {
namespace {

using test::draw_of;
using test::highest_draw;
using test::lowest_draw;
using test::ScriptedRand;

TEST(RandOne, ReturnsExactlyZeroAndExactlyOne) {
  const ScriptedRand script({lowest_draw, highest_draw});
  EXPECT_EQ(rand_one(), 0.0);
  EXPECT_EQ(rand_one(), 1.0);
}

TEST(RandOne, DividesOneDrawBy2147483647) {
  const ScriptedRand script({1, 1000000000});
  EXPECT_EQ(rand_one(), 1.0 / 2147483647.0);
  EXPECT_EQ(rand_one(), 1000000000.0 / 2147483647.0);
  EXPECT_EQ(script.draws(), 2U);
}

struct Range {
  double a;
  double b;
  double lowest;
  double highest;
};

constexpr Range ranges[] = {{0.0, 2.0 * PI, 0.0, 2.0 * PI},
                            {-1.0, 1.0, -1.0, 1.0},
                            {1.0, 0.0, 1.0, 2.0},
                            {3.0, -1.0, 3.0, 7.0},
                            {5.0, 5.0, 5.0, 5.0}};

TEST(MyRand, SpreadsTheDrawOverTheWidthUpwardsFromTheFirstBound) {
  for (const Range& range : ranges) {
    const ScriptedRand script({lowest_draw, highest_draw});
    EXPECT_EQ(my_rand(range.a, range.b), range.lowest);
    EXPECT_EQ(my_rand(range.a, range.b), range.highest);
    EXPECT_EQ(script.draws(), 2U);
  }
}

TEST(MyRand, NeverLeavesItsRange) {
  std::srand(1);
  for (const Range& range : ranges) {
    for (int i = 0; i < 20000; ++i) {
      const double value = my_rand(range.a, range.b);
      ASSERT_GE(value, range.lowest);
      ASSERT_LE(value, range.highest);
    }
  }
}

TEST(MyRand, IsUniform) {
  std::srand(2);
  std::vector<double> sample(50000);
  for (double& value : sample) {
    value = my_rand(-3.0, 5.0);
  }
  const auto uniform = [](double x) { return (x + 3.0) / 8.0; };
  EXPECT_LT(test::kolmogorov_statistic(sample, uniform), test::critical_kolmogorov);
}

TEST(MyRand, TheTestOfUniformityNoticesASmallSlope) {
  std::srand(2);
  std::vector<double> sample(50000);
  for (double& value : sample) {
    const double u = rand_one();
    value = u + 0.05 * u * (1.0 - u);
  }
  EXPECT_GT(test::kolmogorov_statistic(sample, [](double x) { return x; }),
            test::critical_kolmogorov);
}

TEST(Seeding, TheSameSeedGivesTheSameDraws) {
  std::srand(4000000000U);
  const double first = rand_one();
  const double second = rand_one();
  std::srand(4000000000U);
  EXPECT_EQ(rand_one(), first);
  EXPECT_EQ(rand_one(), second);
  std::srand(4000000001U);
  EXPECT_NE(rand_one(), first);
}

TEST(ScriptedRandDeathTest, AScriptThatRunsDryEndsTheProgram) {
  EXPECT_DEATH(
      {
        const ScriptedRand script({draw_of(0.5)});
        std::srand(static_cast<unsigned>(std::rand() + std::rand()));
      },
      "drawn beyond the end of the script");
}

TEST(ScriptedRand, ForwardsToTheLibraryWhenNoScriptPlays) {
  const std::size_t before = test::real_draws();
  std::srand(7);
  const int first = std::rand();
  std::srand(7);
  {
    const ScriptedRand script({42});
    EXPECT_EQ(std::rand(), 42);
  }
  EXPECT_EQ(std::rand(), first);
  EXPECT_EQ(test::real_draws() - before, 2U);
}

}  // namespace
}  // namespace velquon
