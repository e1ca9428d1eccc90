// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/opening_angle.h"
#include "tests/model/degree.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace velquon::test {

namespace {

Place arm(Place vertex, double length, double direction_deg) {
  return vertex + Place{length * std::cos(direction_deg * degree),
                        length * std::sin(direction_deg * degree)};
}

}  // namespace

TEST(OpeningAngleTest, RunsFromNothingToAHalfTurnOnEitherSide) {
  const Place vertex{120.0, 77.0};
  for (const double opening : {0.0, 1.0, 30.0, 90.0, 135.0, 179.0, 180.0}) {
    for (const double first : {0.0, 50.0, -100.0, 175.0}) {
      for (const double side : {-1.0, 1.0}) {
        const auto angle = opening_angle(vertex, arm(vertex, 80.0, first),
                                         arm(vertex, 33.0, first + side * opening));
        ASSERT_TRUE(angle.has_value());
        EXPECT_NEAR(angle->value, opening, 1.0e-9);
      }
    }
  }
}

TEST(OpeningAngleTest, ItsErrorIsThatWhichPlacingMakes) {
  struct Case {
    double opening;
    double first;
    double second;
  };
  constexpr std::array cases{Case{25.0, 60.0, 200.0}, Case{90.0, 100.0, 100.0},
                             Case{150.0, 40.0, 150.0}, Case{60.0, 300.0, 35.0}};
  std::mt19937 random(1122);
  std::normal_distribution<double> hand(0.0, 0.5);
  const auto off = [&](Place place) { return place + Place{hand(random), hand(random)}; };
  for (const auto& [opening, first, second] : cases) {
    const Place vertex{200.0, 200.0};
    const Place a = arm(vertex, first, 10.0);
    const Place b = arm(vertex, second, 10.0 + opening);
    const auto told = opening_angle(vertex, a, b, 0.5);
    ASSERT_TRUE(told.has_value());
    constexpr int repetitions = 4000;
    double squares = 0.0;
    for (int i = 0; i < repetitions; ++i) {
      const double seen = opening_angle(off(vertex), off(a), off(b))->value;
      squares += (seen - opening) * (seen - opening);
    }
    EXPECT_NEAR(std::sqrt(squares / repetitions) / told->error, 1.0, 0.06) << opening;
  }
}

TEST(OpeningAngleTest, AnArmWithoutLengthHasNone) {
  EXPECT_FALSE(opening_angle({1.0, 1.0}, {1.0, 1.0}, {2.0, 2.0}));
  EXPECT_FALSE(opening_angle({1.0, 1.0}, {2.0, 2.0}, {1.0, 1.0}));
}

}  // namespace velquon::test
