// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "engine/charged_track.h"
#include "tests/engine/track_limits.h"
#include "tests/support/case_name.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"
#include "tests/support/statistics.h"

// Tracks in a chamber without walls: their lengths follow the exponential law of decay.

namespace velquon {
namespace {

using test::moving;
using test::step;
using test::usual_scale;

constexpr double no_wall = 1e9;
constexpr std::int16_t limit = 5000;
constexpr int tracks = 20000;

std::vector<PlotPoint>& slots() {
  static std::vector<PlotPoint> room(limit);
  return room;
}

/// Counted points of a track that decays.
int steps_on_helix(ParticleState particle) {
  HelixPath path;
  double survival = 0.0;
  set_up_path(particle, path, survival, 0.6, usual_scale, step);
  std::int16_t count = 0;
  EXPECT_EQ(path_calculation(limit, count, slots(), path, 4, no_wall, survival), TrackEnd::decayed);
  return count - 1;
}

int steps_on_line(ParticleState particle) {
  std::int16_t count = 0;
  EXPECT_EQ(
      straight_path_calculation(particle, limit, count, 3, 4, slots(), no_wall, usual_scale, step),
      TrackEnd::decayed);
  return count - 1;
}

struct LawCase {
  const char* name;
  int (*steps)(ParticleState);
  double momentum_per_mass;
};

class DecayLength : public ::testing::TestWithParam<LawCase> {};

TEST_P(DecayLength, OfAPionIsExponentialAndDilatedByItsMomentum) {
  const test::FloatTraps traps;
  const LawCase& law = GetParam();
  std::srand(61);
  const ParticleState particle = moving(pion, {0.0, 139.6 * law.momentum_per_mass, 0.0});
  const double mean_steps = usual_scale * law.momentum_per_mass * 780.0 / step;

  // Twenty bins of equal width up to three mean lengths, the last for all that is longer. A track
  // of more than k steps has the probability exp(-k / mean).
  constexpr std::size_t bins = 20;
  const int width = std::max(1, static_cast<int>(3.0 * mean_steps / bins));
  std::vector<double> counted(bins);
  for (int i = 0; i < tracks; ++i) {
    const auto bin = static_cast<std::size_t>((law.steps(particle) - 1) / width);
    ++counted[std::min(bin, bins - 1)];
  }
  const auto longer_than = [&](std::size_t bin) {
    return std::exp(-static_cast<double>(bin) * width / mean_steps);
  };
  std::vector<double> expected(bins);
  for (std::size_t bin = 0; bin < bins; ++bin) {
    expected[bin] = tracks * (longer_than(bin) - (bin + 1 < bins ? longer_than(bin + 1) : 0.0));
  }
  EXPECT_LT(test::chi_square(counted, expected), test::critical_chi_square(bins - 1.0));
}

INSTANTIATE_TEST_SUITE_P(Walks, DecayLength,
                         ::testing::Values(LawCase{"SlowOnAHelix", steps_on_helix, 0.2},
                                           LawCase{"FastOnAHelix", steps_on_helix, 1.5},
                                           LawCase{"SlowOnALine", steps_on_line, 0.2},
                                           LawCase{"FastOnALine", steps_on_line, 1.5}),
                         test::case_name<LawCase>);

}  // namespace
}  // namespace velquon
