#include "tests/gui/support/waiting.h"

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
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
  return holds || condition();
}

void run_loop_for(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

void handle_waiting_events() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents();
}

}  // namespace velquon::test
