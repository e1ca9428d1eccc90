// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/projection_page.h"

#include <QLineF>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "printing/page.h"
#include "render/feedback.h"

namespace velquon {

namespace {

constexpr QPointF page_offset{20.0, 100.0};
constexpr double half_square = 0.5;
constexpr QColor frame_gray(128, 128, 128);

QPointF on_page(Place place) {
  return QPointF(place.x, place.y) + page_offset;
}

void paint_frame(QPainter& page, const QRectF& frame) {
  const QPen pen = page.pen();
  QPen gray_pen = pen;
  gray_pen.setColor(frame_gray);
  page.setPen(gray_pen);
  page.drawLine(frame.topLeft(), frame.topRight());
  page.drawLine(frame.topRight(), frame.bottomRight());
  page.drawLine(frame.bottomRight(), frame.bottomLeft());
  page.drawLine(frame.bottomLeft(), frame.topLeft());
  page.setPen(pen);
}

/// The points' squares, without those that no page can hold.
std::vector<QRectF> squares_of(std::span<const PlotPoint> points, ProjectionPlane plane,
                               const ProjectionMapping& mapping) {
  std::vector<QRectF> squares;
  squares.reserve(points.size());
  for (const PlotPoint& point : points) {
    const Place place = mapping.map(project(point, plane));
    const QPointF corner(place.x - half_square, place.y - half_square);
    if (can_be_on_paper(corner)) {
      squares.emplace_back(corner + page_offset, QSizeF(1.0, 1.0));
    }
  }
  return squares;
}

/// The tape on the page; a null line while it is hidden.
QLineF tape_on_page(const Projector& projector) {
  Tape tape = projector.tape();
  if (!tape.visible) {
    return {};
  }
  // Pictures hang from the top.
  tape.moveBy({0.0, projection_height - projector.viewHeight()});
  return {on_page(tape.start), on_page(tape.end)};
}

QRectF frame_on_page(const ProjectionMapping& mapping) {
  const ProjectedFrame outline = mapping.frame();
  return {on_page(outline.lower_left), on_page(outline.upper_right)};
}

}  // namespace

QRectF projection_frame(const Projector& projector) {
  return frame_on_page(projector.mappingAt(projection_height));
}

void paint_projection(QPainter& page, std::span<const PlotPoint> points,
                      const Projector& projector) {
  const ProjectionMapping mapping = projector.mappingAt(projection_height);
  const QRectF frame = frame_on_page(mapping);
  const std::vector<QRectF> squares = squares_of(points, projector.plane(), mapping);
  const QLineF tape = tape_on_page(projector);
  const auto reaches_header = [](double top) { return top > page_picture.bottom(); };
  const bool is_clipped =
      reaches_header(frame.bottom()) || reaches_header(std::max(tape.y1(), tape.y2())) ||
      std::ranges::any_of(squares,
                          [&](const QRectF& square) { return reaches_header(square.bottom()); });
  if (is_clipped) {
    page.save();
    page.setClipRect(page_picture, Qt::IntersectClip);
  }
  paint_frame(page, frame);
  for (const QRectF& square : squares) {
    page.fillRect(square, Qt::black);
  }
  if (!tape.isNull()) {
    page.drawLine(tape);
  }
  if (is_clipped) {
    page.restore();
  }
}

}  // namespace velquon
