// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QString>
#include <vector>

#include "widgets/legend.h"

class QPainter;

namespace velquon {

/// What stands below a picture in a file of it.
struct PictureCaption {
  QString values;                  ///< line of the event's values, or empty
  std::vector<LegendLine> legend;  ///< empty for none
};

/// Height of a caption, view units; 0 of an empty one.
/// \param width of the caption, view units
[[nodiscard]] int caption_height(const PictureCaption& caption, int width);

/// Draws a caption in black on white.
/// \param page  a view unit as its unit, y downwards
/// \param place its upper left corner
/// \param width of the caption, view units
void paint_caption(QPainter& page, QPointF place, int width, const PictureCaption& caption);

}  // namespace velquon
