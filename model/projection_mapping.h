// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

#include "engine/event_record.h"
#include "model/place.h"

namespace velquon {

/// The plane onto which the points are projected.
enum class ProjectionPlane : std::uint8_t { xy = 1, xz = 2, yz = 3 };

/// A point's place on a plane, drawing units, across and upwards. The xy plane shows y across and
/// -x upwards, as the resting view of the chamber does.
[[nodiscard]] Place project(const PlotPoint& point, ProjectionPlane plane);

/// Half the side of a point's square, view units.
inline constexpr double half_square = 0.5;

/// The outline of the chamber on a plane, view units.
struct ProjectedFrame {
  Place lower_left;
  Place upper_right;
};

/// The way from a plane's drawing units to view units.
struct ProjectionMapping {
  double zoom = 1.0;
  double offset_across = 0.0;
  /// Divided by the zoom before use, which the offset across is not: the grab tool's ratios follow.
  double offset_up = 0.0;
  double view_height = 0.0;  ///< view units

  [[nodiscard]] Place map(Place place) const;
  [[nodiscard]] ProjectedFrame frame() const;
};

}  // namespace velquon
