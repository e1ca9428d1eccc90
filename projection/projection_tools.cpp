// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse and the cursors of the projection view.

#include <QMouseEvent>
#include <QWheelEvent>
#include <cstdlib>
#include <utility>

#include "projection/projection_view.h"
#include "widgets/cursors.h"

namespace velquon {

void ProjectionView::mousePressEvent(QMouseEvent* event) {
  hideCross();
  if (event->button() == Qt::LeftButton) {
    projector_.press(place_of(locationOf(*event)));
    if (projector_.tool() == ProjectorTool::curve || projector_.tool() == ProjectorTool::angle) {
      display();
    }
  }
}

void ProjectionView::mouseMoveEvent(QMouseEvent* event) {
  // Windows that come and go under a mouse at rest make the same event.
  if (std::exchange(mouse_, event->globalPosition()) != event->globalPosition()) {
    hideCross();
  }
  if (event->buttons().testFlag(Qt::LeftButton)) {
    projector_.drag(place_of(locationOf(*event)));
    display();
  }
}

void ProjectionView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    projector_.release(place_of(locationOf(*event)));
    display();
  }
}

void ProjectionView::wheelEvent(QWheelEvent* event) {
  const int way = event->angleDelta().y();
  if (way == 0) {
    // To the side: that is the scrolling area's.
    GLView::wheelEvent(event);
    return;
  }
  event->accept();
  if (event->buttons() != Qt::NoButton) {
    // Zoom would take away what the mouse is laying out.
    return;
  }
  // Fine wheels and touchpads tell parts of a notch.
  const bool turned_back = (way > 0) != (wheel_way_ > 0);
  wheel_way_ = turned_back ? way : wheel_way_ + way;
  while (std::abs(wheel_way_) >= QWheelEvent::DefaultDeltasPerStep) {
    const bool in = wheel_way_ > 0;
    wheel_way_ += in ? -QWheelEvent::DefaultDeltasPerStep : QWheelEvent::DefaultDeltasPerStep;
    Q_EMIT zoomTurned(in ? ZoomTurn::in : ZoomTurn::out);
  }
}

void ProjectionView::resetCursorRects() {
  setCursor(projector_.tool() == ProjectorTool::grab ? grabber_cursor_ : cross_hair_cursor_);
}

void ProjectionView::makeCursors() {
  const double ratio = devicePixelRatioF();
  if (ratio == cursor_ratio_) {
    return;
  }
  cursor_ratio_ = ratio;
  cross_hair_cursor_ = cursor_named(QStringLiteral("crosshairs"), {7, 7}, ratio);
  grabber_cursor_ = cursor_named(QStringLiteral("grabber"), {8, 9}, ratio);
  resetCursorRects();
}

}  // namespace velquon
