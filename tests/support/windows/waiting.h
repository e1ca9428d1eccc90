// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

class QWidget;

namespace velquon::test {

/// How long a busy machine may take for what a person hardly waits for.
inline constexpr int longest_wait = 15'000;  // milliseconds

/// Runs the event loop until a condition holds.
/// \return whether it came to hold within the time, which is long enough for a busy machine
bool wait_until(const std::function<bool()>& condition, int milliseconds = longest_wait);

/// Waits until a window is on the screen.
/// \return whether it came there within `longest_wait`
bool wait_until_exposed(QWidget* window);

/// Waits until a window is active.
/// \return whether it got them within `longest_wait`
bool wait_until_active(QWidget* window);

/// Runs the event loop for a time.
void run_loop_for(int milliseconds);

/// Handles what waits in the event loop and returns.
void handle_waiting_events();

}  // namespace velquon::test
