// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <limits>
#include <span>

namespace velquon {

/// What is told of a number of values. NaN where there are too few: a mean needs one, a spread and
/// the mean's error two.
struct SampleSummary {
  std::size_t count = 0;
  double mean = std::numeric_limits<double>::quiet_NaN();
  /// Standard deviation, the square root of the sum of the squared deviations over n - 1.
  double spread = std::numeric_limits<double>::quiet_NaN();
  double mean_error = std::numeric_limits<double>::quiet_NaN();  ///< spread over the root of n
};

[[nodiscard]] SampleSummary summary_of(std::span<const double> values);

/// A value that a share of the values is below, between the two nearest in proportion (definition 7
/// of R. J. Hyndman and Y. Fan, "Sample quantiles in statistical packages", The American Statistician
/// 50 (1996) 361).
/// \param sorted values, rising, at least one
/// \param share  0 to 1
[[nodiscard]] double quantile(std::span<const double> sorted, double share);

}  // namespace velquon
