// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon::test {

/// Waits until the window manager has worked through what was asked of it before, and until what that
/// has sent the program lies in the program's event queue: windows that came up have the focus that
/// they get. Without a window manager there is nothing to wait for.
/// \return false when the manager did not answer within a time that is long enough for a busy machine
[[nodiscard]] bool wait_for_window_manager();

}  // namespace velquon::test
