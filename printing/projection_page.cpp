// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/projection_page.h"

#include <QColor>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <utility>
#include <vector>

#include "model/tool_lines.h"
#include "render/feedback.h"

namespace velquon {

namespace {

constexpr QPointF projection_page_offset{20.0, 100.0};
constexpr QColor frame_gray(128, 128, 128);

QPointF on_page(Place place) {
  return QPointF(place.x, place.y) + projection_page_offset;
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
      squares.emplace_back(corner + projection_page_offset,
                           QSizeF(2.0 * half_square, 2.0 * half_square));
    }
  }
  return squares;
}

struct PaperLine {
  QPolygonF places;
  QColor color;
};

/// What the chosen tool has laid out, without lines that no page can hold.
std::vector<PaperLine> tool_lines_on_page(const Projector& projector, const QColor& ink) {
  // Pictures hang from the top.
  const Place shift{0.0, projection_height - projector.viewHeight()};
  std::vector<PaperLine> lines;
  for (const ToolLine& line : tool_lines(projector)) {
    PaperLine on_paper{{}, line.is_faint ? frame_gray : ink};
    for (const Place place : line.places) {
      on_paper.places << on_page(place + shift);
    }
    if (std::ranges::all_of(on_paper.places, can_be_on_paper)) {
      lines.push_back(std::move(on_paper));
    }
  }
  return lines;
}

void paint_lines(QPainter& page, const std::vector<PaperLine>& lines) {
  const QPen pen = page.pen();
  QPen line_pen = pen;
  for (const PaperLine& line : lines) {
    line_pen.setColor(line.color);
    page.setPen(line_pen);
    // A tape of no length leaves no mark.
    if (line.places.size() > 2) {
      page.drawPolyline(line.places);
    } else if (line.places.front() != line.places.back()) {
      page.drawLine(line.places.front(), line.places.back());
    }
  }
  page.setPen(pen);
}

QRectF frame_on_page(const ProjectionMapping& mapping) {
  const ProjectedFrame outline = mapping.frame();
  return {on_page(outline.lower_left), on_page(outline.upper_right)};
}

}  // namespace

QRectF projection_frame(const Projector& projector) {
  return frame_on_page(projector.mappingAt(projection_height));
}

QPointF projection_top_left() {
  return QPointF(0.0, projection_height) + projection_page_offset;
}

void paint_projection(QPainter& page, std::span<const PlotPoint> points, const Projector& projector,
                      const QRectF& room) {
  const ProjectionMapping mapping = projector.mappingAt(projection_height);
  const QRectF frame = frame_on_page(mapping);
  const std::vector<QRectF> squares = squares_of(points, projector.plane(), mapping);
  const std::vector<PaperLine> lines = tool_lines_on_page(projector, page.pen().color());
  const auto reaches_above = [&](double top) { return top > room.bottom(); };
  const bool is_clipped =
      reaches_above(frame.bottom()) ||
      std::ranges::any_of(squares,
                          [&](const QRectF& square) { return reaches_above(square.bottom()); }) ||
      std::ranges::any_of(lines, [&](const PaperLine& line) {
        return reaches_above(line.places.boundingRect().bottom());
      });
  if (is_clipped) {
    page.save();
    page.setClipRect(room, Qt::IntersectClip);
  }
  paint_frame(page, frame);
  for (const QRectF& square : squares) {
    page.fillRect(square, Qt::black);
  }
  paint_lines(page, lines);
  if (is_clipped) {
    page.restore();
  }
}

}  // namespace velquon
