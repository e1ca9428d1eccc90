// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The live track as a person sees it: the X screen, looked at from outside the program.

#include <QAbstractButton>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>

#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/track_window_fixture.h"
#include "tests/support/windows/waiting.h"
#include "track/track_panel.h"

namespace velquon::test {

namespace {

class TrackScreenTest : public TrackWindowFixture {
 protected:
  void SetUp() override {
    TrackWindowFixture::SetUp();
    activateTrack();
    ASSERT_TRUE(wait_until([&] { return trackOnScreen() == 0; }));
  }

  /// White pixels of the view on the screen; the picture's other pixels are black.
  [[nodiscard]] int trackOnScreen() { return count_on_screen(view(), white); }
  /// How many of the columns from one place of the view to another show some of the track.
  [[nodiscard]] int columnsWithTrack(int from, int to) {
    const QImage shown = screen_picture(view());
    int columns = 0;
    for (int x = from; x < std::min(to, shown.width()); ++x) {
      bool has_track = false;
      for (int y = 0; y < shown.height(); ++y) {
        has_track |= shown.pixel(x, y) == white;
      }
      columns += has_track ? 1 : 0;
    }
    return columns;
  }
  [[nodiscard]] bool waitForWholeTrack() {
    constexpr int area = 490;
    return wait_until([&] { return columnsWithTrack(0, area) == area; });
  }
  /// A run of the fastest particle from left to right, from its begin to its end.
  void runAcross() {
    choose("three_v_item");
    choose("faster_item");
    choose("inject_item");
    waitForEndOfRun();
  }
};

}  // namespace

TEST_F(TrackScreenTest, TheTrackGrowsOnTheScreenWhileTheParticleFlies) {
  ScreenWatch watch(view(), white);
  QElapsedTimer clock;
  clock.start();
  runAcross();
  constexpr int steps = 164;
  constexpr int period = 5;  // milliseconds
  EXPECT_GE(clock.elapsed(), steps * period) << "no faster than its timer, whatever else runs";
  ASSERT_TRUE(waitForWholeTrack());
  std::vector<int> counts;
  for (const ScreenLook& look : watch.finish()) {
    counts.push_back(look.count);
  }
  ASSERT_FALSE(counts.empty());
  EXPECT_EQ(counts.front(), 0);
  EXPECT_TRUE(std::ranges::is_sorted(counts)) << "nothing that was drawn goes away";
  EXPECT_GE(counts.back(), 490);
  EXPECT_GE(counts.size(), 6U) << "pictures of a growing track";
}

TEST_F(TrackScreenTest, TheLastOfSomeQuickStepsIsOnTheScreenToo) {
  choose("v_item");
  choose("inject_item");
  ASSERT_TRUE(wait_until([&] { return points() > 0; }));
  holdRun();
  step(10);
  run_loop_for(50);
  // The second step mostly comes before the screen can show another picture, and nothing else brings
  // its picture to the screen: no further step, nor what the window still has to do for the first.
  for (int pair = 0; pair < 20; ++pair) {
    const int before = trackOnScreen();
    step(1);
    QCoreApplication::removePostedEvents(&trackWindow(), QEvent::UpdateRequest);
    step(1);
    ASSERT_TRUE(wait_until([&] { return trackOnScreen() == before + 2; })) << pair;
  }
}

TEST_F(TrackScreenTest, ClearingWithoutARunEmptiesTheScreenAtOnce) {
  for (const char* const way : {"menu", "button"}) {
    SCOPED_TRACE(way);
    runAcross();
    ASSERT_TRUE(waitForWholeTrack());
    ASSERT_FALSE(view().is_tracking());
    if (way == std::string_view("menu")) {
      choose("clear_screen_item");
    } else {
      trackWindow().panel().clear_button()->click();
    }
    EXPECT_TRUE(wait_until([&] { return trackOnScreen() == 0; }));
  }
}

TEST_F(TrackScreenTest, ClearingDuringARunTakesTheTrackAwayAndTheParticleGoesOn) {
  choose("v_item");
  choose("inject_item");
  ASSERT_TRUE(wait_until([&] { return columnsWithTrack(0, 40) == 40; }));
  choose("clear_screen_item");
  EXPECT_TRUE(wait_until([&] { return columnsWithTrack(0, 40) == 0; }));
  EXPECT_TRUE(wait_until([&] { return columnsWithTrack(40, 490) >= 60; }));
  EXPECT_TRUE(view().is_tracking());
  EXPECT_EQ(columnsWithTrack(0, 40), 0);
}

TEST_F(TrackScreenTest, AnInjectionTakesTheTrackBeforeOffTheScreen) {
  runAcross();
  ASSERT_TRUE(waitForWholeTrack());
  choose("v_item");
  choose("inject_item");
  EXPECT_TRUE(wait_until([&] { return columnsWithTrack(300, 490) == 0; }));
  EXPECT_TRUE(view().is_tracking());
  EXPECT_TRUE(wait_until([&] { return columnsWithTrack(0, 300) > 20; }));
}

TEST_F(TrackScreenTest, AWindowThatComesBackDuringARunShowsTheWholeTrack) {
  choose("v_item");
  choose("inject_item");
  ASSERT_TRUE(wait_until([&] { return points() > 10; }));
  trackWindow().close();
  ASSERT_TRUE(wait_until([&] { return points() > 150; }));
  choose("track_window_item");
  EXPECT_TRUE(wait_until([&] { return columnsWithTrack(0, 150) == 150; }));
  EXPECT_TRUE(view().is_tracking());
}

}  // namespace velquon::test
