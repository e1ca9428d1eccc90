#include "track/main_thread_call.h"

#include <QObject>
#include <QSemaphore>
#include <memory>

namespace velquon {

namespace {

class Request : public QObject {
  Q_OBJECT

 Q_SIGNALS:
  void made();
};

}  // namespace

void perform_on_main_thread(QObject* receiver, const std::function<void()>& call,
                            const std::stop_token& given_up) {
  // A blocking connection would not do: who waits for this thread on the main one would wait
  // forever.
  const auto over = std::make_shared<QSemaphore>();
  Request request;
  QObject::connect(
      &request, &Request::made, receiver,
      [call, over] {
        call();
        over->release();
      },
      Qt::QueuedConnection);
  Q_EMIT request.made();
  const std::stop_callback give_up(given_up, [over] { over->release(); });
  over->acquire();
}

}  // namespace velquon

#include "main_thread_call.moc"
