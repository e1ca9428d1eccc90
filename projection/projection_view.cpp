// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/projection_view.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <array>
#include <utility>

#include "printing/projection_page.h"
#include "projection/tool_drawing.h"
#include "render/line_arrays.h"

namespace velquon {

namespace {

constexpr double half_square = 0.5;
constexpr double half_marked_square = 1.5;

/// \param dot length of a dot and of a gap, device pixels
void draw_dotted_frame(const ProjectedFrame& frame, int dot) {
  const auto& [low, high] = frame;
  glEnable(GL_LINE_STIPPLE);
  glLineStipple(dot, 0xAAAA);
  const auto corner = [](double x, double y) {
    return Corner{static_cast<float>(x), static_cast<float>(y), 0.0F};
  };
  draw_line_loop(std::array{corner(low.x, low.y), corner(high.x, low.y), corner(high.x, high.y),
                            corner(low.x, high.y)});
  glDisable(GL_LINE_STIPPLE);
}

}  // namespace

ProjectionView::ProjectionView(Projector& projector, QWidget* parent)
    : GLView(parent), projector_(projector), cross_(projector) {
  setFocusPolicy(Qt::StrongFocus);
  // A mouse that moves takes the cross of the keys away.
  setMouseTracking(true);
  makeCursors();
  // A screen of another ratio gives the view another framebuffer, and this signal.
  connect(this, &QOpenGLWidget::resized, this, &ProjectionView::makeCursors);
}

void ProjectionView::show(std::shared_ptr<const ShownEvent> event) {
  const bool has_other_tracks = event->tracks != event_->tracks;
  const double scaler_before = scaler();
  event_ = std::move(event);
  projector_.show(event_);
  if (has_other_tracks) {
    makeDisplayPoints();
  }
  if (const double scaler_now = projection_scaler(event_->values); scaler_now != scaler_before) {
    setScaler(scaler_now);
  }
}

void ProjectionView::setProjection(ProjectionPlane plane) {
  projector_.setPlane(plane);
  makeDisplayPoints();
  display();
}

void ProjectionView::setZoom(float zoom) {
  projector_.setZoom(zoom);
  display();
}

void ProjectionView::setTool(ProjectorTool tool) {
  projector_.setTool(tool);
  display();
  resetCursorRects();
}

void ProjectionView::paint(QPainter& page) {
  paint_projection(page, event_->points(), projector_);
}

double ProjectionView::pictureHeight() const {
  return std::max<double>(projection_height, visibleRect().height());
}

void ProjectionView::makeDisplayPoints() {
  display_points_.clear();
  std::ranges::transform(
      event_->points(), std::back_inserter(display_points_),
      [this](const PlotPoint& point) { return project(point, projector_.plane()); });
}

void ProjectionView::drawRect() {
  const QRectF seen = visibleRect();
  const double ratio = pixelRatio();
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  glClear(GL_COLOR_BUFFER_BIT);
  glViewport(0, 0, qRound(seen.width() * ratio), qRound(seen.height() * ratio));
  gluOrtho2D(0.0, seen.width(), 0.0, seen.height());
  glTranslated(-seen.x(), -seen.y(), 0.0);
  // OpenGL counts the width of lines and the length of dots in device pixels.
  glLineWidth(static_cast<GLfloat>(ratio));
  drawTracks();
  draw_tool(projector_);
  draw_cross(cross_);
  glFlush();
}

void ProjectionView::drawTracks() {
  glColor3f(1.0F, 1.0F, 1.0F);
  draw_dotted_frame(projector_.mapping().frame(), std::max(qRound(pixelRatio()), 1));
  for (std::size_t point = 0; point < display_points_.size(); ++point) {
    drawSquare(point, half_square);
  }
  for (const std::size_t point : marked_) {
    if (point < display_points_.size()) {
      drawSquare(point, half_marked_square);
    }
  }
}

void ProjectionView::drawSquare(std::size_t point, double half_side) const {
  const auto [x, y] = projector_.mapping().map(display_points_[point]);
  glRectd(x - half_side, y - half_side, x + half_side, y + half_side);
}

void ProjectionView::reshape() {
  glClear(GL_COLOR_BUFFER_BIT);
  const double height_before = projector_.viewHeight();
  projector_.setViewHeight(pictureHeight());
  cross_.moveBy({0.0, projector_.viewHeight() - height_before});
}

}  // namespace velquon
