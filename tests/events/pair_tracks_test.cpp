// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "engine/random.h"
#include "events/neutral_pion_decay.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/scripted_rand.h"

namespace velquon {
namespace {

using test::highest_draw;
using test::lowest_draw;
using test::moving;
using test::position_of;
using test::ScriptedRand;
using Codes = std::vector<std::int16_t>;

/// A pair of a photon at a position, converted with these draws.
PhotonPair pair_at(const Vector3& momentum, const Vector3& position,
                   const std::vector<int>& draws = {test::draw_of(0.5), lowest_draw, lowest_draw}) {
  PhotonPair pair;
  pair.photon = moving(photon, momentum, position);
  const ScriptedRand script(draws);
  gamma_to_pair(pair.photon, pair.electron, pair.positron);
  return pair;
}

std::vector<PlotPoint> laid(PhotonPair pair, double field, std::int16_t limit = 350) {
  std::vector<PlotPoint> out(static_cast<std::size_t>(limit));
  std::int16_t count = -1;
  pair_paths(pair, limit, out, count, 400.0, field, 1.6, 20.0);
  out.resize(static_cast<std::size_t>(count));
  return out;
}

TEST(PairPaths, TheLeptonsExchangeTheirCodesBetweenHelixAndLine) {
  const PhotonPair pair = pair_at({0.0, 50.0, 0.0}, {});
  const std::vector<int> draws{lowest_draw, highest_draw, lowest_draw, highest_draw};
  {
    const ScriptedRand script(draws);
    EXPECT_EQ(test::codes_of(laid(pair, 0.0)), (Codes{4, 3, 4, 3, 6, 6}));
  }
  const ScriptedRand script(draws);
  EXPECT_EQ(test::codes_of(laid(pair, 1.0)), (Codes{3, 4, 3, 4, 4, 3}));
}

TEST(PairPaths, TheElectronIsTrackedFirst) {
  const PhotonPair pair = pair_at({0.0, 50.0, 0.0}, {});
  const ScriptedRand script({highest_draw, lowest_draw, lowest_draw, highest_draw});
  EXPECT_EQ(test::codes_of(laid(pair, 0.0)), (Codes{4, 3, 6, 3, 3, 6}));
}

TEST(PairPaths, WithoutAFieldTheTracksRunStraightAlongTheMomenta) {
  const test::FloatTraps traps;
  std::srand(121);
  for (int i = 0; i < 200; ++i) {
    PhotonPair pair;
    pair.photon = moving(photon, {my_rand(-50, 50), my_rand(-50, 50), my_rand(-50, 50)});
    if (pair.photon.energy < 20.0) {
      continue;  // a slow lepton's polar angle is taken from its energy and is a little off
    }
    gamma_to_pair(pair.photon, pair.electron, pair.positron);
    const auto points = laid(pair, 0.0);
    ASSERT_GE(points.size(), 4U);
    for (const PlotPoint& point : points) {
      const Vector3& momentum = point.code == 4 ? pair.electron.momentum : pair.positron.momentum;
      const Vector3 where = position_of(point);
      const double cosine =
          test::scalar(where, momentum) / (test::length(where) * test::length(momentum));
      EXPECT_GT(cosine, 0.99);
    }
  }
}

TEST(PairPaths, NegativeZeroIsNoFieldEither) {
  const PhotonPair pair = pair_at({0.0, 50.0, 0.0}, {});
  const ScriptedRand script({}, lowest_draw);
  EXPECT_EQ(laid(pair, -0.0), laid(pair, 0.0));
}

TEST(PairPaths, TheElectronTurnsLeftAndThePositronRightInAPositiveField) {
  for (const double field : {2.0, -2.0}) {
    std::vector<Vector3> electron_track;
    std::vector<Vector3> positron_track;
    const PhotonPair pair = pair_at({0.0, 50.0, 0.0}, {});
    const ScriptedRand script({}, lowest_draw);
    for (const PlotPoint& point : laid(pair, field)) {
      (point.code == 3 ? electron_track : positron_track).push_back(position_of(point));
    }
    const auto turn = [](const std::vector<Vector3>& track) {
      return test::cross(test::difference(track.at(1), track.at(0)),
                         test::difference(track.at(2), track.at(1)))[2];
    };
    EXPECT_GT(turn(electron_track) * field, 0.0);
    EXPECT_LT(turn(positron_track) * field, 0.0);
  }
}

TEST(PairPaths, NearAWallAPairCanShowOneTrack) {
  // A photon just above the threshold: its slow electron leaves backwards at 1.66 radians, while
  // the positron steps out of the chamber at once.
  const PhotonPair pair =
      pair_at({0.0, 2.0, 0.0}, {0.0, 390.0, 0.0}, {lowest_draw, highest_draw, lowest_draw});
  const ScriptedRand script({}, lowest_draw);
  const auto points = laid(pair, 0.0);
  ASSERT_FALSE(points.empty());
  for (const PlotPoint& point : points) {
    EXPECT_EQ(point.code, 4) << "the electron's straight track alone";
  }
}

TEST(PairPaths, AMergedPairFillsTheEventToItsLimit) {
  PhotonPair spirals = pair_at({0.0, 8.0, 0.0}, {});
  const ScriptedRand script({}, lowest_draw);
  std::vector<PlotPoint> out(350);
  std::int16_t count = 0;
  pair_paths(spirals, 350, out, count, 400.0, 10.0, 1.6, 20.0);
  EXPECT_EQ(count, 350) << "both spirals have 350 points of their own";
  for (std::size_t k = 0; k < 350; ++k) {
    EXPECT_EQ(out[k].code, k % 2 == 0 ? 3 : 4);
  }
}

TEST(TwoPairs, MergesFourTracksByAlternatingTheTwoPairs) {
  PhotonPair pair1 = pair_at({0.0, 50.0, 0.0}, {});
  PhotonPair pair2 = pair_at({0.0, 50.0, 0.0}, {100.0, 0.0, 0.0});
  std::vector<PlotPoint> out(350);
  std::int16_t count = 0;
  // Pair 1: one and two points; pair 2: one and one; each with its end point.
  const ScriptedRand script({highest_draw, lowest_draw, highest_draw, highest_draw, highest_draw});
  two_pairs(pair1, pair2, 350, out, count, 400.0, 0.0, 1.6, 20.0);
  EXPECT_TRUE(script.played_out());
  ASSERT_EQ(count, 9);
  // Pair 1 is 4 3 6 3 6, pair 2 is 4 3 6 6: the shorter list leads.
  EXPECT_EQ(test::codes_of(std::span(out).first(9)), (Codes{4, 4, 3, 3, 6, 6, 6, 3, 6}));
  EXPECT_GT(out[0].coords[0], 50.0) << "the first point is of the second pair";
  EXPECT_LT(out[1].coords[0], 50.0);
}

}  // namespace
}  // namespace velquon
