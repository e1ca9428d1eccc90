// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "events/event_types.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"

// What holds for every event, whatever the settings.

namespace velquon {
namespace {

constexpr int settings_per_type = 1500;

/// Settings over the whole range of the controls and a little beyond, special values included.
class RandomValues {
 public:
  ChamberValues next() {
    return {.B_field = next_field(), .sides_cm = next_side(), .kinetic_Mev = next_energy()};
  }
  unsigned next_seed() { return static_cast<unsigned>(engine_()); }

 private:
  float next_field() {
    constexpr float smallest = std::numeric_limits<float>::denorm_min();
    constexpr std::array special{0.0F, -0.0F, smallest, -smallest, 1e-40F, 1e-20F, 10.0F, -10.0F};
    const auto pick = engine_() % 32;
    return pick < special.size() ? special[pick] : between(-10.0F, 10.0F);
  }
  float next_side() { return engine_() % 8 == 0 ? 50.0F : between(50.0F, 1000.0F); }
  float next_energy() {
    if (engine_() % 64 == 0) {
      return std::numeric_limits<float>::denorm_min();
    }
    return std::pow(10.0F, between(-6.0F, 4.0F));
  }
  float between(float low, float high) {
    return low + (high - low) * static_cast<float>(engine_() % 1000001) / 1e6F;
  }

  std::mt19937 engine_{12345};
};

void expect_sound(const PlotPoint& point) {
  for (const double coordinate : point.coords) {
    ASSERT_TRUE(std::isfinite(coordinate));
  }
  ASSERT_EQ(point.coords[3], 1.0);
  ASSERT_EQ(point.time, 0.0);
  ASSERT_GE(point.code, 2);
  ASSERT_LE(point.code, 6);
  // Only an end point may lie beyond the bound, and by no more than a step.
  for (std::size_t axis = 0; axis < 3; ++axis) {
    ASSERT_LT(std::fabs(point.coords[axis]), 405.0 + 20.0 + 1e-6);
  }
}

class EveryEvent : public ::testing::TestWithParam<const char*> {};

TEST_P(EveryEvent, IsFiniteWithinItsLimitAndItsBounds) {
  // A neutral pion without momentum divides zero by zero on purpose; a Lambda event has one.
  std::optional<test::FloatTraps> traps;
  if (std::string(GetParam()) != "lambda") {
    traps.emplace();
  }
  RandomValues random;
  int with_points = 0;
  for (int i = 0; i < settings_per_type; ++i) {
    const ChamberValues values = random.next();
    const unsigned seed = random.next_seed();
    SCOPED_TRACE(::testing::Message() << values.B_field << " kG, " << values.sides_cm << " cm, "
                                      << values.kinetic_Mev << " MeV, seed " << seed);
    const auto points = test::seeded_event(GetParam(), values, seed);
    ASSERT_LE(points.size(), 350U);
    for (const PlotPoint& point : points) {
      ASSERT_NO_FATAL_FAILURE(expect_sound(point));
    }
    with_points += points.empty() ? 0 : 1;
  }
  EXPECT_GT(with_points, settings_per_type / 20) << "nearly all events empty would prove little";
}

INSTANTIATE_TEST_SUITE_P(Types, EveryEvent,
                         ::testing::Values("pi-", "pi+", "pi0", "mu-", "mu+", "lambda"),
                         [](const auto& row) {
                           const std::string key = row.param;
                           const auto name = test::event_type(key).name;
                           std::string plain;
                           for (const char letter : name) {
                             if (letter != ' ') {
                               plain += letter;
                             }
                           }
                           return plain;
                         });

TEST(NeutralPionEvent, ConvertsInPairsSoItsStraightTracksEndTwoByTwo) {
  // Away from the walls each lepton has a track, and its code tells electron from positron.
  const ChamberValues values{.B_field = 0.0F, .sides_cm = 1000.0F, .kinetic_Mev = 100.0F};
  int shown = 0;
  for (unsigned seed = 1; seed <= 400; ++seed) {
    const auto points = test::seeded_event("pi0", values, seed);
    int first_points[2] = {0, 0};
    bool near_wall = false;
    const std::size_t heads = std::min<std::size_t>(points.size(), 4);
    for (std::size_t k = 0; k < heads; ++k) {
      first_points[points[k].code - 3] += 1;
      for (std::size_t axis = 0; axis < 3; ++axis) {
        near_wall = near_wall || std::fabs(points[k].coords[axis]) > 340.0;
      }
    }
    if (points.empty() || near_wall) {
      continue;
    }
    ++shown;
    EXPECT_EQ(first_points[0], first_points[1]) << "as many positrons as electrons";
  }
  EXPECT_GT(shown, 20);
}

}  // namespace
}  // namespace velquon
