// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/tracking.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/kinematics.h"
#include "tests/support/event_making.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::highest_draw;
using test::lowest_draw;
using test::moving;
using test::ScriptedRand;
using test::usual_scale;

TEST(ChamberFrame, ChargedTracksReachALittleBeyondTheWall) {
  EXPECT_EQ(half_chamber_side, 400.0);
  EXPECT_EQ(track_limit(half_chamber_side), 404.0);
  EXPECT_EQ(track_step, 20.0);
}

TEST(ChamberFrame, TheScaleIsDrawingUnitsPerCm) {
  EXPECT_EQ(drawing_scale({.sides_cm = 500.0F}), 1.6);
  EXPECT_EQ(drawing_scale({.sides_cm = 50.0F}), 16.0);
}

TEST(PrimaryParticle, EntersInTheCentreOfTheLowerFaceAndMovesAlongY) {
  const ParticleState primary = primary_particle(pion, 50.0);
  EXPECT_EQ(primary.position, (Vector3{0.0, -400.0, 0.0}));
  EXPECT_EQ(primary.momentum[0], 0.0);
  EXPECT_NEAR(primary.momentum[1], std::sqrt(50.0 * 50.0 + 2.0 * 139.6 * 50.0), 1e-12);
  EXPECT_EQ(primary.momentum[2], 0.0);
  EXPECT_EQ(primary.energy, 50.0 + 139.6);
  EXPECT_EQ(primary.mass, 139.6);
  EXPECT_EQ(primary.decay_length, 780.0);
}

TEST(PrimaryParticle, ItsMassIsThatOfEnergyAndMomentum) {
  for (const double kinetic : {1e-3, 0.4, 10.0, 10000.0}) {
    const ParticleState primary = primary_particle(lambda, kinetic);
    EXPECT_NEAR(total_energy(primary.mass, magnitude(primary.momentum)), primary.energy,
                1e-12 * primary.energy);
  }
}

TEST(RotateP, TurnsClockwiseAndNeedsTheOldXForBothComponents) {
  Vector3 momentum{3.0, 4.0, 5.0};
  rotate_p(momentum, PI / 2);
  EXPECT_NEAR(momentum[0], 4.0, 1e-14);
  EXPECT_NEAR(momentum[1], -3.0, 1e-14);
  EXPECT_EQ(momentum[2], 5.0);
}

TEST(RotateP, KeepsTheLengthAndTurnsBack) {
  Vector3 momentum{3.0, 4.0, 5.0};
  rotate_p(momentum, 0.7);
  EXPECT_NEAR(std::hypot(momentum[0], momentum[1]), 5.0, 1e-14);
  rotate_p(momentum, -0.7);
  EXPECT_NEAR(momentum[0], 3.0, 1e-14);
  EXPECT_NEAR(momentum[1], 4.0, 1e-14);
}

constexpr TrackCodes codes{3, 4, 5, 6};

TrackSettings settings(double field) {
  return {field, 404.0, usual_scale, 20.0};
}

TEST(TrackParticle, OnlyAFieldOf0OfEitherSignIsStraight) {
  EXPECT_TRUE(settings(0.0).straight());
  EXPECT_TRUE(settings(-0.0).straight());
  EXPECT_FALSE(settings(5e-324).straight());
  EXPECT_FALSE(settings(std::nan("")).straight());
}

TEST(TrackParticle, ANegativeParticleSeesTheOppositeField) {
  EXPECT_EQ(settings(2.0).for_negative().field, -2.0);
  EXPECT_EQ(settings(2.0).for_negative().scale, usual_scale);
}

TEST(TrackParticle, TakesTheCodesOfAHelixInAField) {
  ParticleState particle = moving(muon, {0.0, 50.0, 0.0});
  TrackBuffer buffer;
  const ScriptedRand script({lowest_draw, highest_draw});
  EXPECT_EQ(track_particle(particle, codes, settings(1.0), buffer), TrackEnd::decayed);
  EXPECT_EQ(test::codes_of(buffer.points()), (std::vector<std::int16_t>{3, 3, 4}));
}

TEST(TrackParticle, TakesTheCodesOfALineWithoutAField) {
  ParticleState particle = moving(muon, {0.0, 50.0, 0.0});
  TrackBuffer buffer;
  const ScriptedRand script({lowest_draw, highest_draw});
  EXPECT_EQ(track_particle(particle, codes, settings(0.0), buffer), TrackEnd::decayed);
  EXPECT_EQ(test::codes_of(buffer.points()), (std::vector<std::int16_t>{5, 5, 6}));
}

TEST(TrackParticle, AfterADecayOnAHelixTheMomentumIsTurnedWithTheCountedPoints) {
  ParticleState particle = moving(muon, {0.0, 50.0, 10.0});
  TrackBuffer buffer;
  const ScriptedRand script({lowest_draw, lowest_draw, highest_draw});
  track_particle(particle, codes, settings(3.0), buffer);
  // Three counted points: three phase steps of -(transverse step) / radius from the +y direction.
  const double pt_share = 50.0 / std::hypot(50.0, 10.0);
  const double radius = 50.0 * 10.0 / (3.0 * 3.0) * usual_scale;
  const double direction = PI / 2 - 3 * 20.0 * pt_share / radius;
  EXPECT_NEAR(particle.momentum[0], 50.0 * std::cos(direction), 1e-9);
  EXPECT_NEAR(particle.momentum[1], 50.0 * std::sin(direction), 1e-9);
  EXPECT_EQ(particle.momentum[2], 10.0);
}

TEST(TrackParticle, ATrackThatLeavesOrALineKeepsTheMomentum) {
  for (const double field : {0.0, 0.1}) {
    ParticleState particle = moving(muon, {0.0, 50.0, 0.0});
    TrackBuffer buffer;
    const ScriptedRand script({}, lowest_draw);
    EXPECT_EQ(track_particle(particle, codes, settings(field), buffer), TrackEnd::stopped);
    EXPECT_EQ(particle.momentum, (Vector3{0.0, 50.0, 0.0}));
  }
  ParticleState particle = moving(muon, {0.0, 50.0, 0.0});
  TrackBuffer buffer;
  const ScriptedRand script({highest_draw});
  EXPECT_EQ(track_particle(particle, codes, settings(0.0), buffer), TrackEnd::decayed);
  EXPECT_EQ(particle.momentum, (Vector3{0.0, 50.0, 0.0}));
}

TEST(DaughterAtEnd, StartsAtTheLastPointWithMassAndDecayLengthOnly) {
  TrackBuffer buffer(3);
  buffer.free_slots()[0].coords = {1.0, 2.0, 3.0, 1.0};
  buffer.free_slots()[1].coords = {4.0, 5.0, 6.0, 1.0};
  buffer.count = 2;
  const ParticleState daughter = daughter_at_end(electron, buffer);
  EXPECT_EQ(daughter.position, (Vector3{4.0, 5.0, 6.0}));
  EXPECT_EQ(daughter.mass, 0.51);
  EXPECT_EQ(daughter.decay_length, 1e10);
  EXPECT_EQ(daughter.momentum, Vector3{});
}

}  // namespace
}  // namespace velquon
