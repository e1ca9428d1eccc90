// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/charged_track.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/engine/track_limits.h"
#include "tests/support/case_name.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/scripted_rand.h"

// What the walk on a helix and the walk on a straight line have in common.

namespace velquon {
namespace {

using test::bound;
using test::highest_draw;
using test::lowest_draw;
using test::moving;
using test::ScriptedRand;
using test::step;
using test::usual_scale;

struct Track {
  std::vector<PlotPoint> slots = std::vector<PlotPoint>(360);
  std::int16_t count = 0;
  TrackEnd end = TrackEnd::stopped;

  [[nodiscard]] std::vector<std::int16_t> codes() const {
    return test::codes_of(std::span(slots).first(static_cast<std::size_t>(count)));
  }
};

/// Walks a particle, codes 3 and 4, behind `count` points that are there already.
using Walker = Track (*)(ParticleState particle, std::int16_t count);

Track walk_helix(ParticleState particle, std::int16_t count) {
  Track track;
  track.count = count;
  HelixPath path{.code = 3};
  double survival = 0.0;
  set_up_path(particle, path, survival, 9.0, usual_scale, step);
  path.code = 3;
  track.end = path_calculation(350, track.count,
                               std::span(track.slots).subspan(static_cast<std::size_t>(count)),
                               path, 4, bound, survival);
  return track;
}

Track walk_line(ParticleState particle, std::int16_t count) {
  Track track;
  track.count = count;
  track.end = straight_path_calculation(
      particle, 350, track.count, 3, 4,
      std::span(track.slots).subspan(static_cast<std::size_t>(count)), bound, usual_scale, step);
  return track;
}

struct WalkerCase {
  const char* name;
  Walker walk;
};

class ChargedTrack : public ::testing::TestWithParam<WalkerCase> {
 protected:
  /// A muon in the middle of the chamber; ten steps away from every wall on either walk.
  static ParticleState central_muon() { return moving(muon, {3.0, 10.0, 0.0}, {0.0, -100.0, 0.0}); }
  [[nodiscard]] static Track walk(const ParticleState& particle, std::int16_t count = 0) {
    return GetParam().walk(particle, count);
  }
};

INSTANTIATE_TEST_SUITE_P(Walks, ChargedTrack,
                         ::testing::Values(WalkerCase{"Helix", walk_helix},
                                           WalkerCase{"Line", walk_line}),
                         test::case_name<WalkerCase>);

TEST_P(ChargedTrack, WithTheCountAt350WritesNothingAndStops) {
  const ScriptedRand script({});
  for (const std::int16_t full : {std::int16_t{350}, std::int16_t{351}}) {
    const Track track = walk(central_muon(), full);
    EXPECT_EQ(track.end, TrackEnd::stopped);
    EXPECT_EQ(track.count, full);
    for (const PlotPoint& slot : track.slots) {
      EXPECT_EQ(slot, PlotPoint{});
    }
  }
}

TEST_P(ChargedTrack, ADecayLeavesOneMorePointThanItStepped) {
  const ScriptedRand script({lowest_draw, lowest_draw, highest_draw});
  const Track track = walk(central_muon());
  EXPECT_EQ(track.end, TrackEnd::decayed);
  EXPECT_EQ(track.codes(), (std::vector<std::int16_t>{3, 3, 3, 4}));
}

TEST_P(ChargedTrack, BeginsBehindThePointsThatAreThere) {
  const ScriptedRand script({lowest_draw, highest_draw});
  const Track track = walk(central_muon(), 5);
  EXPECT_EQ(track.count, 8);
  EXPECT_EQ(track.codes(), (std::vector<std::int16_t>{0, 0, 0, 0, 0, 3, 3, 4}));
}

TEST_P(ChargedTrack, ALimitReachedOnTheStepOfADecayWins) {
  const ScriptedRand script({lowest_draw, highest_draw});
  const Track track = walk(central_muon(), 348);
  EXPECT_EQ(track.end, TrackEnd::stopped);
  EXPECT_EQ(track.count, 350);
  EXPECT_EQ(track.slots[349].code, 3) << "no end point";
  EXPECT_TRUE(script.played_out()) << "the last counted point has its draw too";
}

TEST_P(ChargedTrack, TheEndPointTakesTheLastSlot) {
  const ScriptedRand script({highest_draw});
  const Track track = walk(central_muon(), 348);
  EXPECT_EQ(track.end, TrackEnd::decayed);
  EXPECT_EQ(track.count, 350);
  EXPECT_EQ(track.slots[348].code, 3);
  EXPECT_EQ(track.slots[349].code, 4);
}

TEST_P(ChargedTrack, WithoutAChanceToSurviveDecaysAtOnceWithoutADraw) {
  const test::FloatTraps traps;
  ParticleState particle = central_muon();
  particle.decay_length = 1e-4;  // exp(-10^6) is 0
  const ScriptedRand script({});
  const Track track = walk(particle);
  EXPECT_EQ(track.end, TrackEnd::decayed);
  EXPECT_EQ(track.codes(), (std::vector<std::int16_t>{4}));
  // One step from the start on either walk; the chord of an arc of 20 units is a little shorter.
  const auto where = test::difference(test::position_of(track.slots[0]), particle.position);
  EXPECT_LE(test::length(where), step + 1e-9);
  EXPECT_GT(test::length(where), 5.0);
}

TEST_P(ChargedTrack, ASurvivalThatIsNotANumberDecaysAtOnceToo) {
  ParticleState particle = central_muon();
  particle.decay_length = std::numeric_limits<double>::quiet_NaN();
  const ScriptedRand script({});
  const Track track = walk(particle);
  EXPECT_EQ(track.end, TrackEnd::decayed);
  EXPECT_EQ(track.codes(), (std::vector<std::int16_t>{4}));
}

TEST_P(ChargedTrack, WithoutAChanceToSurviveAndWithoutRoomItStops) {
  ParticleState particle = central_muon();
  particle.decay_length = 1e-4;
  const ScriptedRand script({});
  const Track track = walk(particle, 350);
  EXPECT_EQ(track.end, TrackEnd::stopped);
  EXPECT_EQ(track.count, 350);
}

TEST_P(ChargedTrack, AStableParticleRunsToTheWallOrTheLimit) {
  const test::FloatTraps traps;
  std::srand(51);
  ParticleState particle = central_muon();
  particle.decay_length = stable_decay_length;
  for (int i = 0; i < 200; ++i) {
    const Track track = walk(particle);
    ASSERT_EQ(track.end, TrackEnd::stopped);
    for (const std::int16_t code : track.codes()) {
      ASSERT_EQ(code, 3);
    }
  }
}

TEST_P(ChargedTrack, AStableParticleStillDecaysOnADrawAboveItsSurvival) {
  ParticleState particle = central_muon();
  particle.decay_length = stable_decay_length;
  const ScriptedRand script({lowest_draw, highest_draw});
  EXPECT_EQ(walk(particle).end, TrackEnd::decayed);
}

TEST(ChargedTrackLimit, ASpiralStopsAt350PointsWithoutAnEndPoint) {
  const ScriptedRand script({}, lowest_draw);
  const Track track = walk_helix(moving(muon, {0.0, 10.0, 0.0}), 0);
  EXPECT_EQ(track.end, TrackEnd::stopped);
  EXPECT_EQ(track.codes(), std::vector<std::int16_t>(350, 3));
  EXPECT_EQ(script.draws(), 350U);
}

}  // namespace
}  // namespace velquon
