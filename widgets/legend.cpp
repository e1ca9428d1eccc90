// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/legend.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace velquon {

namespace {

// Parts of the height of a row.
constexpr qreal chip_part = 0.8;
constexpr qreal colored_part = 0.5;
constexpr qreal gap_part = 0.35;
constexpr qreal space_part = 1.0;
constexpr qreal frame_part = 0.06;

enum class Detail : bool { symbols, names };

QFont symbol_font(const LegendStyle& style) {
  QFont font = style.font;
  font.setBold(true);
  return font;
}

/// Where the lines of a legend are, from its top left corner.
class Layout {
 public:
  Layout(const std::vector<LegendLine>& lines, const LegendStyle& style, qreal width, Detail detail)
      : detail_(detail),
        symbols_(symbol_font(style)),
        names_(style.font),
        row_(std::max(symbols_.height(), names_.height())) {
    QPointF place;
    for (const LegendLine& line : lines) {
      const qreal line_width = widthOf(line);
      if (place.x() > 0.0 && place.x() + line_width > width) {
        place = {0.0, place.y() + row_};
      }
      places_.push_back(place);
      size_ = size_.expandedTo({place.x() + line_width, place.y() + row_});
      place.rx() += line_width + row_ * space_part;
    }
  }

  [[nodiscard]] QSizeF size() const { return size_; }

  void paint(QPainter& painter, QPointF corner, const std::vector<LegendLine>& lines,
             const LegendStyle& style) const {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      paintLine(painter, corner + places_[i], lines[i], style);
    }
  }

 private:
  [[nodiscard]] bool showsNameOf(const LegendLine& line) const {
    return detail_ == Detail::names && !line.name.isEmpty();
  }
  [[nodiscard]] qreal widthOf(const LegendLine& line) const {
    qreal width = symbols_.horizontalAdvance(line.symbol);
    if (line.color) {
      width += row_ * (chip_part + gap_part);
    }
    if (showsNameOf(line)) {
      width += row_ * gap_part + names_.horizontalAdvance(line.name);
    }
    return width;
  }
  void paintLine(QPainter& painter, QPointF corner, const LegendLine& line,
                 const LegendStyle& style) const {
    if (line.color) {
      paintChip(painter, corner, *line.color, style);
      corner.rx() += row_ * (chip_part + gap_part);
    }
    const qreal base = corner.y() + (row_ + symbols_.ascent() - symbols_.descent()) / 2.0;
    painter.setPen(style.text);
    painter.setFont(symbol_font(style));
    painter.drawText(QPointF(corner.x(), base), line.symbol);
    if (showsNameOf(line)) {
      corner.rx() += symbols_.horizontalAdvance(line.symbol) + row_ * gap_part;
      painter.setFont(style.font);
      painter.drawText(QPointF(corner.x(), base), line.name);
    }
  }
  /// The colour as in the picture: on black, which a frame tells from any ground.
  void paintChip(QPainter& painter, QPointF corner, const QColor& color,
                 const LegendStyle& style) const {
    const auto square = [&](qreal part) {
      const qreal side = row_ * part;
      const QPointF middle = corner + QPointF(row_ * chip_part, row_) / 2.0;
      return QRectF(middle - QPointF(side, side) / 2.0, QSizeF(side, side));
    };
    painter.fillRect(square(chip_part), style.text);
    painter.fillRect(square(chip_part - 2.0 * frame_part), Qt::black);
    painter.fillRect(square(colored_part), color);
  }

  Detail detail_;
  QFontMetricsF symbols_;
  QFontMetricsF names_;
  qreal row_;
  std::vector<QPointF> places_;
  QSizeF size_{0.0, 0.0};
};

}  // namespace

QSizeF legend_size(const std::vector<LegendLine>& lines, const LegendStyle& style, qreal width) {
  return Layout(lines, style, width, Detail::names).size();
}

void paint_legend(QPainter& painter, const QRectF& place, const std::vector<LegendLine>& lines,
                  const LegendStyle& style) {
  Layout layout(lines, style, place.width(), Detail::names);
  const bool fits =
      layout.size().width() <= place.width() && layout.size().height() <= place.height();
  if (!fits) {
    layout = Layout(lines, style, place.width(), Detail::symbols);
  }
  painter.save();
  layout.paint(painter, place.topLeft(), lines, style);
  painter.restore();
}

}  // namespace velquon
