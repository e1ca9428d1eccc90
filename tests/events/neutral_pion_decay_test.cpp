// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/neutral_pion_decay.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "engine/kinematics.h"
#include "engine/random.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::draw_of;
using test::highest_draw;
using test::joined;
using test::lowest_draw;
using test::moving;
using test::ScriptedRand;
using Codes = std::vector<std::int16_t>;

TEST(PizeroTo2Gamma, ThePhotonsAddUpToTheNeutralPion) {
  const test::FloatTraps traps;
  std::srand(111);
  for (int i = 0; i < 2000; ++i) {
    const ParticleState parent =
        moving(pizero, {my_rand(-500, 500), my_rand(-500, 500), my_rand(-500, 500)});
    ParticleState photon1 = photon;
    ParticleState photon2 = photon;
    pizero_to_2gamma(parent, photon1, photon2);
    const Vector3 total = test::sum(photon1.momentum, photon2.momentum);
    EXPECT_LT(test::length(test::difference(total, parent.momentum)), 1e-9);
    EXPECT_NEAR(photon1.energy + photon2.energy, parent.energy, 1e-9);
    for (const ParticleState& one : {photon1, photon2}) {
      EXPECT_NEAR(one.energy, test::length(one.momentum), 1e-10) << "a photon has no mass";
      EXPECT_NEAR(test::boosted_back(parent, one).size(), 67.5, 1e-8);
      EXPECT_EQ(one.position, Vector3{});
    }
  }
}

TEST(PizeroTo2Gamma, DrawsTheLongitudinalComponentAndThenTheAzimuth) {
  const ParticleState parent = moving(pizero, {0.0, 0.0, 200.0});
  ParticleState photon1 = photon;
  ParticleState photon2 = photon;
  const ScriptedRand script({draw_of(0.5), draw_of(0.25)});
  pizero_to_2gamma(parent, photon1, photon2);
  EXPECT_TRUE(script.played_out());
  EXPECT_NEAR(photon1.momentum[0], 0.0, 1e-5);
  EXPECT_NEAR(photon1.momentum[1], -67.5, 1e-5);
  EXPECT_NEAR(photon1.momentum[2], 100.0, 1e-5);
  EXPECT_NEAR(photon2.momentum[1], 67.5, 1e-5);
  EXPECT_NEAR(photon2.momentum[2], 100.0, 1e-5);
}

TEST(GammaToPair, ThePairAddsUpToThePhoton) {
  const test::FloatTraps traps;
  std::srand(112);
  for (int i = 0; i < 2000; ++i) {
    const ParticleState parent =
        moving(photon, {my_rand(-50, 50), my_rand(-50, 50), my_rand(-50, 50)}, {1.0, 2.0, 3.0});
    ParticleState the_electron = electron;
    ParticleState the_positron = positron;
    gamma_to_pair(parent, the_electron, the_positron);
    const Vector3 total = test::sum(the_electron.momentum, the_positron.momentum);
    EXPECT_LT(test::length(test::difference(total, parent.momentum)), 1e-10);
    const double along = test::scalar(total, parent.momentum) / test::length(parent.momentum);
    EXPECT_NEAR(along, parent.energy, 1e-10);
    // Both leptons and the photon's line lie in one plane, the leptons on either side.
    const Vector3 to_electron = test::cross(parent.momentum, the_electron.momentum);
    const Vector3 to_positron = test::cross(parent.momentum, the_positron.momentum);
    EXPECT_LT(test::length(test::sum(to_electron, to_positron)), 1e-8);
    EXPECT_EQ(the_electron.position, parent.position);
    EXPECT_EQ(the_positron.position, parent.position);
    EXPECT_EQ(the_electron.energy, 0.0);
    EXPECT_EQ(the_positron.energy, 0.0);
  }
}

TEST(GammaToPair, DrawsMomentumThenAngleThenAzimuth) {
  const ParticleState parent = moving(photon, {0.0, 0.0, 10.0});
  struct Case {
    std::vector<int> draws;
    double momentum;
    double angle_factor;
  };
  const Case cases[] = {{{lowest_draw, lowest_draw, lowest_draw}, 2.0, 0.7},
                        {{highest_draw, lowest_draw, lowest_draw}, 8.0, 0.7},
                        {{lowest_draw, highest_draw, lowest_draw}, 2.0, 1.3},
                        {{highest_draw, highest_draw, lowest_draw}, 8.0, 1.3}};
  for (const Case& row : cases) {
    ParticleState the_electron = electron;
    ParticleState the_positron = positron;
    const ScriptedRand script(row.draws);
    gamma_to_pair(parent, the_electron, the_positron);
    EXPECT_TRUE(script.played_out());
    const double angle = row.angle_factor * 0.51 / row.momentum;
    const double across = row.momentum * std::sin(angle);
    EXPECT_NEAR(the_electron.momentum[2], row.momentum * std::cos(angle), 1e-12);
    // Azimuth 0 lies all in the second across component, which for a flight along z points
    // against x.
    EXPECT_NEAR(the_electron.momentum[0], -across, 1e-12);
    EXPECT_NEAR(the_electron.momentum[1], 0.0, 1e-12);
    EXPECT_NEAR(the_positron.momentum[0], across, 1e-12);
    EXPECT_NEAR(the_positron.momentum[2], 10.0 - row.momentum * std::cos(angle), 1e-12);
  }
}

// At 10 MeV a neutral pion decays where it enters. Its photons' steps are 64 units long.
constexpr ChamberValues values{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 10.0F};

/// A decay whose photons fly at equal angles to either side, both into the chamber.
const std::vector<int> symmetric_decay{highest_draw, draw_of(0.5), draw_of(0.125)};
/// A decay whose first photon flies back out of the chamber, the second one into it.
const std::vector<int> first_goes_back{highest_draw, lowest_draw, lowest_draw};
const std::vector<int> pair_draws{draw_of(0.5), lowest_draw, lowest_draw};
const std::vector<int> converts{highest_draw};
const std::vector<int> escapes_at_once{highest_draw};
const std::vector<int> two_leptons{highest_draw, highest_draw};

Codes played_event(const std::vector<int>& draws, float field, TrackBuffer& event) {
  ChamberValues with_field = values;
  with_field.B_field = field;
  const ScriptedRand script(draws);
  EXPECT_EQ(pizero_chain(with_field, event), HandOver::yes);
  EXPECT_TRUE(script.played_out());
  return test::codes_of(event.points());
}

TEST(PizeroChain, TwoConversionsMakeTwoPairsAlternating) {
  const auto draws = joined(
      {symmetric_decay, converts, pair_draws, converts, pair_draws, two_leptons, two_leptons});
  TrackBuffer straight;
  EXPECT_EQ(played_event(draws, 0.0F, straight), (Codes{4, 4, 3, 3, 6, 6, 6, 6}));
  TrackBuffer curved;
  EXPECT_EQ(played_event(draws, 1.0F, curved), (Codes{3, 3, 4, 4, 4, 4, 3, 3}));
}

TEST(PizeroChain, TheSecondPhotonIsWalkedAfterTheFirstPairsThreeDraws) {
  // All three draws of the first pair are low. Were the second photon walked before them, it would
  // survive three steps more.
  const auto draws = joined({symmetric_decay,
                             converts,
                             {lowest_draw, lowest_draw, lowest_draw},
                             converts,
                             pair_draws,
                             two_leptons,
                             two_leptons});
  TrackBuffer event;
  played_event(draws, 0.0F, event);
  ASSERT_EQ(event.count, 8);
  const Vector3 entry{0.0, -400.0, 0.0};
  const Vector3 second_pair = test::difference(test::position_of(event.points()[1]), entry);
  EXPECT_LE(test::length(second_pair), 64.0 + 20.0 + 0.1);
}

TEST(PizeroChain, TheSecondPhotonIsTriedWhenTheFirstEscapes) {
  const auto draws = joined({first_goes_back, escapes_at_once, converts, pair_draws, two_leptons});
  TrackBuffer event;
  EXPECT_EQ(played_event(draws, 0.0F, event), (Codes{4, 3, 6, 6}));
}

TEST(PizeroChain, TwoEscapesMakeAnEmptyEventThatIsHandedOver) {
  // The second photon flies through the whole chamber: 12 steps inside and one out.
  const auto draws = joined({first_goes_back, escapes_at_once, std::vector<int>(13, lowest_draw)});
  TrackBuffer event;
  EXPECT_EQ(played_event(draws, 0.0F, event), Codes{});
}

TEST(PizeroChain, ANeutralPionThatLeavesFirstMakesAnEmptyEvent) {
  ChamberValues fast = values;
  fast.kinetic_Mev = 3e38F;  // so fast that even its short life takes it through the chamber
  TrackBuffer event;
  const ScriptedRand script({lowest_draw});
  EXPECT_EQ(pizero_chain(fast, event), HandOver::yes);
  EXPECT_TRUE(script.played_out());
  EXPECT_EQ(event.count, 0);
}

}  // namespace
}  // namespace velquon
