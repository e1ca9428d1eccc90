// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>
#include <array>
#include <functional>

class QWidget;

namespace velquon::test {

/// The menu items that show windows of their own, beside that of the track window, and modal dialogs.
inline constexpr std::array window_items{"guide_item", "shortcuts_item", "event_record_item",
                                         "measurements_item"};
inline constexpr std::array dialog_items{"print_item", "about_item", "worksheets_item",
                                         "save_picture_item"};

/// The part of the screen that panels of the desktop leave to windows.
[[nodiscard]] QRect available_screen();

/// Expects that a window comes to be within the available screen, its frame included.
void expect_on_screen(const QWidget& window);

/// Expects that an action shows a window that was not there before, within the available screen, and
/// closes it.
void expect_window_on_screen(const std::function<void()>& action);

/// Expects that an action that does not return meanwhile shows a modal dialog within the available
/// screen, and closes it.
void expect_dialog_on_screen(const std::function<void()>& action);

}  // namespace velquon::test
