// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

namespace velquon {

/// The wall of the chamber, as the walks test it: a coordinate c is outside when |trunc(c)| is
/// greater than the bound, so 404.99 is inside a bound of 404 and 405 is not. NaN counts as inside.
class ChamberWall {
 public:
  /// \param bound limit of the truncated coordinates, drawing units
  explicit ChamberWall(double bound) : first_outside_(std::floor(bound) + 1.0) {}

  /// |trunc(c)| > bound holds exactly when |c| reaches the first whole number above the bound.
  [[nodiscard]] bool outside(double coordinate) const {
    return std::fabs(coordinate) >= first_outside_;
  }

 private:
  double first_outside_;
};

}  // namespace velquon
