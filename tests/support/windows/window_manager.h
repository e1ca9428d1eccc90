// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon::test {

/// Runs the event loop until what the X server has sent the program by now is handled.
/// \return false when that took longer than a busy machine needs
[[nodiscard]] bool handle_what_server_sent();

/// Waits until the window manager has worked through what was asked of it before and the program has
/// handled what came of it: windows that came up have, and know, the focus that they get. Without a
/// window manager there is nothing to wait for.
/// \return false when the manager did not answer within a time that is long enough for a busy machine
[[nodiscard]] bool wait_for_window_manager();

}  // namespace velquon::test
