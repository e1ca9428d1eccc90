// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QEventLoop>
#include <QTimer>
#include <functional>

namespace velquon::bench {

/// Runs the program's event loop for a while.
inline void run_event_loop(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

/// Runs the event loop until something holds, for ten seconds at most.
inline void run_event_loop_until(const std::function<bool()>& holds) {
  for (int waits = 0; waits < 1000 && !holds(); ++waits) {
    run_event_loop(10);
  }
}

}  // namespace velquon::bench
