// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/reading_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace velquon {

namespace {

/// Decimals that an error is told with.
int decimals_of(double error) {
  constexpr int most_decimals = 6;
  // What rounds to the next power of ten counts as one: 0.0996 is 0.10.
  const double exponent = std::floor(std::log10(error * 1.005));
  const double leading = error / std::pow(10.0, exponent);
  const int digits = leading < 1.95 ? 1 : 0;
  return std::clamp(digits - static_cast<int>(exponent), 0, most_decimals);
}

}  // namespace

std::string measured_text(double value, double error) {
  std::array<char, 800> text{};
  if (std::isfinite(error) && error > 0.0) {
    const int decimals = decimals_of(error);
    std::snprintf(text.data(), text.size(), "%.*f ± %.*f", decimals, value, decimals, error);
  } else {
    std::snprintf(text.data(), text.size(), "%.2f", value);
  }
  return text.data();
}

}  // namespace velquon
