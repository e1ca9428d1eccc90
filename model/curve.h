// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>

#include "model/arc.h"
#include "model/placed_points.h"

namespace velquon {

/// A circle laid over points that are set along a track, in the picture's units.
struct Curve {
  static constexpr std::size_t least_points = 3;

  PlacedPoints points;

  /// None while the points are too few or do not lie apart.
  [[nodiscard]] std::optional<Arc> arc() const { return arc_through(points.places()); }
};

}  // namespace velquon
