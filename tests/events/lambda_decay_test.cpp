// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/lambda_decay.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "engine/kinematics.h"
#include "engine/neutral_track.h"
#include "engine/random.h"
#include "events/tracking.h"
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
using Codes = std::vector<std::int16_t>;

TEST(GetProtonAngle, DrawsWeightThenAngleAndRepeatsWhenTheWeightIsNotGreater) {
  // At angle 0 the weight is 1.7, which is not greater than the highest draw.
  const ScriptedRand script({highest_draw, lowest_draw, lowest_draw, draw_of(0.25)});
  EXPECT_NEAR(get_proton_angle(), 3.14159265 / 4, 1e-8);
  EXPECT_EQ(script.draws(), 4U);
}

struct Mode {
  const char* name;
  void (*decay)(const ParticleState&, ParticleState&, ParticleState&);
  const ParticleState& first;
  const ParticleState& second;
  double k;
  double first_energy;
};

const Mode modes[] = {{"charged", lambda_to_charged, proton, pion, 100.5, 943.6},
                      {"neutral", lambda_to_neutrals, neutron, pizero, 104.0, 945.2}};

TEST(LambdaDecay, PutsTheCosineOfTheAzimuthAlongTheFlightAndTheWeightedComponentAcross) {
  for (const Mode& mode : modes) {
    SCOPED_TRACE(mode.name);
    const ParticleState parent = moving(lambda, {0.0, 0.0, 300.0});
    ParticleState first = mode.first;
    ParticleState second = mode.second;
    const ScriptedRand script({lowest_draw, draw_of(1.0 / 3.0), draw_of(1.0 / 6.0)});
    mode.decay(parent, first, second);
    EXPECT_TRUE(script.played_out()) << "weight, angle, azimuth";
    // An angle and an azimuth of 60 degrees each.
    const double kz = mode.k * 0.5;
    const double across = mode.k * std::sqrt(0.75);
    const double t1 = across * std::sqrt(0.75);
    const double t2 = across * 0.5;
    const double along = (t2 * parent.energy + 300.0 * mode.first_energy) / 1115.6;
    EXPECT_NEAR(first.momentum[0], -kz, 1e-5);
    EXPECT_NEAR(first.momentum[1], -t1, 1e-5);
    EXPECT_NEAR(first.momentum[2], along, 1e-5);
    EXPECT_NEAR(second.momentum[0], kz, 1e-5);
    EXPECT_NEAR(second.momentum[1], t1, 1e-5);
    EXPECT_NEAR(second.momentum[2], 300.0 - along, 1e-5);
  }
}

TEST(LambdaDecay, ConservesMomentumAndSetsEnergiesInBothModes) {
  const test::FloatTraps traps;
  std::srand(101);
  for (const Mode& mode : modes) {
    SCOPED_TRACE(mode.name);
    for (int i = 0; i < 1000; ++i) {
      const ParticleState parent =
          moving(lambda, {my_rand(-900, 900), my_rand(-900, 900), my_rand(-900, 900)});
      ParticleState first = mode.first;
      ParticleState second = mode.second;
      mode.decay(parent, first, second);
      const Vector3 total = test::sum(first.momentum, second.momentum);
      EXPECT_LT(test::length(test::difference(total, parent.momentum)), 1e-9);
      for (const ParticleState& daughter : {first, second}) {
        EXPECT_NEAR(daughter.energy, std::hypot(daughter.mass, test::length(daughter.momentum)),
                    1e-9);
      }
      // The rounded rest-frame energies leave the sum of energies a little off.
      EXPECT_NEAR(first.energy + second.energy, parent.energy, 1.0);
    }
  }
}

// A chamber of 20 cm in which a Lambda of 500 MeV decays, after these draws, near the middle.
constexpr ChamberValues small_chamber{.B_field = 0.0F, .sides_cm = 20.0F, .kinetic_Mev = 500.0F};
const std::vector<int> to_the_middle{lowest_draw, lowest_draw, lowest_draw,
                                     lowest_draw, lowest_draw, highest_draw};

/// The draws of a charged chain in which each particle is counted once and then decays, but for
/// the pion, which is counted twice.
std::vector<int> charged_chain_draws(int branching) {
  std::vector<int> draws = to_the_middle;
  const int more[] = {branching,                                   //
                      lowest_draw,  draw_of(0.5),  draw_of(0.25),  // the decay angles
                      lowest_draw,  highest_draw,                  // pion
                      draw_of(0.5), draw_of(0.25),                 // muon's momentum
                      highest_draw,                                // muon
                      draw_of(0.5), draw_of(0.5),  lowest_draw,   draw_of(0.25),  // electron's
                      highest_draw,                                               // electron
                      highest_draw};                                              // proton
  draws.insert(draws.end(), std::begin(more), std::end(more));
  return draws;
}

TEST(LambdaChain, TracksThePionsChainThenTheProtonAndMergesThem) {
  for (const float field : {0.0F, 2.0F}) {
    ChamberValues values = small_chamber;
    values.B_field = field;
    TrackBuffer event;
    const ScriptedRand script(charged_chain_draws(lowest_draw));
    EXPECT_EQ(lambda_chain(values, event), HandOver::yes) << "whatever the electron does";
    EXPECT_TRUE(script.played_out());
    const std::int16_t proton_end = field == 0.0F ? 6 : 3;
    EXPECT_EQ(test::codes_of(event.points()), (Codes{3, 2, proton_end, 2, 4, 4, 5, 5, 5}));
  }
}

TEST(LambdaChain, ADrawOfExactlyTheBranchingIsStillCharged) {
  const int last_charged = draw_of(lambda_charged_branching);
  ASSERT_LE(last_charged / largest_draw, 0.642);
  ASSERT_GT((last_charged + 1) / largest_draw, 0.642);
  TrackBuffer event;
  {
    const ScriptedRand script(charged_chain_draws(last_charged));
    lambda_chain(small_chamber, event);
    EXPECT_EQ(event.count, 9);
  }
  event.count = 0;
  std::vector<int> neutral = to_the_middle;
  neutral.push_back(last_charged + 1);
  // The photons' steps of 40 cm leave this chamber at once.
  const ScriptedRand script(neutral, draw_of(0.3));
  lambda_chain(small_chamber, event);
  EXPECT_EQ(event.count, 0);
}

TEST(LambdaChain, ALambdaThatLeavesTheChamberIsAnEmptyEventThatIsHandedOver) {
  TrackBuffer event;
  const ScriptedRand script({}, lowest_draw);
  EXPECT_EQ(lambda_chain(small_chamber, event), HandOver::yes);
  EXPECT_EQ(event.count, 0);
}

/// The vertex of a seeded Lambda, if it decays in the chamber; the draws go on behind it.
bool seeded_vertex(const ChamberValues& values, unsigned seed, Vector3& vertex) {
  std::srand(seed);
  ParticleState the_lambda = primary_particle(lambda, static_cast<double>(values.kinetic_Mev));
  const bool decays = neutral_path(the_lambda, half_chamber_side, drawing_scale(values));
  vertex = the_lambda.position;
  return decays;
}

TEST(LambdaChain, ProtonAndPionStartWhereTheLambdasUnseenFlightEnded) {
  int seen = 0;
  for (unsigned seed = 1; seed <= 300; ++seed) {
    Vector3 vertex{};
    const bool decays = seeded_vertex(small_chamber, seed, vertex);
    const auto points = test::seeded_event("lambda", small_chamber, seed);
    if (!decays || std::fabs(vertex[1]) > 370.0 || points.empty()) {
      continue;
    }
    ++seen;
    // The first two points are the first ones of the two tracks, one step from the vertex.
    ASSERT_GE(points.size(), 2U);
    EXPECT_NE(points[0].code, points[1].code);
    for (std::size_t k = 0; k < 2; ++k) {
      const Vector3 where = test::difference(test::position_of(points[k]), vertex);
      EXPECT_NEAR(test::length(where), 20.0, 1e-9);
    }
  }
  EXPECT_GT(seen, 50);
}

TEST(LambdaChain, InAFieldProtonAndPionCurveInOppositeSenses) {
  ChamberValues values = small_chamber;
  values.B_field = 10.0F;
  int seen = 0;
  for (unsigned seed = 1; seed <= 300; ++seed) {
    std::vector<Vector3> tracks[2];
    for (const PlotPoint& point : test::seeded_event("lambda", values, seed)) {
      if (point.code == 2 || point.code == 3) {
        tracks[point.code - 2].push_back(test::position_of(point));
      }
    }
    if (tracks[0].size() < 3 || tracks[1].size() < 3) {
      continue;
    }
    ++seen;
    const auto turn = [](const std::vector<Vector3>& track) {
      return test::cross(test::difference(track[1], track[0]),
                         test::difference(track[2], track[1]))[2];
    };
    EXPECT_GT(turn(tracks[0]), 0.0) << "the negative pion turns to the left";
    EXPECT_LT(turn(tracks[1]), 0.0) << "the proton turns to the right";
  }
  EXPECT_GT(seen, 50);
}

TEST(LambdaChain, ItsModesShareTheDecaysWith0_642) {
  double decays = 0.0;
  double charged = 0.0;
  for (unsigned seed = 1; seed <= 30000; ++seed) {
    Vector3 vertex{};
    if (!seeded_vertex(small_chamber, seed, vertex) || std::fabs(vertex[1]) > 370.0) {
      continue;  // so near a wall a track may leave on its first step, unseen
    }
    ++decays;
    // This chamber is too small for a photon to convert: what shows is the charged mode.
    charged += test::seeded_event("lambda", small_chamber, seed).empty() ? 0.0 : 1.0;
  }
  EXPECT_GT(decays, 10000.0);
  EXPECT_LT(std::fabs(test::binomial_z(charged, decays, 0.642)), test::critical_z);
}

// In the chamber at start-up a Lambda of 10 GeV flies 25 units a step, far enough to see photons.
constexpr ChamberValues usual_chamber{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 1e4F};

/// Draws of a neutral decay whose pion flies along +y, its first photon forwards and its second one
/// backwards; `flight` are the Lambda's draws.
std::vector<int> neutral_draws(std::size_t flight) {
  std::vector<int> draws(flight - 1, lowest_draw);
  const int more[] = {highest_draw,                             // the Lambda decays
                      highest_draw,                             // in the neutral mode
                      lowest_draw,  draw_of(0.5), lowest_draw,  // angle 90 degrees, azimuth 0
                      highest_draw, lowest_draw};               // photons along the flight
  draws.insert(draws.end(), std::begin(more), std::end(more));
  return draws;
}

/// Steps of 64 units that a photon along +y survives inside, from the Lambda's n-th step.
std::size_t photon_steps_inside(std::size_t flight) {
  const double step = 0.2 * 1.6 * std::sqrt(1e8 + 2e4 * 1115.6) / 1115.6 * 7.89;
  const double vertex = -400.0 + static_cast<double>(flight) * step;
  return static_cast<std::size_t>((401.0 - vertex) / 64.0);
}

TEST(LambdaChain, TheSecondPhotonIsNotTriedWhenTheFirstEscapes) {
  constexpr std::size_t flight = 16;
  std::vector<int> draws = neutral_draws(flight);
  draws.insert(draws.end(), photon_steps_inside(flight) + 1, lowest_draw);
  TrackBuffer event;
  const ScriptedRand script(draws);  // a walk of the second photon would draw beyond it
  EXPECT_EQ(lambda_chain(usual_chamber, event), HandOver::yes);
  EXPECT_TRUE(script.played_out());
  EXPECT_EQ(event.count, 0);
}

TEST(LambdaChain, TheFirstPhotonAloneMakesOnePair) {
  constexpr std::size_t flight = 16;
  std::vector<int> draws = neutral_draws(flight);
  draws.push_back(highest_draw);                                        // converts
  draws.insert(draws.end(), {draw_of(0.5), lowest_draw, lowest_draw});  // its pair
  const auto backwards =
      static_cast<std::size_t>((401.0 - 400.0 + static_cast<double>(flight) * 24.9) / 64.0) + 1;
  draws.insert(draws.end(), backwards, lowest_draw);        // the second escapes
  draws.insert(draws.end(), {highest_draw, highest_draw});  // the leptons
  TrackBuffer event;
  const ScriptedRand script(draws);
  EXPECT_EQ(lambda_chain(usual_chamber, event), HandOver::yes);
  EXPECT_TRUE(script.played_out());
  EXPECT_EQ(test::codes_of(event.points()), (Codes{4, 3, 6, 6}));
}

}  // namespace
}  // namespace velquon
