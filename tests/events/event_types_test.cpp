// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/event_types.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/event_making.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::ScriptedRand;
using test::seeded_event;

TEST(EventTypes, AreSixInTheOrderOfTheMenu) {
  const auto types = event_types();
  ASSERT_EQ(types.size(), 6U);
  const char* const keys[] = {"pi-", "pi+", "pi0", "mu-", "mu+", "lambda"};
  const char* const names[] = {"Negative Pion", "Positive Pion", "Neutral Pion",
                               "Negative Muon", "Positive Muon", "Lambda"};
  for (std::size_t i = 0; i < types.size(); ++i) {
    EXPECT_EQ(types[i].key, keys[i]);
    EXPECT_EQ(types[i].name, names[i]);
    EXPECT_EQ(types[i].flips_field, i == 0 || i == 3) << "only the negative particles";
  }
}

constexpr ChamberValues in_field{.B_field = 2.0F, .sides_cm = 500.0F, .kinetic_Mev = 1.0F};

TEST(MakeEvent, ANegativeParticleIsThePositiveOneInTheOppositeField) {
  ChamberValues opposite = in_field;
  opposite.B_field = -in_field.B_field;
  for (unsigned seed = 1; seed <= 50; ++seed) {
    EXPECT_EQ(seeded_event("pi-", in_field, seed), seeded_event("pi+", opposite, seed));
    EXPECT_EQ(seeded_event("mu-", in_field, seed), seeded_event("mu+", opposite, seed));
  }
}

TEST(MakeEvent, TheTracksOfOppositeChargesCurveInOppositeSenses) {
  for (const auto& [negative, positive] : {std::pair{"pi-", "pi+"}, std::pair{"mu-", "mu+"}}) {
    const auto left = seeded_event(negative, in_field, 5);
    const auto right = seeded_event(positive, in_field, 5);
    ASSERT_GE(left.size(), 2U);
    ASSERT_GE(right.size(), 2U);
    EXPECT_NEAR(left[0].coords[0], -right[0].coords[0], 1e-9);
    EXPECT_NEAR(left[0].coords[1], right[0].coords[1], 1e-9);
    EXPECT_LT(left[0].coords[0], 0.0);
    EXPECT_GT(right[0].coords[0], 0.0);
  }
}

TEST(MakeEvent, WithoutAFieldTheSignOfTheChargeIsNotSeen) {
  for (const float zero : {0.0F, -0.0F}) {
    const ChamberValues values{.B_field = zero, .sides_cm = 500.0F, .kinetic_Mev = 30.0F};
    for (unsigned seed = 1; seed <= 20; ++seed) {
      EXPECT_EQ(seeded_event("pi-", values, seed), seeded_event("pi+", values, seed));
      EXPECT_EQ(seeded_event("mu-", values, seed), seeded_event("mu+", values, seed));
    }
  }
}

/// True when the points of each track code lie on one line, the last one of a code left out because
/// it may be a daughter's.
bool straight_run(const std::vector<PlotPoint>& points) {
  for (std::size_t k = 2; k < points.size(); ++k) {
    if (points[k].code != points[k - 2].code || points[k].code != points[k - 1].code) {
      continue;
    }
    const auto a = test::position_of(points[k - 2]);
    const auto b = test::position_of(points[k - 1]);
    const auto c = test::position_of(points[k]);
    const auto turn = test::cross(test::difference(b, a), test::difference(c, b));
    if (test::length(turn) > 1e-9 * 400.0) {
      return false;
    }
  }
  return true;
}

TEST(MakeEvent, WithoutAFieldPrimariesRunStraightAndWithOneTheyDoNot) {
  ChamberValues values{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 30.0F};
  EXPECT_TRUE(straight_run(seeded_event("mu+", values, 3)));
  values.B_field = 1.0F;
  EXPECT_FALSE(straight_run(seeded_event("mu+", values, 3)));
}

TEST(MakeEvent, TheFirstPointOfAChargedPrimaryLiesOneStepBeyondTheEntry) {
  const ChamberValues values{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 30.0F};
  for (const auto* key : {"pi-", "pi+", "mu-", "mu+"}) {
    const auto points = seeded_event(key, values, 1);
    ASSERT_FALSE(points.empty());
    EXPECT_NEAR(points[0].coords[0], 0.0, 1e-12);
    EXPECT_NEAR(points[0].coords[1], -380.0, 1e-12);
    EXPECT_NEAR(points[0].coords[2], 0.0, 1e-12);
  }
}

TEST(MakeEvent, TheSameSeedMakesTheSameEvent) {
  for (const EventType& type : event_types()) {
    EXPECT_EQ(seeded_event(type.key, in_field, 77), seeded_event(type.key, in_field, 77));
  }
}

TEST(MakeEvent, AnEnergyThatIsNotAbove0OrNotFiniteIsAnEmptyEventThatIsHandedOver) {
  constexpr float infinite = std::numeric_limits<float>::infinity();
  for (const float energy :
       {0.0F, -0.0F, -1.0F, infinite, -infinite, std::numeric_limits<float>::quiet_NaN()}) {
    ChamberValues values = in_field;
    values.kinetic_Mev = energy;
    for (const EventType& type : event_types()) {
      TrackBuffer event;
      event.count = 12;  // what an earlier event left
      const ScriptedRand script({});
      EXPECT_EQ(make_event(type, values, event), HandOver::yes) << type.key << ' ' << energy;
      EXPECT_EQ(event.count, 0);
    }
  }
}

TEST(MakeEvent, BeginsWithAnEmptiedBuffer) {
  TrackBuffer event;
  event.count = 300;
  const ScriptedRand script({}, test::lowest_draw);
  ASSERT_EQ(make_event(test::event_type("mu+"),
                       {.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 30.0F}, event),
            HandOver::yes);
  EXPECT_EQ(event.count, 40);
}

TEST(RunChain, TakesTheFieldAsItIsGiven) {
  TrackBuffer event;
  std::srand(9);
  ASSERT_EQ(run_chain(test::event_type("pi-").chain, in_field, event), HandOver::yes);
  const std::vector<PlotPoint> points(event.points().begin(), event.points().end());
  EXPECT_EQ(points, seeded_event("pi+", in_field, 9));
}

}  // namespace
}  // namespace velquon
