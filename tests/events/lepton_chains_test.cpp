// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include "events/event_types.h"
#include "events/lepton_decays.h"
#include "tests/support/event_making.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::draw_of;
using test::highest_draw;
using test::joined;
using test::lowest_draw;
using test::ScriptedRand;
using Codes = std::vector<std::int16_t>;

constexpr ChamberValues straight{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 50.0F};
constexpr ChamberValues curved{.B_field = 0.6F, .sides_cm = 500.0F, .kinetic_Mev = 50.0F};

// So slow in so strong a field that a primary circles where it enters, within 3 units.
constexpr ChamberValues spiral{.B_field = 10.0F, .sides_cm = 1000.0F, .kinetic_Mev = 0.4F};

// Counted steps of a track, and the decay that follows.
const std::vector<int> three_steps{lowest_draw, lowest_draw, highest_draw};
const std::vector<int> two_steps{lowest_draw, highest_draw};
const std::vector<int> one_step{highest_draw};
const std::vector<int> muon_ahead{highest_draw, lowest_draw};
const std::vector<int> electron_ahead{draw_of(0.5), highest_draw, lowest_draw, lowest_draw};
const std::vector<int> slow_electron{draw_of(0.1), highest_draw, lowest_draw, lowest_draw};

TEST(PionChain, OnALineEachDaughterStartsAtItsParentsLastPoint) {
  // Every daughter is sent straight ahead, so that the three tracks make one line of even steps.
  TrackBuffer event;
  const ScriptedRand script(joined({three_steps, muon_ahead, two_steps, electron_ahead}),
                            lowest_draw);
  EXPECT_EQ(pion_chain(straight, event), HandOver::yes);
  ASSERT_EQ(event.count, 40) << "from -380 to 400 in steps of 20";
  Codes codes{3, 3, 3, 4, 4, 4, 5};
  codes.resize(40, 5);
  EXPECT_EQ(test::codes_of(event.points()), codes);
  for (std::size_t k = 0; k < 40; ++k) {
    const auto [x, y, z] = test::position_of(event.points()[k]);
    EXPECT_NEAR(x, 0.0, 1e-6);
    EXPECT_NEAR(y, -380.0 + 20.0 * static_cast<double>(k), 1e-6);
    EXPECT_NEAR(z, 0.0, 1e-6);
  }
  // 3 + 2 + 2 + 4 draws, and one for each of the electron's 33 points.
  EXPECT_EQ(script.draws(), 11U + 33U);
}

TEST(PionChain, OnALineTheMuonsMomentumFollowsFromThePionsUnchangedOne) {
  // No longitudinal momentum and a quarter turn: for a flight along y all of it goes to +x.
  TrackBuffer event;
  const ScriptedRand script(joined({one_step, {draw_of(0.5), draw_of(0.25)}}), lowest_draw);
  pion_chain(straight, event);
  ASSERT_GT(event.count, 3);
  const Vector3 first =
      test::difference(test::position_of(event.points()[2]), test::position_of(event.points()[1]));
  const double k = (139.6 * 139.6 - 105.7 * 105.7) / (2.0 * 139.6);
  const double along = std::sqrt(50.0 * 50.0 + 2.0 * 50.0 * 139.6) * std::hypot(k, 105.7) / 139.6;
  EXPECT_NEAR(first[0], 20.0 * k / std::hypot(k, along), 1e-5);
  EXPECT_NEAR(first[1], 20.0 * along / std::hypot(k, along), 1e-5);
  EXPECT_NEAR(first[2], 0.0, 1e-5);
}

TEST(PionChain, OnAHelixTheMuonFliesInTheTurnedDirectionOfThePion) {
  TrackBuffer event;
  const ScriptedRand script(joined({three_steps, muon_ahead}), lowest_draw);
  pion_chain(curved, event);
  ASSERT_GT(event.count, 6);
  const double pion_p = std::sqrt(50.0 * 50.0 + 2.0 * 50.0 * 139.6);
  const double pion_radius = pion_p * 10.0 / (3.0 * static_cast<double>(0.6F)) * 1.6;
  const double k = (139.6 * 139.6 - 105.7 * 105.7) / (2.0 * 139.6);
  const double muon_p = (k * (50.0 + 139.6) + pion_p * std::hypot(k, 105.7)) / 139.6;
  const double muon_radius = pion_radius * muon_p / pion_p;
  // The muon's first chord is half its phase step beyond the pion's direction, which has turned by
  // the three counted steps and not by the fourth to the decay point.
  const double turned = 3 * 20.0 / pion_radius + 0.5 * 20.0 / muon_radius;
  const Vector3 chord =
      test::difference(test::position_of(event.points()[4]), test::position_of(event.points()[3]));
  EXPECT_NEAR(std::atan2(chord[0], chord[1]), turned, 1e-6);
}

TEST(PionChain, CodesOfTheWholeChain) {
  for (const ChamberValues& values : {straight, curved}) {
    TrackBuffer event;
    const ScriptedRand script(joined({two_steps, muon_ahead, two_steps, electron_ahead, one_step}));
    EXPECT_EQ(pion_chain(values, event), HandOver::no)
        << "a chain whose last particle decays is not handed over";
    EXPECT_EQ(test::codes_of(event.points()), (Codes{3, 3, 4, 4, 4, 5, 5, 6}));
    EXPECT_TRUE(script.played_out());
  }
}

TEST(MuonChain, TheElectronsEndCodeIs6OnAHelixAnd5OnALine) {
  const auto draws = joined({two_steps, electron_ahead, two_steps});
  TrackBuffer line;
  {
    const ScriptedRand script(draws);
    EXPECT_EQ(muon_chain(straight, line), HandOver::no);
  }
  EXPECT_EQ(test::codes_of(line.points()), (Codes{3, 3, 4, 4, 4, 5}));
  TrackBuffer helix;
  const ScriptedRand script(draws);
  EXPECT_EQ(muon_chain(curved, helix), HandOver::no);
  EXPECT_EQ(test::codes_of(helix.points()), (Codes{3, 3, 4, 4, 4, 6}));
}

TEST(MuonChain, AnElectronThatLeavesHandsTheEventOver) {
  TrackBuffer event;
  const ScriptedRand script(joined({two_steps, electron_ahead}), lowest_draw);
  EXPECT_EQ(muon_chain(straight, event), HandOver::yes);
  ASSERT_EQ(event.count, 40);
  EXPECT_EQ(event.last().code, 4);
}

TEST(LeptonChains, APrimaryThatLeavesEndsTheChain) {
  for (const DecayChain chain : {pion_chain, muon_chain}) {
    TrackBuffer event;
    const ScriptedRand script({}, lowest_draw);
    EXPECT_EQ(chain(straight, event, nullptr), HandOver::yes);
    EXPECT_EQ(test::codes_of(event.points()), Codes(40, 3));
  }
}

TEST(LeptonChains, AtTheLimitAnEventHasExactly350PointsAndNoEndPoint) {
  for (const DecayChain chain : {pion_chain, muon_chain}) {
    TrackBuffer event;
    const ScriptedRand script({}, lowest_draw);
    EXPECT_EQ(chain(spiral, event, nullptr), HandOver::yes);
    EXPECT_EQ(test::codes_of(event.points()), Codes(350, 3));
    EXPECT_EQ(script.draws(), 350U);
  }
}

TEST(LeptonChains, ADaughterSharesTheLimitWithItsParent) {
  TrackBuffer event;
  const ScriptedRand script(joined({three_steps, slow_electron}), lowest_draw);
  EXPECT_EQ(muon_chain(spiral, event), HandOver::yes);
  Codes codes{3, 3, 3, 4};
  codes.resize(350, 4);
  EXPECT_EQ(test::codes_of(event.points()), codes);
}

TEST(LeptonChains, ADecayPointThatFillsTheLastSlotLeavesNoRoomForTheDaughter) {
  std::vector<int> draws(348, lowest_draw);
  draws.push_back(highest_draw);
  TrackBuffer event;
  const ScriptedRand script(joined({draws, electron_ahead}));
  EXPECT_EQ(muon_chain(spiral, event), HandOver::yes);
  EXPECT_TRUE(script.played_out()) << "the daughter's momentum is drawn all the same";
  EXPECT_EQ(event.count, 350);
  EXPECT_EQ(event.last().code, 4);
}

TEST(LeptonChains, AMuonEventShowsTwoTracksAtMostAndAPionEventThree) {
  const ChamberValues slow{.B_field = 5.0F, .sides_cm = 500.0F, .kinetic_Mev = 0.05F};
  for (const auto* key : {"mu-", "mu+", "pi-", "pi+"}) {
    const std::int16_t last_track = key[0] == 'm' ? 4 : 5;
    std::int16_t highest = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
      const Codes codes = test::codes_of(test::seeded_event(key, slow, seed));
      ASSERT_TRUE(std::ranges::is_sorted(codes)) << "one track behind the other";
      ASSERT_GE(codes.front(), 3);
      highest = std::max(highest, codes.back());
    }
    EXPECT_EQ(highest, last_track) << key;
  }
}

}  // namespace
}  // namespace velquon
