// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/waiting.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>
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

bool wait_until_exposed(QWidget* window) {
  return QTest::qWaitForWindowExposed(window, longest_wait);
}

bool wait_until_active(QWidget* window) {
  return QTest::qWaitForWindowActive(window, longest_wait);
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
