// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/projection_drawing.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPen>
#include <QSvgGenerator>

#include "printing/page.h"
#include "printing/projection_foot.h"
#include "printing/projection_page.h"

namespace velquon {

namespace {

constexpr int projection_letter_size = 12;

// Left edges of what stands below the picture, at that of the chamber's outline at rest.
constexpr double foot_left = 35.0;
constexpr int caption_left = 27;  // it has a margin

/// What stands below the picture; its height is whole.
int foot_height() {
  return qRound(projection_foot_height);
}

int caption_width(const ProjectionDrawing& drawing) {
  return drawing.picture.width() - caption_left;
}

/// Size in view units.
QSize units_of(const ProjectionDrawing& drawing) {
  return drawing.picture +
         QSize(0, foot_height() + caption_height(drawing.caption, caption_width(drawing)));
}

/// \param painter a view unit as its unit, y downwards
void paint(QPainter& painter, const ProjectionDrawing& drawing) {
  const QSize size = units_of(drawing);
  const QSizeF picture(drawing.picture);
  const QPointF top_left = projection_top_left();
  QFont font = painter.font();
  font.setPixelSize(projection_letter_size);
  painter.setFont(font);
  painter.setPen(page_pen());
  painter.fillRect(QRectF(QPointF(0.0, 0.0), size), Qt::white);
  painter.save();
  painter.scale(1.0, -1.0);
  painter.translate(-top_left);
  paint_projection(painter, drawing.points, drawing.projector,
                   QRectF(top_left - QPointF(0.0, picture.height()), picture));
  // What reaches below the picture. A file of lines need not know of clipping.
  const QPointF foot = top_left - QPointF(0.0, picture.height());
  const double below = size.height() - picture.height();
  painter.fillRect(QRectF(foot - QPointF(0.0, below), QSizeF(picture.width(), below)), Qt::white);
  paint_projection_foot(painter, foot + QPointF(foot_left, 0.0), drawing.projector);
  painter.restore();
  paint_caption(painter, {caption_left, picture.height() + foot_height()}, caption_width(drawing),
                drawing.caption);
}

}  // namespace

QSize size_of_drawing(const ProjectionDrawing& drawing) {
  return (QSizeF(units_of(drawing)) * drawing.scale).toSize();
}

QByteArray svg_of(const ProjectionDrawing& drawing) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(static_cast<int>(points_per_inch));
  generator.setSize(size_of_drawing(drawing));
  generator.setViewBox(QRect(QPoint(0, 0), units_of(drawing)));
  generator.setTitle(drawing.title);
  generator.setDescription(drawing.caption.values);
  QPainter painter(&generator);
  paint(painter, drawing);
  painter.end();
  return bytes;
}

QByteArray pdf_of(const ProjectionDrawing& drawing) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(drawing.title);
  writer.setCreator(QStringLiteral("Velquon"));
  writer.setPageSize(QPageSize(QSizeF(size_of_drawing(drawing)), QPageSize::Point, QString(),
                               QPageSize::ExactMatch));
  writer.setPageMargins({});
  QPainter painter(&writer);
  const double dots = writer.logicalDpiX() / points_per_inch * drawing.scale;
  painter.scale(dots, dots);
  paint(painter, drawing);
  painter.end();
  return bytes;
}

}  // namespace velquon
