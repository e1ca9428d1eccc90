// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/opening_angle.h"

#include <cmath>
#include <numbers>

namespace velquon {

std::optional<Estimate> opening_angle(Place vertex, Place first, Place second, double spread) {
  constexpr double degrees = 180.0 / std::numbers::pi;
  const Place a = first - vertex;
  const Place b = second - vertex;
  const double a_length = std::hypot(a.x, a.y);
  const double b_length = std::hypot(b.x, b.y);
  if (!(a_length > 0.0) || !(b_length > 0.0)) {
    return std::nullopt;
  }
  const double angle = std::atan2(std::fabs(a.x * b.y - a.y * b.x), a.x * b.x + a.y * b.y);
  // The end of an arm turns it by its way across the arm over the arm's length, and the vertex
  // turns both arms.
  const double by_a = 1.0 / a_length;
  const double by_b = 1.0 / b_length;
  const double by_ends = by_a * by_a + by_b * by_b;
  const double by_vertex = by_ends - 2.0 * by_a * by_b * std::cos(angle);
  return Estimate{angle * degrees, spread * std::sqrt(by_ends + by_vertex) * degrees};
}

}  // namespace velquon
