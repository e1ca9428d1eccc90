#include "track/main_thread_call.h"

#include <QMetaObject>
#include <QObject>
#include <QSemaphore>
#include <memory>

namespace velquon {

void perform_on_main_thread(QObject* receiver, const std::function<void()>& call,
                            const std::stop_token& given_up) {
  // A blocking connection would not do: who waits for this thread on the main one would wait
  // forever.
  const auto over = std::make_shared<QSemaphore>();
  QMetaObject::invokeMethod(
      receiver,
      [call, over] {
        call();
        over->release();
      },
      Qt::QueuedConnection);
  const std::stop_callback give_up(given_up, [over] { over->release(); });
  over->acquire();
}

}  // namespace velquon
