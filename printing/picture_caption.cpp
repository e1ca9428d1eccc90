// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/picture_caption.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace velquon {

namespace {

constexpr double padding = 8.0;
constexpr double line_gap = 4.0;
constexpr int letter_size = 13;

LegendStyle caption_style() {
  QFont font;
  font.setPixelSize(letter_size);
  // Letters in gray, for any screen.
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  return {.font = font, .text = Qt::black};
}

double values_line_height() {
  return QFontMetricsF(caption_style().font).height();
}

/// What the line of values takes, with the gap to the legend below it.
double values_height(const PictureCaption& caption) {
  if (caption.values.isEmpty()) {
    return 0.0;
  }
  return values_line_height() + (caption.legend.empty() ? 0.0 : line_gap);
}

QSizeF legend_size_of(const PictureCaption& caption, int width) {
  return legend_size(caption.legend, caption_style(), width - 2.0 * padding);
}

}  // namespace

int caption_height(const PictureCaption& caption, int width) {
  const double lines = values_height(caption) + legend_size_of(caption, width).height();
  return lines > 0.0 ? static_cast<int>(std::ceil(lines + 2.0 * padding)) : 0;
}

void paint_caption(QPainter& page, QPointF place, int width, const PictureCaption& caption) {
  const int height = caption_height(caption, width);
  if (height == 0) {
    return;
  }
  const LegendStyle style = caption_style();
  const QPointF corner = place + QPointF(padding, padding);
  page.save();
  page.fillRect(QRectF(place, QSizeF(width, height)), Qt::white);
  page.setFont(style.font);
  page.setPen(style.text);
  page.drawText(corner + QPointF(0.0, QFontMetricsF(style.font).ascent()), caption.values);
  paint_legend(page,
               QRectF(corner + QPointF(0.0, values_height(caption)),
                      legend_size_of(caption, width).expandedTo({width - 2.0 * padding, 0.0})),
               caption.legend, style);
  page.restore();
}

}  // namespace velquon
