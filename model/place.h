// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>
#include <numbers>

namespace velquon {

/// A place on a plane, x across and y upwards.
struct Place {
  double x = 0.0;
  double y = 0.0;

  friend constexpr Place operator+(Place a, Place b) { return {a.x + b.x, a.y + b.y}; }
  friend constexpr Place operator-(Place a, Place b) { return {a.x - b.x, a.y - b.y}; }
  friend constexpr bool operator==(Place a, Place b) = default;
};

/// The place of a point of any kind that has `x()` and `y()`.
template <typename Point>
[[nodiscard]] Place place_of(const Point& point) {
  return {point.x(), point.y()};
}

/// Radians of a whole turn.
inline constexpr double whole_turn = 2.0 * std::numbers::pi;

/// \return the direction from one place to another, counter-clockwise from the x axis, -pi to pi
[[nodiscard]] inline double direction(Place from, Place to) {
  return std::atan2(to.y - from.y, to.x - from.x);
}

}  // namespace velquon
