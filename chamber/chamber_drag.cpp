// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse in the chamber view: a click stops the turntable, a drag turns the chamber.

#include <QApplication>
#include <QMouseEvent>

#include "chamber/chamber_view.h"

namespace velquon {

namespace {

// A drag across the chamber's picture turns it half round.
constexpr double degrees_per_unit = 0.5;

}  // namespace

void ChamberView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) {
    stopRotating();
    pressed_at_ = locationOf(*event);
  }
}

void ChamberView::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  if (!pressed_at_) {
    return;
  }
  const QPointF place = locationOf(*event);
  // The mouse moves a little in a click, too.
  if (!dragged_to_ &&
      (place - *pressed_at_).manhattanLength() < QApplication::startDragDistance()) {
    return;
  }
  const QPointF way = place - dragged_to_.value_or(*pressed_at_);
  camera_.turnNearSide(degrees_per_unit * way.x(), -degrees_per_unit * way.y());
  dragged_to_ = place;
  displaySoon();
}

void ChamberView::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) {
    pressed_at_.reset();
    dragged_to_.reset();
  }
}

}  // namespace velquon
