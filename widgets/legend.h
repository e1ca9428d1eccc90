// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <optional>
#include <vector>

class QPainter;

namespace velquon {

/// One line of a legend. The symbol stands beside the colour, so that nothing is told by the colour
/// alone.
struct LegendLine {
  std::optional<QColor> color;  ///< as it is drawn on black; none for what has no colour
  QString symbol;
  QString name;
};

/// How a legend is drawn. All its measures follow from the height of the letters.
struct LegendStyle {
  QFont font;   ///< its size in pixels where the legend is not drawn on a widget
  QColor text;  ///< of letters and frames, to be told from the ground that the legend is drawn on
};

/// The size of a legend whose lines stand side by side, as many in a row as there is room for.
/// \param width of the room for it; a line that is wider alone makes the legend wider
[[nodiscard]] QSizeF legend_size(const std::vector<LegendLine>& lines, const LegendStyle& style,
                                 qreal width);

/// Draws a legend from the top left corner of a place: each line with its colour on a black chip, its
/// symbol and its name, or without the names where the place is too small for them. Draws no ground.
void paint_legend(QPainter& painter, const QRectF& place, const std::vector<LegendLine>& lines,
                  const LegendStyle& style);

}  // namespace velquon
