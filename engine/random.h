// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>
#include <cstdlib>

namespace velquon {

/// The largest result of `rand` in the GNU C library, 2^31 - 1; a draw is divided by it, so that 0
/// and 1 both occur.
inline constexpr double largest_draw = 2147483647.0;

/// One draw of the process-wide generator, in the closed interval 0 to 1.
[[nodiscard]] inline double rand_one() {
  return std::abs(std::rand()) / largest_draw;
}

/// A draw spread over a width of |a - b| upwards from a: a to b when a is the smaller, else a to
/// 2a - b.
[[nodiscard]] inline double my_rand(double a, double b) {
  return a + std::fabs(a - b) * std::fabs(std::rand() / largest_draw);
}

}  // namespace velquon
