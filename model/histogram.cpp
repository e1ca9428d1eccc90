// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/histogram.h"

#include <algorithm>
#include <cmath>

#include "model/statistics.h"

namespace velquon {

namespace {

/// The least of 1, 2 and 5 times a power of ten that is not below a width.
double round_width(double width) {
  const double power = std::pow(10.0, std::floor(std::log10(width)));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (step * power >= width * (1.0 - 1e-9)) {
      return step * power;
    }
  }
  return 10.0 * power;
}

double automatic_width(std::span<const double> sorted) {
  const auto count = static_cast<double>(sorted.size());
  const double middle_half = quantile(sorted, 0.75) - quantile(sorted, 0.25);
  const double range = sorted.back() - sorted.front();
  const double by_middle_half = 2.0 * middle_half / std::cbrt(count);
  const double by_range = range / (1.0 + std::log2(count));
  // Rounded edges may need two bins more.
  const double least = range / (most_bins - 2.0);
  return std::max(by_middle_half > 0.0 ? by_middle_half : by_range, least);
}

/// A bin around values that are all alike, or whose range no number holds.
Histogram single_bin(double low, double high, std::size_t count) {
  const double width = high > low ? high - low : std::max(1.0, std::abs(low) * 0.1);
  return {.low = high > low ? low : low - width / 2.0, .width = width, .counts = {count}};
}

void count_values(Histogram& histogram, std::span<const double> values) {
  const auto last = static_cast<double>(histogram.counts.size() - 1);
  for (const double value : values) {
    const double bin = std::floor((value - histogram.low) / histogram.width);
    ++histogram.counts[static_cast<std::size_t>(std::clamp(bin, 0.0, last))];
  }
}

}  // namespace

Histogram automatic_histogram(std::span<const double> values) {
  if (values.empty()) {
    return {};
  }
  std::vector<double> sorted(values.begin(), values.end());
  std::ranges::sort(sorted);
  const double wanted = automatic_width(sorted);
  if (!(wanted > 0.0) || !std::isnormal(wanted) || !std::isfinite(round_width(wanted))) {
    return single_bin(sorted.front(), sorted.back(), sorted.size());
  }
  Histogram histogram;
  histogram.width = round_width(wanted);
  histogram.low = std::floor(sorted.front() / histogram.width) * histogram.width;
  const double bins = std::floor((sorted.back() - histogram.low) / histogram.width) + 1.0;
  if (!(bins <= most_bins) || !std::isfinite(histogram.low) ||
      histogram.low + histogram.width == histogram.low) {
    return single_bin(sorted.front(), sorted.back(), sorted.size());
  }
  histogram.counts.resize(static_cast<std::size_t>(bins));
  count_values(histogram, values);
  return histogram;
}

Histogram histogram_of(std::span<const double> values, int bins) {
  if (values.empty()) {
    return {};
  }
  const auto [low, high] = std::ranges::minmax(values);
  const double width = high / bins - low / bins;
  if (!std::isnormal(width) || low + width == low) {
    return single_bin(low, high, values.size());
  }
  Histogram histogram{.low = low, .width = width, .counts = {}};
  histogram.counts.resize(static_cast<std::size_t>(bins));
  count_values(histogram, values);
  return histogram;
}

Histogram histogram_of_counts(std::span<const double> values) {
  if (values.empty()) {
    return {};
  }
  const auto [low, high] = std::ranges::minmax(values);
  const double first = std::floor(low + 0.5);
  const double bins = std::floor(high + 0.5) - first + 1.0;
  if (!(bins <= most_bins)) {
    return automatic_histogram(values);
  }
  Histogram histogram{.low = first - 0.5, .width = 1.0, .counts = {}};
  histogram.counts.resize(static_cast<std::size_t>(bins));
  count_values(histogram, values);
  return histogram;
}

}  // namespace velquon
