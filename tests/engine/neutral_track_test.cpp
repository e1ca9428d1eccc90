// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/neutral_track.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/scripted_rand.h"
#include "tests/support/statistics.h"

namespace velquon {
namespace {

using test::draw_of;
using test::highest_draw;
using test::lowest_draw;
using test::moving;
using test::ScriptedRand;
using test::usual_scale;

constexpr double neutral_bound = 400.0;

TEST(NeutralPath, StopsAfterExactlyOneStepOnTheHighestDraw) {
  // p = m, so a mean decay length is 7.89 cm and a step a fifth of it.
  ParticleState particle = moving(lambda, {0.0, 1115.6, 0.0}, {0.0, -400.0, 0.0});
  const ScriptedRand script({highest_draw});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_NEAR(particle.position[0], 0.0, 1e-12);
  EXPECT_NEAR(particle.position[1], -400.0 + 0.2 * usual_scale * 7.89, 1e-12);
  EXPECT_NEAR(particle.position[2], 0.0, 1e-12);
  EXPECT_EQ(script.draws(), 1U);
}

TEST(NeutralPath, SurvivesAStepWhenItsDrawIsBelowExpOfMinusAFifth) {
  const double survival = std::exp(-0.2);
  ParticleState particle = moving(lambda, {1115.6, 0.0, 0.0});
  const ScriptedRand script({draw_of(survival - 1e-6), draw_of(survival + 1e-6)});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(script.draws(), 2U);
  EXPECT_NEAR(particle.position[0], 2 * 0.2 * usual_scale * 7.89, 1e-12);
}

TEST(NeutralPath, LeavesMomentumAndEnergyAlone) {
  ParticleState particle = moving(lambda, {300.0, 400.0, -500.0});
  const ParticleState before = particle;
  const ScriptedRand script({lowest_draw, highest_draw});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(particle.momentum, before.momentum);
  EXPECT_EQ(particle.energy, before.energy);
}

TEST(NeutralPath, TakesItsPolarAngleFromTheEnergyAndNotFromTheMomentum) {
  ParticleState particle = moving(lambda, {0.0, 0.0, 1115.6});
  const ScriptedRand script({highest_draw});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  // Flying along z at p = m the cosine is p / E = 1 / sqrt(2), not 1.
  const double component = 0.2 * usual_scale * 7.89 / std::sqrt(2.0);
  EXPECT_NEAR(particle.position[0], component, 1e-9);
  EXPECT_NEAR(particle.position[1], 0.0, 1e-9);
  EXPECT_NEAR(particle.position[2], component, 1e-9);
}

TEST(NeutralPath, AtTheWallPointingOutLeavesOnItsFirstStepAndUsesOneDraw) {
  ParticleState particle = moving(lambda, {0.0, 1115.6, 0.0}, {0.0, 400.0, 0.0});
  const ParticleState before = particle;
  const ScriptedRand script({highest_draw});
  EXPECT_FALSE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(particle.position, before.position);
  EXPECT_EQ(script.draws(), 1U);
}

TEST(NeutralPath, AVertexInTheLastUnitBeforeTheWallIsInside) {
  // Stops at y = 400.99 of a bound of 400: the coordinate is truncated.
  ParticleState particle = moving(lambda, {0.0, 1115.6, 0.0});
  const double step = 0.2 * usual_scale * 7.89;
  particle.position[1] = 400.99 - step;
  const ScriptedRand script({highest_draw});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_NEAR(particle.position[1], 400.99, 1e-9);
}

TEST(NeutralPath, ANeutronLeavesOnItsFirstStep) {
  ParticleState particle = moving(neutron, {0.0, 10.0, 0.0}, {0.0, -400.0, 0.0});
  const ScriptedRand script({highest_draw});
  EXPECT_FALSE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(particle.position, (Vector3{0.0, -400.0, 0.0}));
  EXPECT_EQ(script.draws(), 1U);
}

TEST(NeutralPath, WithoutMomentumItDecaysWhereItIsWithoutADraw) {
  ParticleState particle = pizero;
  particle.position = {1.0, 2.0, 3.0};
  const ScriptedRand script({});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(particle.position, (Vector3{1.0, 2.0, 3.0}));
}

TEST(NeutralPath, WithoutMassItDecaysWhereItIsWithoutADraw) {
  ParticleState particle = moving(photon, {0.0, 10.0, 0.0});
  const ScriptedRand script({});
  EXPECT_TRUE(neutral_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(particle.position, Vector3{});
}

TEST(NeutralPath, VerticesFallOnMultiplesOfAFifthOfTheMeanWithAGeometricLaw) {
  const test::FloatTraps traps;
  std::srand(21);
  constexpr int walks = 40000;
  constexpr std::size_t bins = 20;
  const double step = 0.2 * usual_scale * 7.89;
  std::vector<double> counted(bins);
  for (int i = 0; i < walks; ++i) {
    ParticleState particle = moving(lambda, {0.0, 1115.6, 0.0});
    ASSERT_TRUE(neutral_path(particle, 1e9, usual_scale));
    const double steps = particle.position[1] / step;
    ASSERT_NEAR(steps, std::round(steps), 1e-9);
    ASSERT_GE(steps, 0.999);
    ++counted[std::min(bins, static_cast<std::size_t>(std::lround(steps))) - 1];
  }
  // k steps have the probability s^(k-1) (1 - s); the last bin holds all longer walks.
  const double s = std::exp(-0.2);
  std::vector<double> expected(bins);
  for (std::size_t k = 0; k < bins; ++k) {
    expected[k] = walks * std::pow(s, static_cast<double>(k)) * (k + 1 < bins ? 1.0 - s : 1.0);
  }
  EXPECT_LT(test::chi_square(counted, expected), test::critical_chi_square(bins - 1.0));
}

ParticleState photon_of(double energy, const Vector3& position = {}) {
  return moving(photon, {0.0, energy, 0.0}, position);
}

TEST(GammaPath, APhotonOf1_99MeVEscapesWithoutADraw) {
  ParticleState particle = photon_of(1.99);
  const ScriptedRand script({});
  EXPECT_FALSE(gamma_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(particle.position, Vector3{});
}

TEST(GammaPath, APhotonOf2MeVWalks) {
  ParticleState particle = photon_of(2.0);
  const ScriptedRand script({highest_draw});
  EXPECT_TRUE(gamma_path(particle, neutral_bound, usual_scale));
  EXPECT_NEAR(particle.position[1], 40.0 * usual_scale, 1e-12);
  EXPECT_EQ(script.draws(), 1U);
}

TEST(GammaPath, StepsOf40CmSurviveWhenTheDrawIsBelowExpOfMinus0_15) {
  const double survival = std::exp(-0.15);
  ParticleState particle = photon_of(50.0, {0.0, -400.0, 0.0});
  const ScriptedRand script({draw_of(survival - 1e-6), draw_of(survival + 1e-6)});
  EXPECT_TRUE(gamma_path(particle, neutral_bound, usual_scale));
  EXPECT_NEAR(particle.position[1], -400.0 + 2 * 40.0 * usual_scale, 1e-12);
  EXPECT_EQ(script.draws(), 2U);
}

TEST(GammaPath, AStepOutOfTheChamberUsesItsDrawAndLeavesThePosition) {
  ParticleState particle = photon_of(50.0, {0.0, 300.0, 0.0});
  const ScriptedRand script({lowest_draw, highest_draw});
  EXPECT_FALSE(gamma_path(particle, neutral_bound, usual_scale));
  EXPECT_EQ(script.draws(), 2U);
  EXPECT_EQ(particle.position, (Vector3{0.0, 300.0, 0.0}));
}

TEST(GammaPath, AnEnergyThatIsNotANumberDoesNotStopIt) {
  ParticleState particle = photon_of(50.0);
  particle.energy = std::numeric_limits<double>::quiet_NaN();
  const ScriptedRand script({highest_draw});
  EXPECT_TRUE(gamma_path(particle, neutral_bound, usual_scale));
}

TEST(GammaPath, WalksAlongTheMomentum) {
  const test::FloatTraps traps;
  const Vector3 momentum{10.0, -20.0, 20.0};
  ParticleState particle = moving(photon, momentum);
  const ScriptedRand script({highest_draw});
  EXPECT_TRUE(gamma_path(particle, neutral_bound, usual_scale));
  for (std::size_t axis = 0; axis < 3; ++axis) {
    EXPECT_NEAR(particle.position[axis], momentum[axis] / 30.0 * 40.0 * usual_scale, 1e-11);
  }
}

TEST(GammaPath, TheMeanNumberOfStepsIsThatOfItsFixedSurvival) {
  const test::FloatTraps traps;
  std::srand(22);
  constexpr int walks = 50000;
  double steps = 0.0;
  for (int i = 0; i < walks; ++i) {
    ParticleState particle = photon_of(10.0);
    ASSERT_TRUE(gamma_path(particle, 1e9, usual_scale));
    steps += particle.position[1] / (40.0 * usual_scale);
  }
  // A geometric law from 1 has the mean 1 / (1 - s) and the variance s / (1 - s)^2.
  const double s = std::exp(-0.15);
  const double spread = std::sqrt(s / walks) / (1.0 - s);
  EXPECT_LT(std::fabs(steps / walks - 1.0 / (1.0 - s)) / spread, test::critical_z);
}

}  // namespace
}  // namespace velquon
