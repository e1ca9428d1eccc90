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

/// A window with its frame, as the window manager has it; empty before it has given the window one. Each
/// look may see more of that than the one before, and a widget may have looked too early.
QRect frame_of(const QWidget& window) {
  const QWindow& handle = *window.windowHandle();
  const QRect frame = handle.frameGeometry();
  return frame != handle.geometry() ? frame : QRect();
}

/// Where frames are of pixels finer than units, their places are rounded to the next unit.
bool is_on_screen(const QRect& frame) {
  return !frame.isEmpty() && available_screen().adjusted(0, 0, 1, 1).contains(frame);
}

}  // namespace

QRect available_screen() {
  return QGuiApplication::primaryScreen()->availableGeometry();
}

void expect_on_screen(const QWidget& window) {
  QRect place;
  const bool is_seen = wait_until([&] {
    place = frame_of(window);
    return is_on_screen(place);
  });
  const QRect screen = available_screen();
  EXPECT_TRUE(is_seen) << window.windowTitle().toStdString()
                       << (place.isEmpty() ? ", without a frame" : "") << ": " << place.x() << ' '
                       << place.y() << ' ' << place.width() << " x " << place.height() << " on "
                       << screen.width() << " x " << screen.height();
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
