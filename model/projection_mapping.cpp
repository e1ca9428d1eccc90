// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/projection_mapping.h"

#include "engine/chamber_values.h"

namespace velquon {

Place project(const PlotPoint& point, ProjectionPlane plane) {
  const auto& [x, y, z, w] = point.coords;
  switch (plane) {
    case ProjectionPlane::xy:
      return {y, -x};
    case ProjectionPlane::xz:
      return {x, z};
    case ProjectionPlane::yz:
      return {y, z};
  }
  return {};
}

Place ProjectionMapping::map(Place place) const {
  const double s = 0.5 * zoom;
  const double A = offset_up / zoom;
  return {s * (place.x + offset_across), view_height - s * (A - place.y)};
}

ProjectedFrame ProjectionMapping::frame() const {
  constexpr double half = CHAMBER_SIDE / 2.0;
  return {map({-half, -half}), map({half, half})};
}

}  // namespace velquon
