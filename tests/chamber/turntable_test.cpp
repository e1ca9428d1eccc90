// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The turntable: how it starts, turns and stops.

#include <GL/gl.h>

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <array>
#include <cmath>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr double degrees_per_step = 0.5;

class TurntableTest : public ApplicationFixture {
 protected:
  const std::array<PlotPoint, 4> marks_{
      point_at(300.0, -100.0, 200.0, 3), point_at(-250.0, 150.0, 100.0, 4),
      point_at(100.0, 250.0, -150.0, 6), point_at(-50.0, -300.0, -250.0, 7)};

  void SetUp() override {
    ApplicationFixture::SetUp();
    hideAxesAndValues();
    showEvent(marks_);
    waitUntilTheKeysRest();
  }

  /// A window manager may still move the focus about when windows have just come and gone.
  void waitUntilTheKeysRest() {
    constexpr qint64 calm = 100;  // milliseconds
    QElapsedTimer since;
    since.start();
    ASSERT_TRUE(wait_until([&] {
      if (!chamberWindow().isActiveWindow()) {
        chamberWindow().activateWindow();
        since.restart();
      }
      return since.elapsed() > calm;
    }));
  }

  [[nodiscard]] bool waitForSteps(std::int64_t count) {
    const auto goal = chamber().rotation_steps() + count;
    return wait_until([&] { return chamber().rotation_steps() >= goal; });
  }
  /// Turns by some steps and returns by how many.
  [[nodiscard]] int turn(const char* item_name, std::int64_t count) {
    const auto before = chamber().rotation_steps();
    choose(item_name);
    EXPECT_TRUE(waitForSteps(count));
    chamber().stopRotating();
    return static_cast<int>(chamber().rotation_steps() - before);
  }
  void expectMarksSeenBy(const PictureCamera& camera) {
    const QImage picture = picture_of(chamber());
    std::vector<QPointF> places;
    for (const PlotPoint& mark : marks_) {
      places.push_back(camera.pixel({mark.coords[0], mark.coords[1], mark.coords[2]}));
    }
    std::size_t seen = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
      // How far it turned is a matter of time, so a later mark may just be in front.
      const bool is_covered = std::any_of(
          places.begin() + static_cast<std::ptrdiff_t>(i) + 1, places.end(), [&](QPointF later) {
            return std::hypot(later.x() - places[i].x(), later.y() - places[i].y()) < 4.0;
          });
      if (!is_covered) {
        EXPECT_EQ(color_at(picture, places[i]), color_of_code(marks_.at(i).code)) << "mark " << i;
        ++seen;
      }
    }
    EXPECT_GE(seen, 2U);
  }
  [[nodiscard]] velquon::Matrix viewpoint() { return chamber().camera().modelView(); }
  void expectNoMoreSteps() {
    EXPECT_FALSE(chamber().is_rotating());
    const auto steps = chamber().rotation_steps();
    run_loop_for(80);
    EXPECT_EQ(chamber().rotation_steps(), steps);
  }
  /// From now on the turntable goes by a clock that stands still unless it is moved.
  void stopTheClock() {
    chamber().setClock([this] { return time_; });
  }
  /// Moves the clock on and lets the turntable's timer fire then.
  /// \return the steps that were made
  [[nodiscard]] std::int64_t stepsAfter(std::uint64_t microseconds) {
    const auto before = chamber().rotation_steps();
    time_ += microseconds;
    chamber().rotate();
    return chamber().rotation_steps() - before;
  }

 private:
  std::uint64_t time_ = 5'000'000'000;
};

}  // namespace

TEST_F(TurntableTest, RestsAtTheRestingViewpoint) {
  EXPECT_FALSE(chamber().is_rotating());
  EXPECT_EQ(chamber().rotation_steps(), 0);
  expectMarksSeenBy(resting_camera());
}

TEST_F(TurntableTest, TurnsHalfADegreeAStepAboutTheChosenAxis) {
  struct Case {
    const char* item;
    Vector axis;
  };
  constexpr std::array cases{Case{"x_item", along_x}, Case{"y_item", along_y},
                             Case{"z_item", along_z}};
  for (const auto& [name, axis] : cases) {
    SCOPED_TRACE(name);
    choose(name);
    const int forward = turn("rotate_item", 15);
    expectMarksSeenBy(resting_camera().turned(forward * degrees_per_step, axis));
    choose("reset_orientation_item");
    const int back = turn("reverse_rotate_item", 15);
    expectMarksSeenBy(resting_camera().turned(-back * degrees_per_step, axis));
    choose("reset_orientation_item");
    expectMarksSeenBy(resting_camera());
  }
}

TEST_F(TurntableTest, OrientationAccumulatesOverAxes) {
  PictureCamera camera = resting_camera();
  struct Case {
    const char* item;
    Vector axis;
  };
  constexpr std::array cases{Case{"z_item", along_z}, Case{"x_item", along_x},
                             Case{"y_item", along_y}};
  for (const auto& [name, axis] : cases) {
    SCOPED_TRACE(name);
    choose(name);
    camera = camera.turned(turn("rotate_item", 20) * degrees_per_step, axis);
    expectMarksSeenBy(camera);
  }
}

TEST_F(TurntableTest, AnAxisChosenWhileTurningGoesOnFromThere) {
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(40));
  const auto about_x = static_cast<double>(chamber().rotation_steps());
  choose("z_item");
  EXPECT_TRUE(chamber().is_rotating());
  ASSERT_TRUE(waitForSteps(40));
  chamber().stopRotating();
  const auto about_z = static_cast<double>(chamber().rotation_steps()) - about_x;
  expectMarksSeenBy(resting_camera()
                        .turned(about_x * degrees_per_step, along_x)
                        .turned(about_z * degrees_per_step, along_z));
}

TEST_F(TurntableTest, ReversingTurnsBackWithoutASecondChain) {
  stopTheClock();
  choose("rotate_item");
  const std::int64_t forward = stepsAfter(0);
  EXPECT_EQ(forward, 1);
  choose("reverse_rotate_item");
  EXPECT_EQ(chamber().rot_angle(), -0.5F);
  // Chosen again and again it starts nothing more.
  choose("reverse_rotate_item");
  choose("reverse_rotate_item");
  std::int64_t back = 0;
  for (int i = 0; i < 60; ++i) {
    back += stepsAfter(10'000);
  }
  EXPECT_EQ(back, 60);
  chamber().stopRotating();
  expectMarksSeenBy(
      resting_camera().turned(static_cast<double>(forward - back) * degrees_per_step, along_x));
}

TEST_F(TurntableTest, StoppedAndStartedAtOnceItHasOneChainOfSteps) {
  stopTheClock();
  const auto before = chamber().rotation_steps();
  QElapsedTimer since;
  since.start();
  for (int i = 0; i < 20; ++i) {
    choose("rotate_item");
    chamber().stopRotating();
  }
  choose("rotate_item");
  run_loop_for(30);
  // Its clock stands still, so a chain makes one step at once and each later one still later.
  const auto steps = chamber().rotation_steps() - before;
  EXPECT_GE(steps, 1);
  EXPECT_LE(steps, 1 + since.elapsed() / 9);
  EXPECT_LT(steps, 20);
}

TEST_F(TurntableTest, AClickInTheChamberStopsIt) {
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(5));
  QTest::mousePress(&chamber(), Qt::LeftButton, {}, QPoint(300, 200));
  expectNoMoreSteps();
  QTest::mouseRelease(&chamber(), Qt::LeftButton, {}, QPoint(300, 200));
  choose("rotate_item");
  EXPECT_TRUE(waitForSteps(5));
}

TEST_F(TurntableTest, OtherMouseButtonsDoNotStopIt) {
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(5));
  QTest::mouseClick(&chamber(), Qt::RightButton, {}, QPoint(300, 200));
  QTest::mouseClick(&chamber(), Qt::MiddleButton, {}, QPoint(300, 200));
  EXPECT_TRUE(chamber().is_rotating());
}

TEST_F(TurntableTest, AnotherProgramTakingTheKeysStopsIt) {
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(5));
  activateAnotherProgram();
  expectNoMoreSteps();
}

TEST_F(TurntableTest, TheProjectorTakingTheKeysStopsIt) {
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(5));
  activate(projectorWindow());
  expectNoMoreSteps();
}

TEST_F(TurntableTest, StartedFromTheProjectorItTakesTheKeysAndKeepsTurning) {
  activate(projectorWindow());
  for (const char* const name : {"rotate_item", "reverse_rotate_item"}) {
    SCOPED_TRACE(name);
    activate(projectorWindow());
    choose(name);
    ASSERT_TRUE(wait_until([&] { return chamberWindow().isActiveWindow(); }));
    EXPECT_TRUE(waitForSteps(50));
    EXPECT_TRUE(chamber().is_rotating());
    EXPECT_EQ(controller().printView(), &chamber());
    activate(projectorWindow());
    expectNoMoreSteps();
  }
}

TEST_F(TurntableTest, StartedWithTheChamberHiddenItBringsTheChamberBack) {
  chamberWindow().close();
  activate(projectorWindow());
  choose("rotate_item");
  EXPECT_TRUE(chamberWindow().isVisible());
  ASSERT_TRUE(wait_until([&] { return chamberWindow().isActiveWindow(); }));
  EXPECT_TRUE(waitForSteps(50));
}

TEST_F(TurntableTest, StartedWithTheChamberMinimizedItBringsTheChamberBack) {
  chamberWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return chamberWindow().isMinimized(); }));
  activate(projectorWindow());
  choose("rotate_item");
  EXPECT_TRUE(wait_until([&] { return !chamberWindow().isMinimized(); }));
  ASSERT_TRUE(wait_until([&] { return chamberWindow().isActiveWindow(); }));
  EXPECT_TRUE(waitForSteps(50));
}

TEST_F(TurntableTest, TheShortcutsTurnBothWays) {
  QTest::keyClick(&chamberWindow(), Qt::Key_T, Qt::ControlModifier);
  ASSERT_TRUE(wait_until([&] { return chamber().is_rotating(); }));
  EXPECT_EQ(chamber().rot_angle(), 0.5F);
  QTest::keyClick(&chamberWindow(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
  ASSERT_TRUE(wait_until([&] { return chamber().rot_angle() == -0.5F; }));
  QTest::keyClick(&chamberWindow(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_TRUE(wait_until([&] { return !chamber().is_rotating(); }));
}

TEST_F(TurntableTest, ResetStopsItAndGoesBackToRest) {
  const QImage resting = picture_of(chamber());
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(40));
  choose("reset_orientation_item");
  expectNoMoreSteps();
  EXPECT_EQ(differing_pixels(picture_of(chamber()), resting), 0);
}

TEST_F(TurntableTest, StoppingRedrawsWithWhatWasTurned) {
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(3));
  const int passes = chamber().passes();
  chamber().stopRotating();
  EXPECT_GT(chamber().passes(), passes);
}

TEST_F(TurntableTest, StoppedWhileItStandsItIsDrawnOnceWithTheNextFrame) {
  const int passes = chamber().passes();
  chamber().stopRotating();
  chamber().stopRotating();
  EXPECT_EQ(chamber().passes(), passes);
  EXPECT_TRUE(wait_until([&] { return chamber().passes() > passes; }));
  run_loop_for(50);
  EXPECT_EQ(chamber().passes(), passes + 1);
}

TEST_F(TurntableTest, ManyOfItsPicturesAreSeenOnTheScreen) {
  chamberWindow().raise();
  ASSERT_TRUE(screen_comes_to_show(chamber(), picture_of(chamber())));
  ScreenWatch watch(chamber());
  choose("rotate_item");
  ASSERT_TRUE(waitForSteps(100));
  const int seen = distinct_pictures(watch.finish());
  chamber().stopRotating();
  // The first picture and the last are there however it turns.
  EXPECT_GE(seen, 5);
  EXPECT_TRUE(screen_comes_to_show(chamber(), picture_of(chamber())));
}

TEST_F(TurntableTest, TurnsAtItsRatesByTheClock) {
  struct Case {
    const char* item;
    std::uint64_t delay;  // microseconds
  };
  constexpr std::array cases{Case{"rotate_faster_item", 5'000}, Case{"default_rotate_item", 10'000},
                             Case{"rotate_slower_item", 20'000}};
  stopTheClock();
  choose("rotate_item");
  EXPECT_EQ(stepsAfter(0), 1);
  // The step that is due was set when the rate was another.
  std::uint64_t until_next = 10'000;
  for (const auto& [name, delay] : cases) {
    SCOPED_TRACE(name);
    choose(name);
    EXPECT_TRUE(chamber().is_rotating());
    EXPECT_EQ(stepsAfter(until_next), 1);
    until_next = delay;
    for (int i = 0; i < 50; ++i) {
      EXPECT_EQ(stepsAfter(delay), 1);
    }
  }
}

TEST_F(TurntableTest, StepsThatFellDueWhileAFrameWasDrawnAreMadeUpFor) {
  stopTheClock();
  choose("rotate_faster_item");
  choose("rotate_item");
  EXPECT_EQ(stepsAfter(0), 1);
  // Drawing may take as long as it wants: 200 steps a second remain.
  EXPECT_EQ(stepsAfter(43'000), 8);
  EXPECT_EQ(stepsAfter(2'000), 1);
  EXPECT_EQ(stepsAfter(100'000), 20);
}

TEST_F(TurntableTest, AStandstillOfMoreThanAQuarterSecondIsNotMadeUpFor) {
  stopTheClock();
  choose("rotate_item");
  EXPECT_EQ(stepsAfter(0), 1);
  EXPECT_EQ(stepsAfter(10'000 + 250'000), 26);
  EXPECT_EQ(stepsAfter(10'000 + 251'000), 1);
  EXPECT_EQ(stepsAfter(3'600'000'000), 1);
  EXPECT_EQ(stepsAfter(10'000), 1);
}

TEST_F(TurntableTest, AStepOfAStoppedTurntableDoesNothing) {
  stopTheClock();
  const QImage resting = picture_of(chamber());
  choose("rotate_item");
  chamber().stopRotating();
  EXPECT_EQ(stepsAfter(100'000), 0);
  EXPECT_EQ(differing_pixels(picture_of(chamber()), resting), 0);
}

TEST_F(TurntableTest, ANewEventIsHandedOverAndShownAtTheRestingViewpointWhenWanted) {
  const auto resting = viewpoint();
  choose("reset_each_item");
  ASSERT_GT(turn("rotate_item", 20), 0);
  ASSERT_NE(viewpoint(), resting);
  // The windows are named after the event has been handed over and before it is shown.
  int names = 0;
  QObject::connect(&chamberWindow(), &QWidget::windowTitleChanged, &chamber(), [&] {
    ++names;
    EXPECT_EQ(viewpoint(), resting);
    chamber().doRotation(RotationDirection::forward);
    chamber().rotate();
    EXPECT_NE(viewpoint(), resting);
  });
  choose("new_event_item");
  EXPECT_EQ(names, 1);
  EXPECT_EQ(viewpoint(), resting);
}

}  // namespace velquon::test
