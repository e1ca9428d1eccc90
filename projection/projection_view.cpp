// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/projection_view.h"

#include <GL/gl.h>

#include <algorithm>
#include <utility>

#include "printing/projection_foot.h"
#include "printing/projection_page.h"
#include "render/off_screen.h"

namespace velquon {

ProjectionView::ProjectionView(Projector& projector, QWidget* parent)
    : GLView(parent), projector_(projector), cross_(projector) {
  setFocusPolicy(Qt::StrongFocus);
  // A mouse that moves takes the cross of the arrow keys away.
  setMouseTracking(true);
  makeCursors();
  // A screen of another ratio gives the view another framebuffer, and this signal.
  connect(this, &QOpenGLWidget::resized, this, &ProjectionView::makeCursors);
}

void ProjectionView::show(std::shared_ptr<const ShownEvent> event) {
  const bool has_other_tracks = event->tracks != event_->tracks;
  event_ = std::move(event);
  if (has_other_tracks) {
    makeDisplayPoints();
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

QSize ProjectionView::pictureSize() const {
  return {std::max(projection_width, qRound(visibleRect().width())), qRound(pictureHeight())};
}

std::optional<QImage> ProjectionView::picture(double scale) const {
  const QSize size = pictureSize();
  auto picture = draw_off_screen((QSizeF(size) * scale).toSize(), [&] {
    scene_.draw(QRectF(QPointF(0.0, 0.0), size), scale, projector_,
                {.marked = marked_, .colored = colored_});
  });
  if (picture) {
    picture->convertTo(QImage::Format_RGB32);
  }
  return picture;
}

void ProjectionView::paint(QPainter& page) {
  constexpr QPointF foot_place{55.0, 100.0};
  // Below the picture, which may reach that far down.
  paint_projection_foot(page, foot_place, projector_);
  paint_projection(page, event_->points(), projector_);
}

double ProjectionView::pictureHeight() const {
  return std::max<double>(projection_height, visibleRect().height());
}

void ProjectionView::makeDisplayPoints() {
  scene_.setPoints(event_->points(), projector_.plane());
}

void ProjectionView::drawRect() {
  scene_.draw(visibleRect(), pixelRatio(), projector_,
              {.marked = marked_, .colored = colored_, .cross = &cross_});
}

void ProjectionView::reshape() {
  glClear(GL_COLOR_BUFFER_BIT);
  const double height_before = projector_.viewHeight();
  projector_.setViewHeight(pictureHeight());
  cross_.moveBy({0.0, projector_.viewHeight() - height_before});
}

}  // namespace velquon
