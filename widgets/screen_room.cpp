// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/screen_room.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>

namespace velquon {

namespace {

/// The window manager's frame around a window. It is known once the window has been on the screen;
/// until then one is assumed that is rather larger than those of the usual desktops.
QMargins frame_of(const QWidget& window) {
  constexpr QMargins usual_frame(8, 40, 8, 8);
  const QWindow* const handle = window.windowHandle();
  const QMargins frame = handle != nullptr ? handle->frameMargins() : QMargins();
  return frame.isNull() ? usual_frame : frame;
}

QSize whole_size(const QWidget& window) {
  return window.size().grownBy(frame_of(window));
}

bool has_own_size(const QWidget& window) {
  return !window.isMaximized() && !window.isFullScreen();
}

void fit(QWidget& window) {
  // A window that was given no size would be kept to two thirds of the screen.
  const bool wants_all = window.windowType() == Qt::Window &&
                         !window.testAttribute(Qt::WA_Resized) && window.sizeHint().isValid();
  window.resize(wants_all ? size_to_open_at(window)
                          : window.size().boundedTo(room_on_screen(window)));
  // Where there is hardly room, window managers put windows that come without a place beyond the
  // edges rather than over others.
  constexpr int ample = 100;
  const QSize spare = room_on_screen(window) - window.size();
  if (!window.testAttribute(Qt::WA_Moved) && std::min(spare.width(), spare.height()) < ample) {
    const QRect available = window.screen()->availableGeometry();
    place_on_screen(window, available.center() - window.rect().center());
  }
}

}  // namespace

bool is_window_or_dialog(const QWidget& widget) {
  return widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog;
}

QSize room_on_screen(const QWidget& window) {
  return window.screen()->availableGeometry().marginsRemoved(frame_of(window)).size();
}

QSize size_to_open_at(const QWidget& window) {
  const QSize wanted = window.sizeHint();
  const QSize room = room_on_screen(window);
  const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &window);
  QSize size = wanted;
  if (wanted.height() > room.height()) {
    size.rwidth() += bar;
  }
  if (wanted.width() > room.width()) {
    size.rheight() += bar;
  }
  return size.boundedTo(room);
}

void place_on_screen(QWidget& window, QPoint corner) {
  const QRect available = window.screen()->availableGeometry();
  const QSize spare = available.size() - whole_size(window);
  const int rightmost = available.x() + std::max(spare.width(), 0);
  const int lowest = available.y() + std::max(spare.height(), 0);
  const QPoint place(std::clamp(corner.x(), available.x(), rightmost),
                     std::clamp(corner.y(), available.y(), lowest));
  window.move(place);
  if (QWindow* const handle = window.windowHandle()) {
    // A window that exists and has no frame yet would take the place for that of its content.
    handle->setFramePosition(place);
  }
}

ScreenRoom::ScreenRoom() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool ScreenRoom::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && !event->spontaneous()) {
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && is_window_or_dialog(*widget) && has_own_size(*widget)) {
      fit(*widget);
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace velquon
