#include "track/main_thread_call.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <atomic>
#include <chrono>
#include <thread>

namespace velquon {
namespace {

TEST(MainThreadCall, IsPerformedOnTheMainThreadAndWaitedFor) {
  QObject receiver;
  std::thread::id performed_on;
  std::atomic<bool> performed = false;
  std::atomic<bool> waited = false;
  std::jthread thread([&](const std::stop_token& given_up) {
    perform_on_main_thread(
        &receiver,
        [&] {
          std::this_thread::sleep_for(std::chrono::milliseconds(20));
          performed_on = std::this_thread::get_id();
          performed = true;
        },
        given_up);
    waited = performed.load();
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return waited.load(); }));
  EXPECT_EQ(performed_on, std::this_thread::get_id());
}

TEST(MainThreadCall, WaitsForNothingOnceItIsGivenUp) {
  QObject receiver;
  std::atomic<bool> performed = false;
  std::jthread thread([&](const std::stop_token& given_up) {
    perform_on_main_thread(
        &receiver, [&] { performed = true; }, given_up);
  });
  thread.request_stop();
  thread.join();  // with the event loop standing still
  EXPECT_FALSE(performed);
  QCoreApplication::processEvents();
  EXPECT_TRUE(performed) << "what was asked for is still done while the receiver is there";
}

TEST(MainThreadCall, IsDroppedWithItsReceiver) {
  std::atomic<bool> performed = false;
  {
    QObject receiver;
    std::jthread thread([&](const std::stop_token& given_up) {
      perform_on_main_thread(
          &receiver, [&] { performed = true; }, given_up);
    });
  }
  QCoreApplication::processEvents();
  EXPECT_FALSE(performed);
}

}  // namespace
}  // namespace velquon
