// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "events/lepton_decays.h"
#include "tests/support/event_making.h"
#include "tests/support/statistics.h"

// The joint law of the electron's energy fraction and its cosine in the muon's rest frame: the
// weight of the spectrum, cut at 1.

namespace velquon {
namespace {

constexpr int electrons = 100000;
constexpr std::size_t cells = 10;  // along each axis

using Table = std::vector<double>;

std::size_t cell_of(double value, double low, double width) {
  const auto cell = static_cast<std::size_t>(std::max(0.0, (value - low) / width));
  return std::min(cell, cells - 1);
}

Table counted_electrons() {
  std::srand(81);
  const ParticleState parent = test::moving(muon, {0.0, 35.0, 20.0});
  Table table(cells * cells);
  for (int i = 0; i < electrons; ++i) {
    ParticleState daughter = electron;
    mu_to_e(parent, daughter);
    const auto momentum = test::boosted_back(parent, daughter);
    const double x = momentum.size() / 52.85;
    const double c = momentum.along / momentum.size();
    ++table[cell_of(x, 0.0, 1.0 / cells) * cells + cell_of(c, -1.0, 2.0 / cells)];
  }
  return table;
}

/// The spectrum's own formula, written out once more.
double weight(double x, double c) {
  return x * x * (3.0 - 2.0 * x + (1.0 - 2.0 * x) * c);
}

/// Expected counts by the midpoint rule; the weight counts for at most `most`.
Table expected_electrons(double most) {
  constexpr std::size_t fine = 40 * cells;
  Table table(cells * cells);
  double total = 0.0;
  for (std::size_t i = 0; i < fine; ++i) {
    for (std::size_t k = 0; k < fine; ++k) {
      const double x = (static_cast<double>(i) + 0.5) / fine;
      const double c = 2.0 * (static_cast<double>(k) + 0.5) / fine - 1.0;
      const double share = std::min(weight(x, c), most);
      table[i / 40 * cells + k / 40] += share;
      total += share;
    }
  }
  for (double& count : table) {
    count *= electrons / total;
  }
  return table;
}

/// Pearson's statistic is only near its law where the expectation is not small: cells of less than
/// 10 are put together.
struct Comparison {
  double statistic;
  double critical;
};
Comparison compare(const Table& counted, const Table& expected) {
  Table counts;
  Table expectations;
  double few = 0.0;
  double few_expected = 0.0;
  for (std::size_t i = 0; i < counted.size(); ++i) {
    if (expected[i] < 10.0) {
      few += counted[i];
      few_expected += expected[i];
    } else {
      counts.push_back(counted[i]);
      expectations.push_back(expected[i]);
    }
  }
  if (few_expected > 0.0) {
    counts.push_back(few);
    expectations.push_back(few_expected);
  }
  return {test::chi_square(counts, expectations),
          test::critical_chi_square(static_cast<double>(counts.size()) - 1.0)};
}

TEST(ElectronSpectrum, FollowsTheWeightCutAt1) {
  const auto [statistic, critical] = compare(counted_electrons(), expected_electrons(1.0));
  EXPECT_LT(statistic, critical);
}

TEST(ElectronSpectrum, DoesNotFollowTheWeightBeyond1) {
  const auto [statistic, critical] = compare(counted_electrons(), expected_electrons(2.0));
  EXPECT_GT(statistic, critical) << "the test above must be able to tell the two apart";
}

}  // namespace
}  // namespace velquon
