// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The replay of an event point by point, seen from inside and on the screen.

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <optional>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr int frame_milliseconds = 10;

class ReplayTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    hideAxesAndValues();
    chamberWindow().raise();
  }

  /// A row of red points that do not cover each other.
  void showRow(int count) {
    std::vector<PlotPoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      points.push_back(point_at(0.0, -380.0 + 760.0 * i / count, 200.0 - 300.0 * (i % 2), 3));
    }
    showEvent(points);
  }

  /// Runs the loop until the replay that was asked for is over. From then on until the function
  /// returns the loop handles nothing else.
  void runReplay(int passes_before) {
    // Both timers are overdue when the loop looks at them: the replay's runs, then, with nothing
    // between, the one that ends the wait.
    QEventLoop loop;
    bool is_over = false;
    QTimer after;
    QObject::connect(&after, &QTimer::timeout, &loop, [&] {
      is_over = chamber().passes() >= passes_before + chamber().point_number();
      if (is_over) {
        at_end_();
        loop.quit();
      }
    });
    after.start(40);
    QTest::qSleep(100);
    QTimer give_up;
    QObject::connect(&give_up, &QTimer::timeout, &loop, &QEventLoop::quit);
    give_up.start(30'000);
    loop.exec();
    EXPECT_TRUE(is_over);
  }

  std::function<void()> at_end_ = [] {};
};

/// What a second process sees of a replay, which it may miss on a busy machine.
class ReplayScreenTest : public ReplayTest {};

/// Red pixels of a view on the screen.
int red_on_screen(const QWidget& view) {
  return count_on_screen(view, red);
}

}  // namespace

TEST_F(ReplayTest, GivesTheFullCountBackAndShowsAllPoints) {
  showRow(30);
  const QImage before = picture_of(chamber());
  const int passes = chamber().passes();
  choose("replay_item");
  runReplay(passes);
  EXPECT_EQ(chamber().point_number(), 30);
  EXPECT_EQ(chamber().data_ptr().size(), 30U);
  EXPECT_EQ(differing_pixels(picture_of(chamber()), before), 0);
}

TEST_F(ReplayTest, DrawsOnceAPointAndTakesAtLeastTenMillisecondsAPoint) {
  constexpr int count = 60;
  showRow(count);
  int passes = 0;
  QElapsedTimer clock;
  qint64 took = 0;
  const int start = chamber().passes();
  choose("replay_item");
  // Stopping the turntable draws once when asked for and once at the replay's begin.
  passes = chamber().passes();
  EXPECT_EQ(passes, start + 1);
  at_end_ = [&] { took = clock.elapsed(); };
  clock.start();
  runReplay(passes);
  EXPECT_EQ(chamber().passes(), passes + 1 + count);
  EXPECT_GE(took, count * frame_milliseconds);
}

TEST_F(ReplayTest, WaitsTenMillisecondsOfTheClockAndNoMoreBeforeEachPoint) {
  constexpr int count = 12;
  constexpr std::uint64_t tick = 100;  // microseconds of a reading
  showRow(count);
  std::uint64_t time = 0;
  chamber().setClock([&time] { return time += tick; });
  std::vector<std::uint64_t> frames;
  int passes = chamber().passes();
  QObject::connect(&chamber(), &QOpenGLWidget::aboutToCompose, &chamber(), [&] {
    if (chamber().passes() > passes) {
      passes = chamber().passes();
      frames.push_back(time);
    }
  });
  choose("replay_item");
  runReplay(chamber().passes());
  chamber().setClock(Microseconds);
  // The last frames are those of the points.
  ASSERT_GE(frames.size(), static_cast<std::size_t>(count));
  for (auto frame = frames.end() - count + 1; frame != frames.end(); ++frame) {
    EXPECT_GT(*frame - *(frame - 1), 10'000U);
    EXPECT_LE(*frame - *(frame - 1), 10'000U + 3 * tick);
  }
}

TEST_F(ReplayTest, BeginsAfterTheTurntablesDelay) {
  showRow(3);
  for (const char* const rate :
       {"rotate_slower_item", "rotate_faster_item", "default_rotate_item"}) {
    SCOPED_TRACE(rate);
    choose(rate);
    choose("replay_item");
    QElapsedTimer clock;
    clock.start();
    const int passes = chamber().passes();
    std::optional<double> began;
    const auto watching =
        QObject::connect(&chamber(), &QOpenGLWidget::aboutToCompose, &chamber(), [&] {
          if (!began && chamber().passes() > passes) {
            began = static_cast<double>(clock.nsecsElapsed()) * 1.0e-9;
          }
        });
    EXPECT_TRUE(wait_until([&] { return chamber().passes() >= passes + 4; }));
    QObject::disconnect(watching);
    constexpr double timers_are_early_by = 0.001;
    EXPECT_GE(began.value_or(0.0), chamber().rot_delay() - timers_are_early_by);
  }
}

TEST_F(ReplayTest, AnEventWithoutPointsHasNothingToReplay) {
  showEvent({});
  const QImage before = picture_of(chamber());
  choose("replay_item");
  const int passes = chamber().passes();
  ASSERT_TRUE(wait_until([&] { return chamber().passes() > passes; }));
  run_loop_for(50);
  EXPECT_EQ(chamber().passes(), passes + 1);
  EXPECT_EQ(chamber().point_number(), 0);
  EXPECT_EQ(differing_pixels(picture_of(chamber()), before), 0);
}

TEST_F(ReplayTest, StopsTheTurntable) {
  showRow(5);
  choose("rotate_item");
  const auto steps = chamber().rotation_steps();
  ASSERT_TRUE(wait_until([&] { return chamber().rotation_steps() > steps + 5; }));
  choose("replay_item");
  EXPECT_FALSE(chamber().is_rotating());
  runReplay(chamber().passes());
  EXPECT_FALSE(chamber().is_rotating());
}

TEST_F(ReplayTest, ANewEventIsReplayedInSlowMotion) {
  choose("slomo_item");
  choose("muplus_item");
  choose("new_event_item");
  const int count = chamber().point_number();
  ASSERT_GT(count, 0);
  const int passes = chamber().passes();
  runReplay(passes);
  EXPECT_GE(chamber().passes(), passes + count);
  EXPECT_EQ(chamber().point_number(), count);

  choose("slomo_item");
  choose("new_event_item");
  const int without = chamber().passes();
  run_loop_for(100);
  EXPECT_EQ(chamber().passes(), without);
}

TEST_F(ReplayScreenTest, PointsAppearOneByOne) {
  constexpr int count = 60;
  showRow(count);
  ASSERT_TRUE(wait_until([&] { return red_on_screen(chamber()) > count; }));
  const int all = red_on_screen(chamber());
  ScreenWatch watch(chamber());
  choose("replay_item");
  runReplay(chamber().passes());
  std::vector<int> counts;
  for (const ScreenLook& look : watch.finish()) {
    counts.push_back(look.count);
  }

  // The whole event before the replay, then a count that only grows.
  ASSERT_GE(counts.size(), 2U);
  EXPECT_EQ(counts.front(), all);
  EXPECT_EQ(counts.back(), all);
  counts.erase(counts.begin());
  EXPECT_TRUE(std::ranges::is_sorted(counts));
  EXPECT_GE(counts.size(), 6U) << "distinct pictures of " << count;
  EXPECT_LT(counts.front(), all / 2);
}

TEST_F(ReplayScreenTest, TheLastPictureIsThereBeforeControlReturns) {
  showRow(40);
  ASSERT_TRUE(wait_until([&] { return red_on_screen(chamber()) > 40; }));
  const int all = red_on_screen(chamber());
  int at_end = 0;
  at_end_ = [&] {
    // The server may be behind; the program does nothing more meanwhile.
    for (int attempt = 0; attempt < 100 && at_end != all; ++attempt) {
      at_end = red_on_screen(chamber());
      QTest::qSleep(5);
    }
  };
  choose("replay_item");
  runReplay(chamber().passes());
  EXPECT_EQ(at_end, all);
}

TEST_F(ReplayTest, NothingElseIsHandledUntilItEnds) {
  constexpr int count = 20;
  showRow(count);
  int looks = 0;
  int looks_in_between = 0;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &chamber(), [&] {
    ++looks;
    looks_in_between += chamber().point_number() != count ? 1 : 0;
  });
  look.start(1);
  choose("replay_item");
  runReplay(chamber().passes());
  EXPECT_GT(looks, 0);
  EXPECT_EQ(looks_in_between, 0);
}

TEST_F(ReplayTest, WorksWhileTheChamberIsHidden) {
  showRow(5);
  chamberWindow().close();
  choose("replay_item");
  run_loop_for(200);
  EXPECT_EQ(chamber().point_number(), 5);
  EXPECT_FALSE(chamberWindow().isVisible());
}

}  // namespace velquon::test
