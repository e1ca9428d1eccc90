// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace velquon::test {

/// Whether the screen's ratio of pixels can change, as it can under scripts/with-screen-settings.
[[nodiscard]] bool can_change_screen_ratio();

/// Gives the screen another ratio, as a desktop's control panel does, and waits until a widget has it and
/// the window manager has done what came of it.
/// \return false when that took longer than a busy machine needs
[[nodiscard]] bool change_screen_ratio(double ratio, const QWidget& widget);

}  // namespace velquon::test
