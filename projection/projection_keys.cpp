// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The keys of the projection view: they move a cross and do with the tools what a mouse does.

#include <QFocusEvent>
#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "projection/projection_view.h"

namespace velquon {

namespace {

struct Arrow {
  int key = 0;
  Place way;
};
constexpr std::array arrows{Arrow{Qt::Key_Left, {-1.0, 0.0}}, Arrow{Qt::Key_Right, {1.0, 0.0}},
                            Arrow{Qt::Key_Up, {0.0, 1.0}}, Arrow{Qt::Key_Down, {0.0, -1.0}}};

}  // namespace

KeyField ProjectionView::keyField() const {
  // The places that a mouse has: of the left upper corners of the pixels that are seen.
  const QRectF seen = visibleRect();
  return {{seen.left(), seen.top() + 1.0}, {seen.right() - 1.0, seen.bottom()}};
}

void ProjectionView::keyPressEvent(QKeyEvent* event) {
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool is_plain = modifiers == Qt::NoModifier;
  if ((is_plain || modifiers == Qt::ShiftModifier) && moveCross(*event)) {
    return;
  }
  if (!is_plain || !runKey(*event)) {
    GLView::keyPressEvent(event);
  }
}

bool ProjectionView::moveCross(const QKeyEvent& event) {
  constexpr double large_step = 10.0;
  const auto* const arrow = std::ranges::find(arrows, event.key(), &Arrow::key);
  if (arrow == arrows.end()) {
    return false;
  }
  const double step = event.modifiers().testFlag(Qt::ShiftModifier) ? large_step : 1.0;
  cross_.move({arrow->way.x * step, arrow->way.y * step}, keyField());
  display();
  return true;
}

bool ProjectionView::runKey(const QKeyEvent& event) {
  bool is_used = true;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (!event.isAutoRepeat()) {
        cross_.act(keyField());
      }
      break;
    case Qt::Key_Escape:
      is_used = cross_.giveUp();
      break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      projector_.removeLastPoint();
      break;
    default:
      is_used = false;
  }
  if (is_used) {
    display();
  }
  return is_used;
}

void ProjectionView::focusInEvent(QFocusEvent* event) {
  GLView::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
    cross_.appear(keyField());
    display();
  }
}

void ProjectionView::focusOutEvent(QFocusEvent* event) {
  GLView::focusOutEvent(event);
  // A menu that opens and another window give the focus back.
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
    hideCross();
  }
}

void ProjectionView::hideCross() {
  if (cross_.visible()) {
    cross_.hide();
    display();
  }
}

}  // namespace velquon
