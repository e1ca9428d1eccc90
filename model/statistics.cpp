// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/statistics.h"

#include <algorithm>
#include <cmath>

namespace velquon {

SampleSummary summary_of(std::span<const double> values) {
  SampleSummary summary{.count = values.size()};
  if (values.empty()) {
    return summary;
  }
  // B. P. Welford, "Note on a method for calculating corrected sums of squares and products",
  // Technometrics 4 (1962) 419: values that are all alike have no spread, not one of rounding.
  double mean = 0.0;
  double squares = 0.0;
  double count = 0.0;
  for (const double value : values) {
    count += 1.0;
    const double deviation = value - mean;
    mean += deviation / count;
    squares += deviation * (value - mean);
  }
  summary.mean = mean;
  if (values.size() > 1) {
    summary.spread = std::sqrt(squares / (count - 1.0));
    summary.mean_error = summary.spread / std::sqrt(count);
  }
  return summary;
}

double quantile(std::span<const double> sorted, double share) {
  const double place = share * static_cast<double>(sorted.size() - 1);
  const auto below = static_cast<std::size_t>(place);
  const std::size_t above = std::min(below + 1, sorted.size() - 1);
  const double part = place - static_cast<double>(below);
  return sorted[below] * (1.0 - part) + sorted[above] * part;
}

}  // namespace velquon
