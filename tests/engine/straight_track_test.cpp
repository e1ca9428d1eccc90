// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "engine/charged_track.h"
#include "engine/random.h"
#include "tests/engine/track_limits.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::bound;
using test::highest_draw;
using test::lowest_draw;
using test::moving;
using test::position_of;
using test::ScriptedRand;
using test::step;
using test::usual_scale;

struct Walk {
  std::vector<PlotPoint> slots = std::vector<PlotPoint>(350);
  std::int16_t count = 0;

  TrackEnd run(ParticleState& particle, std::int16_t limit = 350) {
    return straight_path_calculation(particle, limit, count, 3, 4,
                                     std::span(slots).subspan(static_cast<std::size_t>(count)),
                                     bound, usual_scale, step);
  }
};

TEST(StraightPath, AlongYFromTheFaceKeepsXAndZAt0) {
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0}, {0.0, -400.0, 0.0});
  Walk walk;
  const ScriptedRand script({}, lowest_draw);
  EXPECT_EQ(walk.run(particle), TrackEnd::stopped);
  ASSERT_EQ(walk.count, 40) << "from -380 to 400 in steps of 20";
  EXPECT_EQ(script.draws(), 40U);
  for (std::size_t k = 0; k < 40; ++k) {
    EXPECT_NEAR(walk.slots[k].coords[0], 0.0, 1e-12);
    EXPECT_NEAR(walk.slots[k].coords[1], -380.0 + step * static_cast<double>(k), 1e-12);
    // acos(0 / E) rounds to a right angle whose cosine is not quite 0.
    EXPECT_NEAR(walk.slots[k].coords[2], 0.0, 1e-12);
    EXPECT_EQ(walk.slots[k].coords[3], 1.0);
    EXPECT_EQ(walk.slots[k].code, 3);
  }
}

TEST(StraightPath, ADecayAddsOneStepWithTheEndCodeAndNoBoundTest) {
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0}, {0.0, 380.0, 0.0});
  Walk walk;
  const ScriptedRand script({highest_draw});
  EXPECT_EQ(walk.run(particle), TrackEnd::decayed);
  ASSERT_EQ(walk.count, 2);
  EXPECT_NEAR(walk.slots[0].coords[1], 400.0, 1e-12);
  EXPECT_EQ(walk.slots[0].code, 3);
  EXPECT_NEAR(walk.slots[1].coords[1], 420.0, 1e-12);
  EXPECT_EQ(walk.slots[1].coords[3], 1.0);
  EXPECT_EQ(walk.slots[1].code, 4);
}

TEST(StraightPath, LeavesThroughEachOfTheSixWalls) {
  for (std::size_t axis = 0; axis < 3; ++axis) {
    for (const double sign : {1.0, -1.0}) {
      Vector3 momentum{};
      Vector3 start{};
      momentum[axis] = sign * 1e6;  // so fast that the energy is the momentum
      start[axis] = sign * 384.9;
      ParticleState particle = moving(muon, momentum, start);
      Walk walk;
      const ScriptedRand script({lowest_draw});
      EXPECT_EQ(walk.run(particle), TrackEnd::stopped);
      EXPECT_EQ(walk.count, 1) << "404.9 is inside and 424.9 is not";
      EXPECT_TRUE(script.played_out());
    }
  }
}

TEST(StraightPath, DoesNotMoveTheParticle) {
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0}, {1.0, 2.0, 3.0});
  Walk walk;
  const ScriptedRand script({lowest_draw, highest_draw});
  walk.run(particle);
  EXPECT_EQ(particle.position, (Vector3{1.0, 2.0, 3.0}));
  EXPECT_EQ(particle.momentum, (Vector3{0.0, 100.0, 0.0}));
}

TEST(StraightPath, TakesItsPolarAngleFromTheEnergyOnEntryAndThenSetsIt) {
  ParticleState particle = moving(muon, {30.0, 0.0, 40.0});
  particle.energy = 80.0;
  Walk walk;
  const ScriptedRand script({highest_draw});
  walk.run(particle);
  // The cosine is 40 / 80 whatever the momentum of 50 says.
  EXPECT_NEAR(walk.slots[0].coords[0], step * std::sqrt(0.75), 1e-12);
  EXPECT_NEAR(walk.slots[0].coords[2], step * 0.5, 1e-12);
  EXPECT_NEAR(particle.energy, std::hypot(105.7, 50.0), 1e-12);
}

TEST(StraightPath, WithoutAnEnergyItsPointsAreNotNumbers) {
  ParticleState particle = moving(electron, {30.0, 0.0, 40.0});
  particle.energy = 0.0;
  Walk walk;
  const ScriptedRand script({highest_draw});
  walk.run(particle);
  EXPECT_TRUE(std::isnan(walk.slots[0].coords[0]));
}

TEST(StraightPath, SurvivesWhileTheSurvivalIsGreaterThanTheDraw) {
  // Four decay lengths of the dilated pion are one step: survival exp(-1/4) with p = 2 m.
  ParticleState particle = moving(pion, {0.0, 2.0 * 139.6, 0.0});
  particle.decay_length = 4.0 * step / (2.0 * usual_scale);
  const double survival = std::exp(-0.25);
  Walk walk;
  const ScriptedRand script({test::draw_of(survival - 1e-6), test::draw_of(survival + 1e-6)});
  EXPECT_EQ(walk.run(particle), TrackEnd::decayed);
  EXPECT_EQ(walk.count, 3);
}

TEST(StraightPath, ADrawEqualToTheSurvivalIsADecay) {
  // So fast a proton that its survival is 1 in double precision.
  ParticleState particle = moving(proton, {0.0, 1e12, 0.0});
  Walk walk;
  const ScriptedRand script({highest_draw});
  EXPECT_EQ(walk.run(particle), TrackEnd::decayed);
  EXPECT_EQ(walk.count, 2);
}

TEST(StraightPath, EveryStepHasTheSameDirectionAndLengthOneStep) {
  const test::FloatTraps traps;
  std::srand(41);
  for (int i = 0; i < 500; ++i) {
    const Vector3 momentum{my_rand(-30, 30), my_rand(-30, 30), my_rand(-30, 30)};
    ParticleState particle = moving(electron, momentum);
    Walk walk;
    walk.run(particle);
    ASSERT_GT(walk.count, 0);
    for (std::size_t k = 1; k < static_cast<std::size_t>(walk.count); ++k) {
      const Vector3 advance =
          test::difference(position_of(walk.slots[k]), position_of(walk.slots[k - 1]));
      EXPECT_NEAR(test::length(advance), step, 1e-9);
      EXPECT_NEAR(std::atan2(advance[1], advance[0]), std::atan2(momentum[1], momentum[0]), 1e-9);
    }
  }
}

}  // namespace
}  // namespace velquon
