// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is done with keys, clicks and requests to close that come while a replay keeps the program
// from its event loop.

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QToolBar>
#include <memory>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr int many_points = 5000;        // a replay of 50 s at least
constexpr int points_of_a_second = 120;  // 1.2 s at least, more than xdotool needs to begin

class ReplayEndTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    hideAxesAndValues();
    QObject::connect(&chamber(), &QOpenGLWidget::aboutToCompose, &chamber(), [this] {
      const int shown = chamber().point_number();
      replays_ += shown == 1 && last_shown_ != 1 ? 1 : 0;
      last_shown_ = shown;
      if (replays_ > 0 && !commands_.isEmpty()) {
        input_ = std::make_unique<RealInput>(commands_);
        commands_.clear();
      }
    });
  }

  void showPoints(int count) {
    showEvent(spread_points(count));
    count_ = count;
  }

  /// Replays the event; from its first points on keys and buttons are worked by commands of xdotool.
  /// \return points that were shown when the replay ended
  int replayWith(const QString& commands) {
    const int passes = chamber().passes();
    commands_ = commands;
    choose("replay_item");
    EXPECT_TRUE(wait_until([&] { return replays_ > 0; }));
    // The loop comes back when the replay is over.
    return chamber().passes() - passes;
  }

  /// The same, until all is handled.
  int replayDuring(const QString& commands) {
    const int frames = replayWith(commands);
    EXPECT_TRUE(wait_until([&] { return input_->isOver(); }));
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
  QString commands_;
  std::unique_ptr<RealInput> input_;
};

}  // namespace

TEST_F(ReplayEndTest, EscapeEndsItAndLeavesTheWholeEvent) {
  showPoints(many_points);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 0.2 key Escape")), many_points / 2);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, AClickInTheViewEndsIt) {
  showPoints(many_points);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 0.2 ") + click_at(chamber(), {300, 200})),
            many_points / 2);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, AClickOnReplayEndsItAndStartsNoOther) {
  showPoints(many_points);
  const QWidget& button =
      *control<QToolBar>("chamber_tool_bar").widgetForAction(&item("replay_item"));
  const QSignalSpy chosen(&item("replay_item"), &QAction::triggered);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 0.2 ") + click_at(button, button.rect().center())),
            many_points / 2);
  EXPECT_EQ(chosen.size(), 2);
  run_loop_for(200);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, TheWheelDoesNotEndIt) {
  showPoints(points_of_a_second);
  EXPECT_GE(replayDuring(QStringLiteral("click 4 click 5")), points_of_a_second);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, TheKeysOfQuitEndItAndAreThenHandled) {
  showPoints(many_points);
  // Without its own end of the program, which would be that of the test.
  item("quit_item").disconnect();
  const QSignalSpy chosen(&item("quit_item"), &QAction::triggered);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 0.2 key ctrl+q")), many_points / 2);
  EXPECT_EQ(chosen.size(), 1);
}

TEST_F(ReplayEndTest, ClosingTheWindowEndsItAndIsThenHandled) {
  showPoints(many_points);
  EXPECT_LT(replayDuring(QStringLiteral("sleep 0.2 key alt+F4")), many_points / 2);
  EXPECT_TRUE(wait_until([&] { return !chamberWindow().isVisible(); }));
  EXPECT_EQ(chamber().point_number(), many_points);
}

TEST_F(ReplayEndTest, OtherKeysDoNotEndItAndAreHandledAfterIt) {
  showPoints(points_of_a_second);
  const QSignalSpy made(&item("new_event_item"), &QAction::triggered);
  int shown_when_made = 0;
  QObject::connect(&item("new_event_item"), &QAction::triggered, &chamber(),
                   [&] { shown_when_made = replays(); });
  EXPECT_GE(replayWith(QStringLiteral("key q key ctrl+n")), points_of_a_second);
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
  run_loop_for(700);
  EXPECT_EQ(replays(), 1);
  choose("replay_item");
  EXPECT_TRUE(wait_until([&] { return replays() == 2; }));
}

TEST_F(ReplayEndTest, KeysOfReplayPressedWhileItRunsStartNoOther) {
  showPoints(points_of_a_second);
  const QSignalSpy chosen(&item("replay_item"), &QAction::triggered);
  replayDuring(QStringLiteral("key ctrl+r key ctrl+r key ctrl+r"));
  run_loop_for(200);
  EXPECT_GE(chosen.size(), 2);
  EXPECT_EQ(replays(), 1);
  // A later press does.
  showPoints(3);
  const RealInput again(QStringLiteral("key ctrl+r"));
  EXPECT_TRUE(wait_until([&] { return replays() == 2; }));
}

TEST_F(ReplayEndTest, ReplayHeldDownReplaysOnce) {
  showPoints(many_points);
  const RealInput input(
      QStringLiteral("keydown ctrl keydown r sleep 1 keyup r keyup ctrl sleep 0.2 key Escape"));
  ASSERT_TRUE(wait_until([&] { return replays() > 0; }));
  ASSERT_TRUE(wait_until([&] { return input.isOver(); }));
  run_loop_for(300);
  EXPECT_EQ(replays(), 1);
  expectTheWholeEvent();
}

TEST_F(ReplayEndTest, AnEventMadeByAKeyDuringASlowReplayIsShownWithoutAnother) {
  choose("slomo_item");
  showPoints(points_of_a_second);
  const QSignalSpy made(&item("new_event_item"), &QAction::triggered);
  replayWith(QStringLiteral("key ctrl+n"));
  ASSERT_TRUE(wait_until([&] { return !made.isEmpty(); }));
  const QImage shown = picture_of(chamber());
  run_loop_for(200);
  EXPECT_EQ(replays(), 1);
  chamber().display();
  EXPECT_EQ(differing_pixels(picture_of(chamber()), shown), 0);
}

}  // namespace velquon::test
