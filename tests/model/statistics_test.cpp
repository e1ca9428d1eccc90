// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "model/histogram.h"

namespace velquon {

namespace {

using Values = std::vector<double>;
using Counts = std::vector<std::size_t>;

}  // namespace

TEST(StatisticsTest, MeanSpreadAndErrorAreThoseOfTheClosedForms) {
  // Σ = 40, squared deviations 9 + 1 + 1 + 1 + 0 + 0 + 4 + 16 = 32.
  const SampleSummary summary = summary_of(Values{2, 4, 4, 4, 5, 5, 7, 9});
  EXPECT_EQ(summary.count, 8U);
  EXPECT_DOUBLE_EQ(summary.mean, 5.0);
  EXPECT_DOUBLE_EQ(summary.spread, std::sqrt(32.0 / 7.0));
  EXPECT_DOUBLE_EQ(summary.mean_error, std::sqrt(32.0 / 7.0 / 8.0));
}

TEST(StatisticsTest, TooFewValuesHaveNoSpread) {
  EXPECT_TRUE(std::isnan(summary_of(Values{}).mean));
  EXPECT_EQ(summary_of(Values{3.5}).mean, 3.5);
  EXPECT_TRUE(std::isnan(summary_of(Values{3.5}).spread));
}

TEST(StatisticsTest, AlikeValuesHaveNoSpreadAtAll) {
  const SampleSummary summary = summary_of(Values(7, 0.1));
  EXPECT_EQ(summary.mean, 0.1);
  EXPECT_EQ(summary.spread, 0.0);
}

TEST(StatisticsTest, ALargeOffsetTakesNothingFromTheSpread) {
  EXPECT_NEAR(summary_of(Values{1e9 + 1.0, 1e9 + 2.0, 1e9 + 3.0}).spread, 1.0, 1e-6);
}

TEST(StatisticsTest, QuantilesLieBetweenTheNearestValues) {
  const Values sorted{1.0, 2.0, 4.0, 8.0};
  EXPECT_DOUBLE_EQ(quantile(sorted, 0.0), 1.0);
  EXPECT_DOUBLE_EQ(quantile(sorted, 0.25), 1.75);
  EXPECT_DOUBLE_EQ(quantile(sorted, 0.5), 3.0);
  EXPECT_DOUBLE_EQ(quantile(sorted, 1.0), 8.0);
}

TEST(HistogramTest, AGivenNumberOfBinsGoesFromTheSmallestToTheLargestValue) {
  const Histogram histogram = histogram_of(Values{0.0, 1.0, 2.5, 5.0, 10.0}, 4);
  EXPECT_EQ(histogram.low, 0.0);
  EXPECT_EQ(histogram.width, 2.5);
  // An edge belongs to the bin above it, the last one to the last bin.
  EXPECT_EQ(histogram.counts, (Counts{2, 1, 1, 1}));
}

TEST(HistogramTest, TheWidthIsThatOfFreedmanAndDiaconisRounded) {
  // 1 to 64: the middle half is 31.5 wide, 2 * 31.5 / 4 = 15.75, rounded up to 20.
  Values values;
  for (int i = 1; i <= 64; ++i) {
    values.push_back(i);
  }
  const Histogram histogram = automatic_histogram(values);
  EXPECT_EQ(histogram.width, 20.0);
  EXPECT_EQ(histogram.low, 0.0);
  EXPECT_EQ(histogram.counts, (Counts{19, 20, 20, 5}));
}

TEST(HistogramTest, WithoutAMiddleHalfTheWidthIsThatOfSturges) {
  // 15 alike and one off: 10 / (1 + log2 16) = 2.
  Values values(15, 0.0);
  values.push_back(10.0);
  const Histogram histogram = automatic_histogram(values);
  EXPECT_EQ(histogram.width, 2.0);
  EXPECT_EQ(histogram.counts, (Counts{15, 0, 0, 0, 0, 1}));
}

TEST(HistogramTest, CountsHaveABinCentredOnEach) {
  const Histogram histogram = histogram_of_counts(Values{1.0, 3.0, 3.0});
  EXPECT_EQ(histogram.low, 0.5);
  EXPECT_EQ(histogram.width, 1.0);
  EXPECT_EQ(histogram.counts, (Counts{1, 0, 2}));
}

TEST(HistogramTest, EveryValueIsCountedWhateverTheValuesAre) {
  const double huge = 1e308;
  const std::vector<Values> samples{{5.0},
                                    {5.0, 5.0, 5.0},
                                    {-huge, huge},
                                    {0.0, 5e-324},
                                    {1e300, 1e300 * (1.0 + 1e-15)},
                                    {0.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1e9},
                                    {-3.0, -1.0, 2.0, 8.0},
                                    {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0}};
  for (const Values& values : samples) {
    for (const Histogram& histogram :
         {automatic_histogram(values), histogram_of(values, 1), histogram_of(values, 7),
          histogram_of(values, most_bins), histogram_of_counts(values)}) {
      std::size_t counted = 0;
      for (const std::size_t count : histogram.counts) {
        counted += count;
      }
      EXPECT_EQ(counted, values.size()) << values.front();
      EXPECT_LE(histogram.counts.size(), static_cast<std::size_t>(most_bins));
      EXPECT_GT(histogram.width, 0.0);
    }
  }
}

TEST(HistogramTest, NoValuesHaveNoBins) {
  EXPECT_TRUE(automatic_histogram(Values{}).counts.empty());
  EXPECT_TRUE(histogram_of(Values{}, 5).counts.empty());
  EXPECT_TRUE(histogram_of_counts(Values{}).counts.empty());
}

}  // namespace velquon
