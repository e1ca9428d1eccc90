// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QWidget>

namespace velquon {

/// Whether a widget is a window or a dialog with a frame, not a menu or a tool tip.
[[nodiscard]] bool is_window_or_dialog(const QWidget& widget);

/// The largest size a window can have so that it and its frame are within the part of its screen
/// that panels leave free. A frame that is not there yet is taken to be a usual one.
[[nodiscard]] QSize room_on_screen(const QWidget& window);

/// The size at which a window shows everything or, where its screen has no room for that, as much as
/// there is room for, with its scroll bars beside.
[[nodiscard]] QSize size_to_open_at(const QWidget& window);

/// Moves a window of its present size so that its frame begins at a corner, or as near to it as
/// leaves the whole window on its screen.
void place_on_screen(QWidget& window, QPoint corner);

/// While one lives, no window or dialog opens larger than its screen has room for.
class ScreenRoom : public QObject {
 public:
  ScreenRoom();

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace velquon
