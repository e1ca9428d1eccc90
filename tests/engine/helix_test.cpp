// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include "engine/charged_track.h"
#include "engine/kinematics.h"
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

struct Helix {
  HelixPath path;
  double survival = -1.0;
};

Helix helix_of(ParticleState& particle, double field) {
  Helix helix;
  set_up_path(particle, helix.path, helix.survival, field, usual_scale, step);
  return helix;
}

TEST(SetUpPath, AMuonOf100MeVIn10kGHasARadiusOf33_33Cm) {
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0}, {0.0, -400.0, 0.0});
  const Helix helix = helix_of(particle, 10.0);
  const double radius = 100.0 / 3.0 * usual_scale;
  EXPECT_NEAR(helix.path.radius, radius, 1e-12);
  EXPECT_NEAR(helix.path.dphi, -step / radius, 1e-14) << "the phase decreases in a positive field";
  EXPECT_EQ(helix.path.dz, 0.0);
  EXPECT_NEAR(helix.path.phi, PI / 2 + helix.path.dphi, 1e-14);
  EXPECT_NEAR(helix.path.centre_x, radius, 1e-12);
  EXPECT_NEAR(helix.path.centre_y, -400.0, 1e-12);
}

TEST(SetUpPath, ANegativeFieldTurnsTheOtherWay) {
  ParticleState one = moving(muon, {0.0, 100.0, 0.0});
  ParticleState other = one;
  const Helix positive = helix_of(one, 10.0);
  const Helix negative = helix_of(other, -10.0);
  EXPECT_EQ(negative.path.radius, -positive.path.radius);
  EXPECT_EQ(negative.path.dphi, -positive.path.dphi);
  EXPECT_EQ(negative.survival, positive.survival);
}

TEST(SetUpPath, MovesTheParticlesZOneStepOnAndNotItsXAndY) {
  ParticleState particle = moving(muon, {30.0, 0.0, 40.0}, {1.0, 2.0, 3.0});
  particle.energy = 0.0;
  const Helix helix = helix_of(particle, 1.0);
  EXPECT_NEAR(helix.path.dz, 0.8 * step, 1e-14);
  EXPECT_EQ(particle.position, (Vector3{1.0, 2.0, 3.0 + helix.path.dz}));
  EXPECT_EQ(helix.path.z, particle.position[2]);
  EXPECT_NEAR(particle.energy, std::hypot(105.7, 50.0), 1e-12);
  EXPECT_EQ(particle.momentum, (Vector3{30.0, 0.0, 40.0}));
}

TEST(SetUpPath, LeavesTheCodeAlone) {
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0});
  HelixPath path{.code = 77};
  double survival = 0.0;
  set_up_path(particle, path, survival, 1.0, usual_scale, step);
  EXPECT_EQ(path.code, 77);
}

TEST(SetUpPath, SurvivalIsExponentialInTheStepOverTheDilatedDecayLength) {
  ParticleState particle = moving(pion, {0.0, 139.6 * 2.0, 0.0});
  EXPECT_NEAR(helix_of(particle, 1.0).survival, std::exp(-20.0 / (1.6 * 2.0 * 780.0)), 1e-15);
}

TEST(SetUpPath, AMasslessParticleAlwaysSurvives) {
  ParticleState particle = moving(photon, {0.0, 100.0, 0.0});
  EXPECT_EQ(helix_of(particle, 1.0).survival, 1.0);
}

TEST(SetUpPath, TheCircleStartsAtThePositionAlongTheMomentum) {
  const test::FloatTraps traps;
  std::srand(31);
  for (int i = 0; i < 1000; ++i) {
    const Vector3 momentum{my_rand(-90, 90), my_rand(-90, 90), my_rand(-90, 90)};
    const Vector3 start{my_rand(-300, 300), my_rand(-300, 300), my_rand(-300, 300)};
    ParticleState particle = moving(muon, momentum, start);
    const Helix helix = helix_of(particle, my_rand(0.5, 9.0));
    const double phase = helix.path.phi - helix.path.dphi;
    EXPECT_NEAR(phase, std::atan2(momentum[1], momentum[0]), 1e-12);
    EXPECT_NEAR(helix.path.centre_x - helix.path.radius * std::sin(phase), start[0], 1e-9);
    EXPECT_NEAR(helix.path.centre_y + helix.path.radius * std::cos(phase), start[1], 1e-9);
    // The arc in the plane and the advance along the field make up one step.
    EXPECT_NEAR(std::hypot(helix.path.dphi * helix.path.radius, helix.path.dz), step, 1e-10);
  }
}

/// A helix of 100 units about the origin that begins at (0, -100, 0) and moves along +x.
HelixPath circle() {
  return {.dz = 2.0, .dphi = 0.1, .radius = -100.0, .z = 2.0, .phi = 0.1, .code = 3};
}

TEST(PathCalculation, WithASurvivalAbove0LaysAPointThenDrawsForEachStep) {
  HelixPath path = circle();
  std::vector<PlotPoint> slots(10);
  std::int16_t count = 0;
  const ScriptedRand script({lowest_draw, lowest_draw, highest_draw});
  EXPECT_EQ(path_calculation(10, count, slots, path, 4, bound, 0.5), TrackEnd::decayed);
  EXPECT_TRUE(script.played_out());
  ASSERT_EQ(count, 4);
  for (std::size_t k = 0; k < 4; ++k) {
    const double phase = 0.1 * static_cast<double>(k + 1);
    EXPECT_NEAR(slots[k].coords[0], 100.0 * std::sin(phase), 1e-12);
    EXPECT_NEAR(slots[k].coords[1], -100.0 * std::cos(phase), 1e-12);
    EXPECT_NEAR(slots[k].coords[2], 2.0 * static_cast<double>(k + 1), 1e-12);
    EXPECT_EQ(slots[k].coords[3], 1.0);
    EXPECT_EQ(slots[k].time, 0.0);
    EXPECT_EQ(slots[k].code, k < 3 ? 3 : 4);
  }
  EXPECT_EQ(slots[4], PlotPoint{}) << "nothing is written behind the end point";
}

TEST(PathCalculation, ADrawEqualToTheSurvivalIsADecay) {
  for (const double survival : {1.0, 1000.0 / 2147483647.0}) {
    HelixPath path = circle();
    std::vector<PlotPoint> slots(10);
    std::int16_t count = 0;
    const ScriptedRand script({survival == 1.0 ? highest_draw : 1000});
    EXPECT_EQ(path_calculation(10, count, slots, path, 4, bound, survival), TrackEnd::decayed);
    EXPECT_EQ(count, 2);
  }
}

TEST(PathCalculation, AfterADecayPhiIsTheCountedPointsTimesDphi) {
  HelixPath path = circle();
  std::vector<PlotPoint> slots(10);
  std::int16_t count = 0;
  const ScriptedRand script({lowest_draw, lowest_draw, highest_draw});
  path_calculation(10, count, slots, path, 4, bound, 0.5);
  EXPECT_NEAR(path.phi, 3 * 0.1, 1e-15) << "one step short of the turn to the end point";
}

TEST(PathCalculation, WithoutADecayThePathKeepsItsPhase) {
  HelixPath path = circle();
  std::vector<PlotPoint> slots(2);
  std::int16_t count = 0;
  const ScriptedRand script({lowest_draw, lowest_draw});
  EXPECT_EQ(path_calculation(2, count, slots, path, 4, bound, 0.5), TrackEnd::stopped);
  EXPECT_EQ(path.phi, 0.1);
}

TEST(PathCalculation, LeavesThroughEachOfTheSixWallsWithoutADrawForThePointOutside) {
  // Nearly straight helices along an axis whose second point is beyond the wall.
  const auto still = [](double x, double y) {
    return HelixPath{.radius = 0.0, .centre_x = x, .centre_y = y, .code = 3};
  };
  struct Case {
    const char* name = "";
    HelixPath path;
  };
  Case cases[] = {{"+x", still(404.99, 0)},  {"-x", still(-404.99, 0)}, {"+y", still(0, 404.99)},
                  {"-y", still(0, -404.99)}, {"+z", still(0, 0)},       {"-z", still(0, 0)}};
  for (Case& row : cases) {
    SCOPED_TRACE(row.name);
    row.path.z = row.name[1] == 'z' ? 404.99 : 0.0;
    row.path.dz = row.name[1] == 'z' ? 0.5 : 405.0;
    if (row.name[0] == '-') {
      row.path.z = -row.path.z;
      row.path.dz = -row.path.dz;
    }
    std::vector<PlotPoint> slots(5);
    std::int16_t count = 0;
    const ScriptedRand script({lowest_draw});
    EXPECT_EQ(path_calculation(5, count, slots, row.path, 4, bound, 0.5), TrackEnd::stopped);
    EXPECT_EQ(count, 1) << "404.99 is inside";
    EXPECT_TRUE(script.played_out());
  }
}

TEST(PathCalculation, AFirstPointAt405IsOutsideAndLeavesNoTrack) {
  for (const double x : {405.0, -405.0}) {
    HelixPath path{.radius = 0.0, .centre_x = x, .code = 3};
    std::vector<PlotPoint> slots(5);
    std::int16_t count = 0;
    const ScriptedRand script({});
    EXPECT_EQ(path_calculation(5, count, slots, path, 4, bound, 0.5), TrackEnd::stopped);
    EXPECT_EQ(count, 0);
  }
}

TEST(PathCalculation, TheEndPointMayLieBeyondTheWall) {
  HelixPath path{.dz = 10.0, .radius = 0.0, .z = 400.0, .code = 3};
  std::vector<PlotPoint> slots(5);
  std::int16_t count = 0;
  const ScriptedRand script({highest_draw});
  EXPECT_EQ(path_calculation(5, count, slots, path, 4, bound, 0.5), TrackEnd::decayed);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(slots[1].coords[2], 410.0);
  EXPECT_EQ(slots[1].code, 4);
}

TEST(PathCalculation, ATinyFieldGivesAHelixOfEnormousRadiusThatRunsNearlyStraight) {
  const test::FloatTraps traps;
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0}, {0.0, -400.0, 0.0});
  Helix helix = helix_of(particle, 1e-6);
  EXPECT_GT(helix.path.radius, 1e8);
  std::vector<PlotPoint> slots(350);
  std::int16_t count = 0;
  const ScriptedRand script({}, lowest_draw);
  EXPECT_EQ(path_calculation(350, count, slots, helix.path, 4, bound, helix.survival),
            TrackEnd::stopped);
  EXPECT_EQ(count, 40) << "from -380 to 400 in steps of 20";
  for (std::size_t k = 0; k < 40; ++k) {
    EXPECT_NEAR(slots[k].coords[0], 0.0, 0.01);
    EXPECT_NEAR(slots[k].coords[1], -380.0 + 20.0 * static_cast<double>(k), 1e-4);
  }
}

TEST(PathCalculation, MovingInThePlaneKeepsZAtExactly0) {
  ParticleState particle = moving(muon, {0.0, 100.0, 0.0}, {0.0, -400.0, 0.0});
  Helix helix = helix_of(particle, 1.0);
  std::vector<PlotPoint> slots(350);
  std::int16_t count = 0;
  const ScriptedRand script({}, lowest_draw);
  path_calculation(350, count, slots, helix.path, 4, bound, helix.survival);
  ASSERT_GT(count, 10);
  for (std::size_t k = 0; k < static_cast<std::size_t>(count); ++k) {
    EXPECT_EQ(slots[k].coords[2], 0.0);
  }
}

TEST(PathCalculation, EveryPointLiesOnTheCircleOneChordFromTheLast) {
  const test::FloatTraps traps;
  std::srand(32);
  for (int i = 0; i < 300; ++i) {
    ParticleState particle =
        moving(electron, {my_rand(-30, 30), my_rand(-30, 30), my_rand(-30, 30)});
    Helix helix = helix_of(particle, my_rand(-9.0, -0.1));
    std::vector<PlotPoint> slots(350);
    std::int16_t count = 0;
    path_calculation(350, count, slots, helix.path, 4, bound, helix.survival);
    ASSERT_GT(count, 0);
    const double radius = std::fabs(helix.path.radius);
    const double chord = 2.0 * radius * std::fabs(std::sin(helix.path.dphi / 2.0));
    for (std::size_t k = 0; k < static_cast<std::size_t>(count); ++k) {
      const auto [x, y, z] = position_of(slots[k]);
      EXPECT_NEAR(std::hypot(x - helix.path.centre_x, y - helix.path.centre_y), radius, 1e-9);
      if (k > 0) {
        const auto [x0, y0, z0] = position_of(slots[k - 1]);
        EXPECT_NEAR(std::hypot(x - x0, y - y0), chord, 1e-9);
        EXPECT_NEAR(z - z0, helix.path.dz, 1e-9);
      }
    }
  }
}

}  // namespace
}  // namespace velquon
