// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>

#include "model/projector.h"

class QPainter;

namespace velquon {

/// A round length of the chamber and how long it is in a picture of it.
struct ScaleBar {
  double length_cm = 0.0;  ///< 1, 2 or 5 times a power of ten
  double length = 0.0;     ///< units of the picture
};

/// The longest bar that is no longer than `most`; of no length for a picture without a scale.
/// \param unit_cm cm of the chamber per unit of the picture
[[nodiscard]] ScaleBar scale_bar(double unit_cm, double most);

/// Room that `paint_projection_foot` takes downwards, points.
inline constexpr double projection_foot_height = 54.0;

/// Writes below a projection what it shows: a bar with its length in cm of the chamber, plane and
/// zoom, and the length of a tape that is laid out.
/// \param page  a point as its unit, y upwards
/// \param place upper left corner
void paint_projection_foot(QPainter& page, QPointF place, const Projector& projector);

}  // namespace velquon
