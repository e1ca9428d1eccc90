// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/placement.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

QWidgetList shown_windows() {
  QWidgetList windows = QApplication::topLevelWidgets();
  windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
  return windows;
}

/// A window with its frame, as the window manager has it; a widget may have asked too early.
QRect frame_of(const QWidget& window) {
  return window.windowHandle()->frameGeometry();
}

/// Where frames are of pixels finer than units, their places are rounded to the next unit.
bool is_on_screen(const QWidget& window) {
  return available_screen().adjusted(0, 0, 1, 1).contains(frame_of(window));
}

}  // namespace

QRect available_screen() {
  return QGuiApplication::primaryScreen()->availableGeometry();
}

void expect_on_screen(const QWidget& window) {
  // The window manager gives it its frame and its place.
  EXPECT_TRUE(
      wait_until([&] { return frame_of(window) != window.geometry() && is_on_screen(window); }));
  const QRect place = frame_of(window);
  const QRect screen = available_screen();
  EXPECT_TRUE(is_on_screen(window))
      << window.windowTitle().toStdString() << ": " << place.x() << ' ' << place.y() << ' '
      << place.width() << " x " << place.height() << " on " << screen.width() << " x "
      << screen.height();
}

void expect_window_on_screen(const std::function<void()>& action) {
  const QWidgetList before = shown_windows();
  action();
  QWidget* shown = nullptr;
  EXPECT_TRUE(wait_until([&] {
    const QWidgetList now = shown_windows();
    const auto found =
        std::ranges::find_if(now, [&](QWidget* window) { return !before.contains(window); });
    shown = found != now.end() ? *found : nullptr;
    return shown != nullptr;
  }));
  if (shown != nullptr) {
    expect_on_screen(*shown);
    shown->close();
  }
}

void expect_dialog_on_screen(const std::function<void()>& action) {
  bool seen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && dialog->isVisible()) {
      look.stop();
      seen = true;
      expect_on_screen(*dialog);
      dialog->close();
    }
  });
  look.start(20);
  action();
  EXPECT_TRUE(wait_until([&] { return seen; }));
}

}  // namespace velquon::test
