// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/decay_fit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

#include "model/measured_sample.h"
#include "model/statistics.h"

namespace velquon {

namespace {

using Lengths = std::vector<LengthObservation>;

double uniform() {
  return (std::rand() + 0.5) / (RAND_MAX + 1.0);
}

/// Flights of a mean length in chambers of other lengths each.
Lengths flights(int count, double mean, double shortest_chamber, double longest_chamber) {
  std::srand(7);
  Lengths lengths;
  for (int i = 0; i < count; ++i) {
    const double wall = shortest_chamber + (longest_chamber - shortest_chamber) * uniform();
    const double flight = -mean * std::log(uniform());
    lengths.push_back(
        {.length = std::min(flight, wall), .decayed = flight < wall, .longest = wall});
  }
  return lengths;
}

Lengths decays_of(const Lengths& all) {
  Lengths decays;
  for (const LengthObservation& observation : all) {
    if (observation.decayed) {
      decays.push_back(observation);
    }
  }
  return decays;
}

/// The logarithm of the likelihood of a truncated sample, written down anew.
double log_likelihood(const Lengths& lengths, double mean) {
  double sum = 0.0;
  for (const LengthObservation& observation : lengths) {
    sum += -std::log(mean) - observation.length / mean -
           std::log1p(-std::exp(-observation.longest / mean));
  }
  return sum;
}

}  // namespace

TEST(DecayFitTest, WithoutACutTheLengthIsTheMean) {
  const auto fit = fit_decay(Lengths{{10.0}, {20.0}, {30.0}, {40.0}});
  ASSERT_TRUE(fit);
  EXPECT_EQ(fit->cut, ChamberCut::none);
  EXPECT_DOUBLE_EQ(fit->length, 25.0);
  EXPECT_DOUBLE_EQ(fit->error, 12.5);
  EXPECT_EQ(fit->decays, 4U);
}

TEST(DecayFitTest, TracksThatLeftCountWithTheirLengths) {
  const auto fit = fit_decay(Lengths{{10.0}, {20.0}, {50.0, false}, {40.0, false}});
  ASSERT_TRUE(fit);
  EXPECT_EQ(fit->cut, ChamberCut::censored);
  EXPECT_DOUBLE_EQ(fit->length, 120.0 / 2.0);
  EXPECT_DOUBLE_EQ(fit->error, 60.0 / std::sqrt(2.0));
  EXPECT_EQ(fit->decays, 2U);
  EXPECT_EQ(fit->left, 2U);
}

TEST(DecayFitTest, ATruncatedSampleHasTheLengthAndErrorOfItsLikelihood) {
  const Lengths lengths{{10.0, true, 100.0},
                        {30.0, true, 80.0},
                        {5.0, true, 60.0},
                        {45.0, true, 90.0},
                        {20.0, true, 100.0}};
  const auto fit = fit_decay(lengths);
  ASSERT_TRUE(fit);
  EXPECT_EQ(fit->cut, ChamberCut::truncated);
  const double best = log_likelihood(lengths, fit->length);
  const double step = fit->length * 1e-3;
  const double below = log_likelihood(lengths, fit->length - step);
  const double above = log_likelihood(lengths, fit->length + step);
  EXPECT_GT(best, below);
  EXPECT_GT(best, above);
  EXPECT_NEAR((above - below) / (2.0 * step), 0.0, 1e-6);
  const double curvature = (above - 2.0 * best + below) / (step * step);
  EXPECT_NEAR(fit->error, 1.0 / std::sqrt(-curvature), 1e-3 * fit->error);
  EXPECT_GT(fit->length, 22.0);
}

TEST(DecayFitTest, BothWaysFindTheLengthThatTheFlightsWereMadeWith) {
  constexpr double mean = 50.0;
  const Lengths all = flights(20'000, mean, 40.0, 120.0);
  const auto censored = fit_decay(all);
  const auto truncated = fit_decay(decays_of(all));
  ASSERT_TRUE(censored && truncated);
  EXPECT_NEAR(censored->length, mean, 4.0 * censored->error);
  EXPECT_LT(censored->error, 0.5);
  EXPECT_NEAR(truncated->length, mean, 4.0 * truncated->error);
  EXPECT_LT(truncated->error, 2.5);
  // The plain mean of the decays is far off.
  Lengths plain = decays_of(all);
  for (LengthObservation& observation : plain) {
    observation.longest = std::numeric_limits<double>::infinity();
  }
  EXPECT_LT(fit_decay(plain)->length, 0.7 * mean);
  // Without those that left, their number follows from the fit.
  EXPECT_NEAR(truncated->tracks, 20'000.0, 1'000.0);
}

TEST(DecayFitTest, ErrorsAreTheSpreadOfManyFits) {
  constexpr double mean = 50.0;
  std::vector<double> pulls;
  for (int sample = 0; sample < 300; ++sample) {
    Lengths lengths;
    std::srand(static_cast<unsigned>(1000 + sample));
    while (lengths.size() < 400) {
      const double flight = -mean * std::log(uniform());
      if (flight < 150.0) {
        lengths.push_back({flight, true, 150.0});
      }
    }
    const auto fit = fit_decay(lengths);
    ASSERT_TRUE(fit);
    pulls.push_back((fit->length - mean) / fit->error);
  }
  const SampleSummary summary = summary_of(pulls);
  EXPECT_NEAR(summary.mean, 0.0, 0.25);
  EXPECT_NEAR(summary.spread, 1.0, 0.15);
}

TEST(DecayFitTest, WhatNoExponentialFitsIsRefused) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(fit_decay(Lengths{}));
  EXPECT_FALSE(fit_decay(Lengths{{10.0, false}}));
  EXPECT_FALSE(fit_decay(Lengths{{10.0}, {-1.0}}));
  EXPECT_FALSE(fit_decay(Lengths{{infinity}}));
  EXPECT_FALSE(fit_decay(Lengths{{0.0}, {0.0}}));
  EXPECT_FALSE(fit_decay(Lengths{{10.0, true, 5.0}}));
  // Half way to the wall in the mean: as many far as near.
  EXPECT_FALSE(fit_decay(Lengths{{60.0, true, 100.0}, {40.0, true, 100.0}}));
  EXPECT_FALSE(fit_decay(Lengths{{1e308}, {1e308}}));
}

TEST(DecayFitTest, TheCurveHoldsTheTracksThatDecayInside) {
  const auto fit = fit_decay(Lengths{{10.0}, {20.0}, {50.0, false}, {40.0, false}});
  double sum = 0.0;
  for (int i = 0; i < 10'000; ++i) {
    sum += expected_density(*fit, 0.1 * (i + 0.5)) * 0.1;
  }
  EXPECT_NEAR(sum, 4.0, 1e-3);
}

TEST(GaussianFitTest, IsTheMeanAndTheRootOfTheMeanSquare) {
  const auto fit = fit_gaussian(std::vector<double>{2, 4, 4, 4, 5, 5, 7, 9});
  ASSERT_TRUE(fit);
  EXPECT_DOUBLE_EQ(fit->mean, 5.0);
  EXPECT_DOUBLE_EQ(fit->sigma, 2.0);
  EXPECT_DOUBLE_EQ(fit->mean_error, 2.0 / std::sqrt(8.0));
  EXPECT_DOUBLE_EQ(fit->sigma_error, 0.5);
  double sum = 0.0;
  for (int i = 0; i < 4000; ++i) {
    sum += expected_density(*fit, -15.0 + 0.01 * (i + 0.5)) * 0.01;
  }
  EXPECT_NEAR(sum, 8.0, 1e-6);
}

TEST(GaussianFitTest, NeedsTwoDifferentValues) {
  EXPECT_FALSE(fit_gaussian(std::vector<double>{}));
  EXPECT_FALSE(fit_gaussian(std::vector<double>{1.0}));
  EXPECT_FALSE(fit_gaussian(std::vector<double>{1.0, 1.0}));
}

TEST(MeasuredSampleTest, TracksThatLeftAreNotAmongTheValuesButAmongTheLengths) {
  MeasurementTable rows(4);
  rows[0].quantity = Quantity::decay_length;
  rows[0].value = 10.0;
  rows[0].ending = Ending::decayed;
  rows[0].longest_cm = 500.0;
  rows[1].quantity = Quantity::momentum;
  rows[2].quantity = Quantity::decay_length;
  rows[2].value = 70.0;
  rows[2].ending = Ending::left;
  rows[3].quantity = Quantity::decay_length;
  rows[3].value = 30.0;
  rows[3].longest_cm = 20.0;
  EXPECT_EQ(quantities_in(rows), (std::vector{Quantity::decay_length, Quantity::momentum}));
  const MeasuredSample sample = sample_of(rows, Quantity::decay_length);
  EXPECT_EQ(sample.values, (std::vector<double>{10.0, 30.0}));
  EXPECT_EQ(sample.left, 1U);
  ASSERT_EQ(sample.lengths.size(), 3U);
  EXPECT_EQ(sample.lengths[0].longest, 500.0);
  EXPECT_TRUE(sample.lengths[0].decayed);
  EXPECT_FALSE(sample.lengths[1].decayed);
  EXPECT_TRUE(sample.lengths[2].decayed);
  EXPECT_TRUE(std::isinf(sample.lengths[2].longest));
}

}  // namespace velquon
