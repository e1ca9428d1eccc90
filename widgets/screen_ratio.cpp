// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/screen_ratio.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QOpenGLWidget>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include "widgets/screen_room.h"

namespace velquon {

namespace {

/// Gives the views in a window framebuffers of its ratio, and has the window painted anew.
void renew(QWidget& window) {
  const auto widgets = window.findChildren<QWidget*>();
  for (QWidget* const widget : widgets) {
    if (qobject_cast<QOpenGLWidget*>(widget) != nullptr) {
      QEvent change(QEvent::ScreenChangeInternal);
      QCoreApplication::sendEvent(widget, &change);
    }
    widget->update();
  }
  window.update();
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
  }
  return QObject::eventFilter(watched, event);
}

void ScreenRatio::watch(QScreen* screen) {
  // With another ratio a screen is of another size in view units.
  connect(screen, &QScreen::geometryChanged, this, [this] {
    for (auto known = ratios_.keyBegin(); known != ratios_.keyEnd(); ++known) {
      followSoon(*known);
    }
  });
}

void ScreenRatio::watch(QWidget* window) {
  if (ratios_.contains(window)) {
    followSoon(window);
    return;
  }
  ratios_.insert(window, window->devicePixelRatioF());
  connect(window->windowHandle(), &QWindow::screenChanged, this,
          [this, window] { followSoon(window); });
  connect(window, &QObject::destroyed, this, [this, window] { ratios_.remove(window); });
}

void ScreenRatio::followSoon(QWidget* window) {
  // Qt is still at it.
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
  const double ratio = window.devicePixelRatioF();
  if (ratio == ratios_.value(&window)) {
    return;
  }
  ratios_.insert(&window, ratio);
  if (!window.isMaximized() && !window.isFullScreen()) {
    const QSize size = window.size().boundedTo(room_on_screen(window));
    // For Qt the window has this size already.
    window.resize(size + QSize(1, 1));
    window.resize(size);
    place_on_screen(window, window.frameGeometry().topLeft());
  }
  renew(window);
}

}  // namespace velquon
