// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/lepton_decays.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "engine/kinematics.h"
#include "engine/random.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::boosted_back;
using test::draw_of;
using test::highest_draw;
using test::lowest_draw;
using test::moving;
using test::ScriptedRand;

/// Momentum of a muon from a pion at rest, MeV/c: (M^2 - m^2) / 2M.
const double muon_momentum = (139.6 * 139.6 - 105.7 * 105.7) / (2.0 * 139.6);

TEST(PiToMu, MakesAMuonOf29_78MeVInThePionsRestFrame) {
  const test::FloatTraps traps;
  EXPECT_NEAR(muon_momentum, 29.78, 0.01);
  std::srand(71);
  for (int i = 0; i < 2000; ++i) {
    const ParticleState parent =
        moving(pion, {my_rand(-300, 300), my_rand(-300, 300), my_rand(-300, 300)});
    ParticleState daughter = muon;
    pi_to_mu(parent, daughter);
    EXPECT_NEAR(boosted_back(parent, daughter).size(), muon_momentum, 1e-8);
  }
}

TEST(PiToMu, TheMissingNeutrinoIsMassless) {
  std::srand(72);
  for (int i = 0; i < 500; ++i) {
    const ParticleState parent = moving(pion, {0.0, 120.0, 35.0});
    ParticleState daughter = muon;
    pi_to_mu(parent, daughter);
    const Vector3 missing = test::difference(parent.momentum, daughter.momentum);
    EXPECT_NEAR(parent.energy - daughter.energy, test::length(missing), 1e-9);
  }
}

TEST(PiToMu, DrawsTheLongitudinalComponentAndThenTheAzimuth) {
  const ParticleState parent = moving(pion, {0.0, 0.0, 100.0});
  ParticleState daughter = muon;
  const ScriptedRand script({draw_of(0.5), draw_of(0.25)});
  pi_to_mu(parent, daughter);
  EXPECT_TRUE(script.played_out());
  // Halfway is no longitudinal momentum; a quarter turn puts it all into the first across
  // component, which for a flight along z points against y.
  const double rest_energy = std::hypot(muon_momentum, 105.7);
  EXPECT_NEAR(daughter.momentum[0], 0.0, 1e-6);
  EXPECT_NEAR(daughter.momentum[1], -muon_momentum, 1e-6);
  EXPECT_NEAR(daughter.momentum[2], 100.0 * rest_energy / 139.6, 1e-6);
  EXPECT_NEAR(daughter.energy, std::hypot(105.7, test::length(daughter.momentum)), 1e-12);
}

TEST(PiToMu, AtEitherEndOfTheLongitudinalRangeTheMuonFliesAlongThePion) {
  const ParticleState parent = moving(pion, {0.0, 100.0, 0.0});
  const double rest_energy = std::hypot(muon_momentum, 105.7);
  for (const double sign : {-1.0, 1.0}) {
    ParticleState daughter = muon;
    const ScriptedRand script({sign < 0.0 ? lowest_draw : highest_draw, draw_of(0.3)});
    pi_to_mu(parent, daughter);
    EXPECT_NEAR(daughter.momentum[0], 0.0, 1e-9);
    EXPECT_NEAR(daughter.momentum[1],
                (sign * muon_momentum * parent.energy + 100.0 * rest_energy) / 139.6, 1e-9);
    EXPECT_NEAR(daughter.momentum[2], 0.0, 1e-9);
  }
}

TEST(PiToMu, LeavesTheDaughtersPositionAlone) {
  ParticleState daughter = muon;
  daughter.position = {1.0, 2.0, 3.0};
  std::srand(73);
  pi_to_mu(moving(pion, {0.0, 100.0, 0.0}, {7.0, 8.0, 9.0}), daughter);
  EXPECT_EQ(daughter.position, (Vector3{1.0, 2.0, 3.0}));
}

TEST(EDist, IsTheElectronSpectrum) {
  EXPECT_EQ(e_dist(0.0, 0.5), 0.0);
  EXPECT_EQ(e_dist(1.0, 0.0), 1.0);
  EXPECT_EQ(e_dist(1.0, -1.0), 2.0) << "the largest weight, above the largest draw";
  EXPECT_EQ(e_dist(1.0, 1.0), 0.0);
  EXPECT_EQ(e_dist(0.5, 1.0), 0.5);
  EXPECT_EQ(e_dist(0.5, -1.0), 0.5) << "at half the energy the angle does not count";
  EXPECT_DOUBLE_EQ(e_dist(0.25, 0.5), 0.0625 * (2.5 + 0.25));
}

TEST(MuToE, DrawsFractionCosineAndWeightUntilAcceptedAndThenTheAzimuth) {
  const ParticleState parent = moving(muon, {0.0, 0.0, 60.0});
  ParticleState daughter = electron;
  // Refused: the weight at (1/2, 0) is 1/2, less than the draw. Accepted: the weight at (1, 0) is
  // 1, not less than any draw.
  const ScriptedRand script({draw_of(0.5), draw_of(0.5), draw_of(0.6),    //
                             highest_draw, draw_of(0.5), draw_of(0.999),  //
                             draw_of(0.25)});
  mu_to_e(parent, daughter);
  EXPECT_TRUE(script.played_out());
  // Across the flight with half the muon's mass, a quarter turn round: against y.
  EXPECT_NEAR(daughter.momentum[0], 0.0, 1e-6);
  EXPECT_NEAR(daughter.momentum[1], -105.7 / 2, 1e-6);
  EXPECT_NEAR(daughter.momentum[2], std::hypot(52.85, 0.51) * 60.0 / 105.7, 1e-6);
  EXPECT_NEAR(daughter.energy, std::hypot(0.51, test::length(daughter.momentum)), 1e-12);
}

TEST(MuToE, ADrawEqualToTheWeightIsAccepted) {
  const ParticleState parent = moving(muon, {0.0, 60.0, 0.0});
  ParticleState daughter = electron;
  // x = 0 has the weight 0, and the draw is 0.
  const ScriptedRand script({lowest_draw, lowest_draw, lowest_draw, lowest_draw});
  mu_to_e(parent, daughter);
  EXPECT_EQ(script.draws(), 4U);
  EXPECT_NEAR(boosted_back(parent, daughter).size(), 0.0, 1e-9) << "an electron left at rest";
}

TEST(MuToE, AWeightAbove1AcceptsEveryDraw) {
  const ParticleState parent = moving(muon, {0.0, 60.0, 0.0});
  ParticleState daughter = electron;
  const ScriptedRand script({highest_draw, lowest_draw, highest_draw, lowest_draw});
  mu_to_e(parent, daughter);
  EXPECT_EQ(script.draws(), 4U);
  EXPECT_NEAR(boosted_back(parent, daughter).along, -52.85, 1e-9) << "backwards at full energy";
}

TEST(MuToE, TheRestFrameMomentumNeverExceeds52_85MeV) {
  const test::FloatTraps traps;
  std::srand(74);
  int slow = 0;
  for (int i = 0; i < 20000; ++i) {
    const ParticleState parent = moving(muon, {my_rand(-50, 50), my_rand(-50, 50), 20.0});
    ParticleState daughter = electron;
    mu_to_e(parent, daughter);
    const double momentum = boosted_back(parent, daughter).size();
    ASSERT_LE(momentum, 52.85 + 1e-9);
    slow += momentum < 52.85 * 0.05 ? 1 : 0;
  }
  // The weight is near 3 x^2, whose integral up to 0.05 is 1.25e-4, of about 1/2 in all.
  EXPECT_LT(slow, 20000 * 1e-3) << "fractions near 0 are rare";
}

}  // namespace
}  // namespace velquon
