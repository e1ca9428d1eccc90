// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/statistics.h"

#include <algorithm>
#include <cmath>

namespace velquon::test {

double kolmogorov_statistic(std::vector<double> sample,
                            const std::function<double(double)>& distribution) {
  std::ranges::sort(sample);
  const auto n = static_cast<double>(sample.size());
  double distance = 0.0;
  for (std::size_t i = 0; i < sample.size(); ++i) {
    const double expected = distribution(sample[i]);
    const auto below = static_cast<double>(i);
    distance = std::max({distance, expected - below / n, (below + 1.0) / n - expected});
  }
  return distance * std::sqrt(n);
}

double chi_square(std::span<const double> counted, std::span<const double> expected) {
  double sum = 0.0;
  for (std::size_t i = 0; i < counted.size(); ++i) {
    const double difference = counted[i] - expected[i];
    sum += difference * difference / expected[i];
  }
  return sum;
}

double critical_chi_square(double degrees_of_freedom) {
  const double spread = 2.0 / (9.0 * degrees_of_freedom);
  return degrees_of_freedom * std::pow(1.0 - spread + 3.7190 * std::sqrt(spread), 3.0);
}

double binomial_z(double count, double n, double p) {
  return (count - n * p) / std::sqrt(n * p * (1.0 - p));
}

}  // namespace velquon::test
