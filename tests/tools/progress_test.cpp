// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/progress.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

namespace velquon {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

/// What a progress has told, on a clock that is moved by hand.
class Told {
 public:
  Told(std::uint64_t total, bool terminal)
      : file_(std::tmpfile()), progress_(total, file_.get(), terminal, start_) {}

  void show(std::uint64_t done, milliseconds at) { progress_.show(done, start_ + at); }
  void leave_out(std::uint64_t events) { progress_.leaveOut(events); }
  void clear() { progress_.clear(); }
  void end(milliseconds at) { progress_.end(start_ + at); }

  /// The text since the last call.
  std::string text() {
    std::fflush(file_.get());
    std::fseek(file_.get(), read_, SEEK_SET);
    std::string text;
    for (int c = 0; (c = std::fgetc(file_.get())) != EOF;) {
      text += static_cast<char>(c);
    }
    read_ = std::ftell(file_.get());
    return text;
  }

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Close> file_;
  Progress::Clock::time_point start_ = Progress::Clock::now();
  Progress progress_;
  long read_ = 0;
};

TEST(ProgressOffATerminal, IsALineEveryTenSeconds) {
  Told told(4000, false);
  told.show(999, milliseconds(9999));
  EXPECT_EQ(told.text(), "");
  told.show(1000, seconds(10));
  EXPECT_EQ(told.text(), "velquon-events: 1000 of 4000 events, 100 a second, 0:30 left\n");
  told.show(1500, milliseconds(19999));
  EXPECT_EQ(told.text(), "");
  told.show(2000, seconds(20));
  EXPECT_EQ(told.text(), "velquon-events: 2000 of 4000 events, 100 a second, 0:20 left\n");
  told.end(seconds(30));
  EXPECT_EQ(told.text(), "") << "no bar to end";
}

TEST(ProgressOnATerminal, IsOneLineThatIsDrawnAnew) {
  Told told(1000, true);
  told.show(100, milliseconds(199));
  EXPECT_EQ(told.text(), "");
  told.show(500, milliseconds(500));
  EXPECT_EQ(told.text(),
            "\r[############.............]  50 %  500 of 1000 events, 1000 a second, 0:01 "
            "left\x1b[K");
  told.show(600, milliseconds(600));
  EXPECT_EQ(told.text(), "");
  told.show(1000, milliseconds(650));
  told.end(seconds(1));
  EXPECT_EQ(told.text(),
            "\r[########################] 100 %  1000 of 1000 events, 1000 a second, 0:00 "
            "left\x1b[K\n");
}

TEST(ProgressOnATerminal, LeavesItsRowForNoNumberOfEvents) {
  Told told(4'000'000'000'000, true);
  told.show(1'234'567'890'123, seconds(1000));
  const std::string line = told.text();
  EXPECT_EQ(line.find("\r["), 0U);
  EXPECT_LE(line.find("\x1b[K"), 80U) << line;
}

TEST(ProgressOnATerminal, LeavesItsRowToAMessage) {
  Told told(1000, true);
  told.clear();
  EXPECT_EQ(told.text(), "") << "there is no bar yet";
  told.show(500, milliseconds(500));
  EXPECT_NE(told.text(), "");
  told.clear();
  EXPECT_EQ(told.text(), "\r\x1b[K");
  told.clear();
  EXPECT_EQ(told.text(), "");
}

TEST(ProgressOffATerminal, HasNoBarToTakeAway) {
  Told told(1000, false);
  told.show(500, seconds(10));
  EXPECT_NE(told.text(), "");
  told.clear();
  EXPECT_EQ(told.text(), "");
}

TEST(ProgressTimes, AreThoseOfTheEventsThatWereNotThereBefore) {
  Told told(4000, false);
  told.leave_out(2000);
  told.show(3000, seconds(10));
  EXPECT_EQ(told.text(), "velquon-events: 3000 of 4000 events, 100 a second, 0:10 left\n");
}

TEST(ProgressTimes, AreZeroWhenNothingIsLeft) {
  Told told(1000, false);
  told.leave_out(1000);
  told.show(1000, seconds(10));
  EXPECT_EQ(told.text(), "velquon-events: 1000 of 1000 events, 0 a second, 0:00 left\n");
}

TEST(ProgressTimes, HaveHoursWhereThereAreSome) {
  Told told(1'000'000, false);
  told.show(1000, seconds(10));
  EXPECT_EQ(told.text(), "velquon-events: 1000 of 1000000 events, 100 a second, 2:46:30 left\n");
}

TEST(ProgressTimes, AreUnknownBeforeTheFirstEvent) {
  Told told(1000, false);
  told.show(0, seconds(10));
  EXPECT_EQ(told.text(), "velquon-events: 0 of 1000 events, 0 a second, unknown left\n");
}

TEST(ProgressNotAskedFor, IsSilent) {
  Progress progress = progress_on(stderr, false, 10);
  ::testing::internal::CaptureStderr();
  progress.show(5, Progress::Clock::now() + std::chrono::hours(1));
  progress.end();
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace velquon
