#pragma once

#include <QPointF>
#include <QRectF>
#include <cstdint>

#include "engine/event_record.h"

namespace velquon {

/// The plane onto which the points are projected.
enum class ProjectionPlane : std::uint8_t { xy = 1, xz = 2, yz = 3 };

/// A point's place on a plane, drawing units, across and upwards. The xy plane shows y across and
/// -x upwards, as the resting view of the chamber does.
[[nodiscard]] QPointF project(const PlotPoint& point, ProjectionPlane plane);

/// The way from a plane's drawing units to view units.
struct ProjectionMapping {
  double zoom = 1.0;
  double offset_across = 0.0;
  /// Divided by the zoom before use, which the offset across is not: the grab tool's ratios follow.
  double offset_up = 0.0;
  double view_height = 0.0;  ///< view units

  [[nodiscard]] QPointF map(QPointF place) const;
  /// The outline of the chamber.
  [[nodiscard]] QRectF frame() const;
};

}  // namespace velquon
