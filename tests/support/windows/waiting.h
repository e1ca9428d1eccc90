// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace velquon::test {

/// Runs the event loop until a condition holds.
/// \return whether it came to hold within the time, which is long enough for a busy machine
bool wait_until(const std::function<bool()>& condition, int milliseconds = 15'000);

/// Runs the event loop for a time.
void run_loop_for(int milliseconds);

/// Handles what waits in the event loop and returns.
void handle_waiting_events();

}  // namespace velquon::test
