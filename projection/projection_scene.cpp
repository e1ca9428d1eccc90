// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/projection_scene.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "projection/tool_drawing.h"
#include "render/line_arrays.h"
#include "render/track_colors.h"

namespace velquon {

namespace {

constexpr double half_marked_square = 1.5;

/// \param ratio device pixels per view unit
void draw_dotted_frame(const ProjectedFrame& frame, double ratio) {
  const auto& [low, high] = frame;
  glEnable(GL_LINE_STIPPLE);
  // A dot and a gap have the same whole number of device pixels.
  glLineStipple(std::max(qRound(ratio), 1), 0xAAAA);
  // From one whole pixel to another: of dots that begin in the middle of pixels OpenGL may draw none.
  const auto to_pixel = [ratio](double place) {
    return static_cast<float>(std::round(place * ratio) / ratio);
  };
  const auto corner = [&](double x, double y) { return Corner{to_pixel(x), to_pixel(y), 0.0F}; };
  draw_line_loop(std::array{corner(low.x, low.y), corner(high.x, low.y), corner(high.x, high.y),
                            corner(low.x, high.y)});
  glDisable(GL_LINE_STIPPLE);
}

}  // namespace

void ProjectionScene::setPoints(std::span<const PlotPoint> points, ProjectionPlane plane) {
  display_points_.clear();
  std::ranges::transform(points, std::back_inserter(display_points_),
                         [plane](const PlotPoint& point) { return project(point, plane); });
  codes_.clear();
  std::ranges::transform(points, std::back_inserter(codes_), &PlotPoint::code);
}

void ProjectionScene::draw(const QRectF& seen, double ratio, const Projector& projector,
                           const ProjectionOptions& options) const {
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  glClear(GL_COLOR_BUFFER_BIT);
  glViewport(0, 0, qRound(seen.width() * ratio), qRound(seen.height() * ratio));
  gluOrtho2D(0.0, seen.width(), 0.0, seen.height());
  glTranslated(-seen.x(), -seen.y(), 0.0);
  // OpenGL counts the width of lines and the length of dots in device pixels.
  glLineWidth(static_cast<GLfloat>(ratio));
  drawTracks(ratio, projector.mapping(), options);
  draw_tool(projector);
  if (options.cross != nullptr) {
    draw_cross(*options.cross);
  }
  glFlush();
}

void ProjectionScene::drawTracks(double ratio, const ProjectionMapping& mapping,
                                 const ProjectionOptions& options) const {
  glColor3f(1.0F, 1.0F, 1.0F);
  draw_dotted_frame(mapping.frame(), ratio);
  for (std::size_t point = 0; point < display_points_.size(); ++point) {
    drawSquare(point, half_square, mapping, options.colored);
  }
  for (const std::size_t point : options.marked) {
    if (point < display_points_.size()) {
      drawSquare(point, half_marked_square, mapping, options.colored);
    }
  }
}

void ProjectionScene::drawSquare(std::size_t point, double half_side,
                                 const ProjectionMapping& mapping, bool colored) const {
  if (colored) {
    glColor3fv(track_color(codes_[point]).data());
  }
  const auto [x, y] = mapping.map(display_points_[point]);
  glRectd(x - half_side, y - half_side, x + half_side, y + half_side);
}

}  // namespace velquon
