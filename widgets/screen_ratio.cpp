// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/screen_ratio.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include "widgets/screen_room.h"

namespace velquon {

namespace {

/// A window of the same size in view units, as far as its screen has room, has other pixels.
void keep_size(QWidget& window, const QSize& wanted) {
  const QSize size = wanted.boundedTo(room_on_screen(window));
  // Qt takes a size for new only when it differs in view units, and what it paints into as well.
  window.resize(size + QSize(1, 1));
  window.repaint();
  window.resize(size);
  place_on_screen(window, window.frameGeometry().topLeft());
}

/// Qt learns how large a maximized window is when it becomes one.
void fill_screen_anew(QWidget& window) {
  const Qt::WindowStates state = window.windowState();
  window.setWindowState(state & ~Qt::WindowMaximized);
  window.setWindowState(state);
}

}  // namespace

ScreenRatio::ScreenRatio() {
  QCoreApplication::instance()->installEventFilter(this);
  const auto screens = QGuiApplication::screens();
  for (QScreen* const screen : screens) {
    watch(screen);
  }
  connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) { watch(screen); });
}

bool ScreenRatio::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && is_window_or_dialog(*widget) && widget->windowHandle() != nullptr) {
      watch(widget);
    }
  } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget != nullptr && widget->isWindow()) {
      noteHidden(*widget);
    }
  }
  return QObject::eventFilter(watched, event);
}

void ScreenRatio::watch(QScreen* screen) {
  // With another ratio a screen is of another size in view units.
  connect(screen, &QScreen::geometryChanged, this, [this] {
    for (auto known = windows_.keyBegin(); known != windows_.keyEnd(); ++known) {
      followSoon(*known);
    }
  });
}

void ScreenRatio::watch(QWidget* window) {
  if (windows_.contains(window)) {
    followSoon(window);
    return;
  }
  windows_.insert(window, {.ratio = window->devicePixelRatioF()});
  connect(window->windowHandle(), &QWindow::screenChanged, this,
          [this, window] { followSoon(window); });
  connect(window, &QObject::destroyed, this, [this, window] { windows_.remove(window); });
}

void ScreenRatio::followSoon(QWidget* window) {
  // Qt has not finished its own work on the change.
  QMetaObject::invokeMethod(
      this,
      [this, shown = QPointer<QWidget>(window)] {
        QWidget* const widget = shown.data();
        if (widget != nullptr && widget->isVisible()) {
          follow(*widget);
        }
      },
      Qt::QueuedConnection);
}

void ScreenRatio::follow(QWidget& window) {
  const Seen before = windows_.value(&window);
  const double ratio = window.devicePixelRatioF();
  windows_.insert(&window, {.ratio = ratio});
  if (ratio == before.ratio) {
    return;
  }
  if (window.isMaximized()) {
    fill_screen_anew(window);
  } else if (!window.isFullScreen()) {
    // A window that was hidden comes up with the pixels that it had, and X may have told that already.
    keep_size(window, before.hidden_at.isValid() ? before.hidden_at : window.size());
  }
}

void ScreenRatio::noteHidden(QWidget& window) {
  const auto known = windows_.find(&window);
  if (known != windows_.end()) {
    known->hidden_at = window.size();
  }
}

}  // namespace velquon
