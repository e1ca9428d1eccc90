// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/waiting.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace velquon::test {

bool wait_until(const std::function<bool()>& condition, int milliseconds) {
  if (condition()) {
    return true;
  }
  QEventLoop loop;
  QTimer poll;
  bool holds = false;
  QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
    holds = condition();
    if (holds) {
      loop.quit();
    }
  });
  poll.start(2);
  QTimer give_up;
  QObject::connect(&give_up, &QTimer::timeout, &loop, &QEventLoop::quit);
  give_up.start(milliseconds);
  loop.exec();
  return holds || condition();
}

void run_loop_for(int milliseconds) {
  QEventLoop loop;
  QTimer end;
  end.setTimerType(Qt::PreciseTimer);
  QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
  end.start(milliseconds);
  loop.exec();
}

void handle_waiting_events() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents();
}

}  // namespace velquon::test
