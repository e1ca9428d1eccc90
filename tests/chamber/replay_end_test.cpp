// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is done with keys, clicks and requests to close that come while a replay keeps the program
// from its event loop.

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QToolBar>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr int many_points = 5000;  // a replay of 50 s at least

class ReplayEndTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    hideAxesAndValues();
    QObject::connect(&chamber(), &QOpenGLWidget::aboutToCompose, &chamber(), [this] {
      const int shown = chamber().point_number();
      replays_ += shown == 1 && last_shown_ != 1 ? 1 : 0;
      last_shown_ = shown;
    });
  }

  void showPoints(int count) {
    std::vector<PlotPoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      points.push_back(point_at(0.0, i % 701 - 350, i % 613 - 306, 3));
    }
    showEvent(points);
    count_ = count;
  }

  /// Replays the event while keys and buttons are worked by commands of xdotool.
  /// \return points that were shown when the replay ended
  int replayDuring(const QString& commands) {
    const int passes = chamber().passes();
    const RealInput input(commands);
    choose("replay_item");
    EXPECT_TRUE(wait_until([&] { return replays_ > 0; }));
    // The loop comes back when the replay is over.
    const int frames = chamber().passes() - passes;
    EXPECT_TRUE(wait_until([&] { return input.isOver(); }));
    run_loop_for(100);
    return frames;
  }

  void expectTheWholeEvent() {
    EXPECT_EQ(chamber().point_number(), count_);
    chamberWindow().raise();
    EXPECT_TRUE(screen_comes_to_show(chamber(), picture_of(chamber())));
    const QImage shown = picture_of(chamber());
    chamber().display();
    EXPECT_EQ(differing_pixels(picture_of(chamber()), shown), 0);
  }

  [[nodiscard]] int replays() const { return replays_; }

 private:
  int count_ = 0;
  int replays_ = 0;
  int last_shown_ = 0;
};

}  // namespace

TEST_F(ReplayEndTest, EscapeEndsItAndLeavesTheWholeEvent) {
  showPoints(many_points);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 1 key Escape")), many_points / 2);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, AClickInTheViewEndsIt) {
  showPoints(many_points);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 1 ") + click_at(chamber(), {300, 200})),
            many_points / 2);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, AClickOnReplayEndsItAndStartsNoOther) {
  showPoints(many_points);
  const QWidget& button =
      *control<QToolBar>("chamber_tool_bar").widgetForAction(&item("replay_item"));
  const QSignalSpy chosen(&item("replay_item"), &QAction::triggered);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 1 ") + click_at(button, button.rect().center())),
            many_points / 2);
  EXPECT_EQ(chosen.size(), 2);
  run_loop_for(200);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, TheWheelDoesNotEndIt) {
  showPoints(100);
  EXPECT_GE(replayDuring(QStringLiteral("sleep 0.5 click 4 click 5")), 100);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, TheKeysOfQuitEndItAndAreThenHandled) {
  showPoints(many_points);
  // Without its own end of the program, which would be that of the test.
  item("quit_item").disconnect();
  const QSignalSpy chosen(&item("quit_item"), &QAction::triggered);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 1 key ctrl+q")), many_points / 2);
  EXPECT_EQ(chosen.size(), 1);
}

TEST_F(ReplayEndTest, ClosingTheWindowEndsItAndIsThenHandled) {
  showPoints(many_points);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 1 key alt+F4")), many_points / 2);
  EXPECT_TRUE(wait_until([&] { return !chamberWindow().isVisible(); }));
  EXPECT_EQ(chamber().point_number(), many_points);
}

TEST_F(ReplayEndTest, OtherKeysDoNotEndItAndAreHandledAfterIt) {
  showPoints(150);
  const QSignalSpy made(&item("new_event_item"), &QAction::triggered);
  const RealInput input(QStringLiteral("sleep 0.5 key q key ctrl+n"));
  int shown_when_made = 0;
  QObject::connect(&item("new_event_item"), &QAction::triggered, &chamber(),
                   [&] { shown_when_made = replays(); });
  choose("replay_item");
  ASSERT_TRUE(wait_until([&] { return !made.isEmpty(); }));
  EXPECT_EQ(made.size(), 1);
  EXPECT_EQ(shown_when_made, 1);
  EXPECT_EQ(chamberWindow().windowTitle(),
            QStringLiteral("Particle Chamber: Untitled Type 1 Decay"));
}

TEST_F(ReplayEndTest, AReplayAskedForWhileOneIsDueIsDropped) {
  showPoints(20);
  for (int i = 0; i < 5; ++i) {
    choose("replay_item");
  }
  run_loop_for(1500);
  EXPECT_EQ(replays(), 1);
  choose("replay_item");
  EXPECT_TRUE(wait_until([&] { return replays() == 2; }));
}

TEST_F(ReplayEndTest, KeysOfReplayPressedWhileItRunsStartNoOther) {
  showPoints(150);
  const QSignalSpy chosen(&item("replay_item"), &QAction::triggered);
  replayDuring(QStringLiteral("sleep 0.5 key ctrl+r key ctrl+r key ctrl+r"));
  run_loop_for(200);
  EXPECT_GE(chosen.size(), 2);
  EXPECT_EQ(replays(), 1);
  // A later press does.
  const RealInput again(QStringLiteral("key ctrl+r"));
  EXPECT_TRUE(wait_until([&] { return replays() == 2; }));
}

TEST_F(ReplayEndTest, ReplayHeldDownReplaysOnce) {
  showPoints(many_points);
  const RealInput input(
      QStringLiteral("keydown ctrl keydown r sleep 2 keyup r keyup ctrl sleep 0.2 key Escape"));
  ASSERT_TRUE(wait_until([&] { return replays() > 0; }));
  ASSERT_TRUE(wait_until([&] { return input.isOver(); }));
  run_loop_for(300);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, AnEventMadeByAKeyDuringASlowReplayIsShownWithoutAnother) {
  choose("slomo_item");
  showPoints(150);
  const RealInput input(QStringLiteral("sleep 0.5 key ctrl+n"));
  const QSignalSpy made(&item("new_event_item"), &QAction::triggered);
  choose("replay_item");
  ASSERT_TRUE(wait_until([&] { return !made.isEmpty(); }));
  const QImage shown = picture_of(chamber());
  run_loop_for(200);
  EXPECT_EQ(replays(), 1);
  chamber().display();
  EXPECT_EQ(differing_pixels(picture_of(chamber()), shown), 0);
}

}  // namespace velquon::test
