// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>

class QPainter;

namespace velquon {

/// The marks of a ruler for a chamber: numbers stand at multiples of `step_cm`, and between two of
/// them are ten parts.
struct RulerMarks {
  double step_cm = 0.0;
  int parts = 0;  ///< from 0 to the last mark within the chamber's side

  [[nodiscard]] double part_cm() const { return step_cm / parts_of_step; }
  static constexpr int parts_of_step = 10;
};

/// A step of 1, 2 or 5 times a power of ten of which the side holds from 4 to 10.
[[nodiscard]] RulerMarks ruler_marks(double side_cm);

/// Draws a ruler in centimetres of the chamber, its marks downwards.
/// \param start     where its 0 is
/// \param length    of the chamber's side on the page, points
void paint_ruler(QPainter& page, QPointF start, double length, double side_cm);

}  // namespace velquon
