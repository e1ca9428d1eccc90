// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/new_track_view.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "tests/support/windows/waiting.h"
#include "tests/track/track_rig.h"

// The view's runs: timer, injection, cursors, and what was there before the timer.

namespace velquon {
namespace {

using test::TrackRig;
using test::wait_until;

class TrackView : public ::testing::Test {
 protected:
  TrackRig rig;
};

TEST_F(TrackView, BeginsWithoutARunOrATimer) {
  EXPECT_FALSE(rig.view->is_tracking());
  EXPECT_EQ(rig.view->trackTimer(), nullptr);
  EXPECT_EQ(rig.model.simulation().show_points(), 0);
  EXPECT_EQ(rig.view->musecs(), 4000);
  EXPECT_EQ(rig.view->tapeLength(), 0.0);
}

/// A run of the fastest screen speed whose timer and clock the test moves by hand.
class PacedTrackView : public TrackView {
 protected:
  PacedTrackView() {
    rig.view->setClock([this] { return now; });
    rig.activate();
    rig.v_item->trigger();
    rig.faster_item->trigger();
    rig.panel->inject_button()->click();
    // From here on the event loop does not run, so that the timer never fires by itself.
    QCoreApplication::sendPostedEvents(rig.view, QEvent::MetaCall);
    EXPECT_TRUE(rig.view->trackTimer() != nullptr);
  }

  /// Lets time pass and the timer fire once, and returns the steps that are made.
  int stepsAfter(int milliseconds) {
    now += static_cast<std::uint64_t>(milliseconds) * 1000;
    const int before = points();
    EXPECT_TRUE(QMetaObject::invokeMethod(rig.view->trackTimer(), "timeout"));
    return points() - before;
  }
  [[nodiscard]] int points() const { return rig.model.simulation().show_points(); }

  std::uint64_t now = 1'000'000;  // microseconds
};

TEST_F(PacedTrackView, EachFiringOfATimerThatKeepsItsTimeMakesAStep) {
  for (int firing = 1; firing <= 100; ++firing) {
    stepsAfter(5);
    ASSERT_EQ(points(), 1 + firing);
  }
}

TEST_F(PacedTrackView, StepsThatFellDueMeanwhileAreMadeUpFor) {
  EXPECT_EQ(stepsAfter(5), 1);
  EXPECT_EQ(stepsAfter(60), 12) << "twelve periods of 5 ms";
  EXPECT_EQ(stepsAfter(8), 1);
  EXPECT_EQ(stepsAfter(2), 1) << "the late step does not put off the next";
}

TEST_F(PacedTrackView, ALongStandstillIsNotMadeUpFor) {
  EXPECT_EQ(stepsAfter(5), 1);
  EXPECT_EQ(stepsAfter(500), 1);
  EXPECT_EQ(stepsAfter(5), 1);
}

TEST_F(PacedTrackView, ARunThatEndsOwesNoSteps) {
  while (points() < 489) {
    stepsAfter(50);
  }
  // The particle is at 488 or beyond, and the next firings would bring it to 498.
  stepsAfter(50);
  EXPECT_FALSE(rig.view->is_tracking());
  EXPECT_FALSE(rig.view->trackTimer()->isActive());
  EXPECT_EQ(points(), 492);
  EXPECT_TRUE(rig.v_item->isEnabled());
}

TEST_F(TrackView, ARunOfItsTimerCrossesTheAreaAndEnds) {
  rig.activate();
  rig.three_v_item->trigger();
  rig.faster_item->trigger();
  QElapsedTimer clock;
  clock.start();
  rig.panel->inject_button()->click();
  EXPECT_TRUE(rig.view->is_tracking());
  EXPECT_EQ(rig.view->trackTimer(), nullptr) << "the start comes from the event loop";
  ASSERT_TRUE(rig.waitForEnd());
  // 164 steps bring the particle from 0 to 492, and the next firing ends the run.
  EXPECT_GE(clock.elapsed(), 165 * 5 - 5) << "no faster than its timer, whatever else runs";
  EXPECT_FALSE(rig.view->is_tracking());
  EXPECT_EQ(rig.model.simulation().show_points(), 165);
  EXPECT_EQ(rig.model.simulation().x_points().back(), 492.0F);
  EXPECT_EQ(rig.model.simulation().y_points().back(), 228.0F);
}

TEST_F(TrackView, EveryStepIsDrawnAtOnce) {
  rig.activate();
  rig.injectAndHold();
  for (int step = 0; step < 5; ++step) {
    const int before = rig.view->passes();
    rig.step(1);
    EXPECT_EQ(rig.view->passes(), before + 1);
  }
  // The end is no step.
  while (rig.model.simulation().canStep()) {
    rig.step(1);
  }
  const int before = rig.view->passes();
  rig.step(1);
  EXPECT_EQ(rig.view->passes(), before);
  EXPECT_FALSE(rig.view->is_tracking());
}

TEST_F(TrackView, ASecondInjectionStartsOverWithOneTimer) {
  rig.activate();
  rig.injectAndHold();
  rig.step(50);
  rig.view->trackTimer()->start();
  rig.RtoL_item->setEnabled(true);
  rig.RtoL_item->trigger();
  rig.view->injectParticle();
  rig.view->injectParticle();
  ASSERT_TRUE(wait_until([&] { return rig.model.simulation().stepping().old_x == 490.0; }));
  EXPECT_EQ(rig.model.simulation().stepping().istep, 1);
  QTest::qWait(20);
  EXPECT_EQ(rig.view->findChildren<QTimer*>().size(), 0);
  EXPECT_TRUE(rig.view->trackTimer()->isActive());
  EXPECT_TRUE(rig.view->is_tracking());
}

TEST_F(TrackView, DeactivatedDuringARunItsParticleFliesOnUntilItLeaves) {
  rig.activate();
  rig.faster_item->trigger();
  rig.inject_item->trigger();
  ASSERT_TRUE(wait_until([&] { return rig.model.simulation().show_points() > 5; }));
  rig.deactivate();
  EXPECT_FALSE(rig.window->isVisible());
  EXPECT_FALSE(rig.view->is_tracking());
  EXPECT_TRUE(rig.view->trackTimer()->isActive());
  const std::int32_t points = rig.model.simulation().show_points();
  ASSERT_TRUE(rig.waitForEnd());
  EXPECT_GT(rig.model.simulation().show_points(), points);
  EXPECT_FALSE(rig.model.simulation().canStep());
  EXPECT_TRUE(rig.menus.new_event_item->isEnabled()) << "the end does not switch the menus";
}

TEST_F(TrackView, ClosedDuringAnInjectionItRunsOutOfSight) {
  rig.activate();
  rig.faster_item->trigger();
  rig.inject_item->trigger();
  rig.window->close();
  ASSERT_TRUE(rig.waitForEnd());
  EXPECT_FALSE(rig.view->is_tracking());
  EXPECT_TRUE(rig.controller->activated());
}

TEST_F(TrackView, TheCrossHairIsThereDuringARun) {
  rig.activate();
  EXPECT_EQ(rig.view->cursor().shape(), Qt::ArrowCursor);
  rig.injectAndHold();
  EXPECT_EQ(rig.view->cursor().pixmap().toImage(),
            rig.view->cross_hair_cursor().pixmap().toImage());
  EXPECT_EQ(rig.view->cursor().hotSpot(), QPoint(7, 7));
  while (rig.view->is_tracking()) {
    rig.step(1);
  }
  EXPECT_EQ(rig.view->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TrackView, HasTwoCrossHairs) {
  EXPECT_FALSE(rig.view->cross_hair_cursor().pixmap().isNull());
  EXPECT_FALSE(rig.view->black_cursor().pixmap().isNull());
  EXPECT_EQ(rig.view->black_cursor().hotSpot(), QPoint(7, 7));
  EXPECT_NE(rig.view->black_cursor().pixmap().toImage(),
            rig.view->cross_hair_cursor().pixmap().toImage());
}

TEST_F(TrackView, ItsTimerCanBeReplaced) {
  auto timer = std::make_unique<QTimer>();
  const QTimer* given = timer.get();
  rig.view->setTrackTimer(std::move(timer));
  EXPECT_EQ(rig.view->trackTimer(), given);
}

struct SliderField {
  double slider, field;
};

class TrackField : public ::testing::TestWithParam<SliderField> {};

TEST_P(TrackField, SnapsToATickThatIsNextToIt) {
  const TrackRig rig;
  rig.slider->moveTo(GetParam().slider);
  // The slider holds 32 bits of its value.
  EXPECT_NEAR(rig.model.simulation().settings.B_field, GetParam().field, 1.0e-7);
  EXPECT_EQ(rig.panel->field_text()->text(),
            QString::asprintf("B = %.2f", rig.model.simulation().settings.B_field));
}

INSTANTIATE_TEST_SUITE_P(Values, TrackField,
                         ::testing::Values(SliderField{0.0, 0.0}, SliderField{0.0049, 0.0},
                                           SliderField{-0.0049, 0.0}, SliderField{0.006, 0.006},
                                           SliderField{-0.006, -0.006}, SliderField{0.304, 0.3},
                                           SliderField{0.296, 0.3}, SliderField{0.306, 0.306},
                                           SliderField{0.294, 0.294}, SliderField{-0.704, -0.7},
                                           SliderField{-0.65, -0.65}, SliderField{0.997, 1.0},
                                           SliderField{1.0, 1.0}, SliderField{-1.0, -1.0}));

TEST_F(TrackView, ATickIsTakenExactly) {
  rig.slider->moveTo(0.3);
  EXPECT_DOUBLE_EQ(rig.model.simulation().settings.B_field, 0.3);
  EXPECT_NE(rig.slider->doubleValue(), 0.3) << "as the slider's 32 bits are not";
}

TEST_F(TrackView, AnInjectionStartsItsRunFromTheEventLoopOnThisThread) {
  rig.activate();
  rig.model.setTimerSecs(1000.0);
  const auto threads = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs).size();
  rig.view->injectParticle();
  EXPECT_EQ(QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs).size(), threads);
  EXPECT_EQ(rig.view->trackTimer(), nullptr);
  EXPECT_EQ(rig.model.simulation().show_points(), 0);
  QCoreApplication::sendPostedEvents(rig.view, QEvent::MetaCall);
  ASSERT_NE(rig.view->trackTimer(), nullptr);
  EXPECT_TRUE(rig.view->trackTimer()->isActive());
  EXPECT_EQ(rig.model.simulation().show_points(), 1);
}

TEST_F(TrackView, AStartOfItsOwnBeginsARun) {
  rig.activate();
  rig.inject_item->trigger();
  rig.view->stopTracking();
  ASSERT_FALSE(rig.view->is_tracking());
  rig.view->trackOnScreen();
  EXPECT_TRUE(rig.view->is_tracking());
  EXPECT_TRUE(rig.view->trackTimer()->isActive());
}

TEST_F(TrackView, DeletedBeforeAnInjectionHasStartedItsRunItLeavesNothingBehind) {
  rig.view->injectParticle();
  delete rig.view;
  QCoreApplication::processEvents();
  EXPECT_EQ(rig.panel->findChild<NewTrackView*>(), nullptr);
}

TEST_F(TrackView, DeletedAfterManyInjectionsItLeavesNothingBehind) {
  rig.activate();
  for (int time = 0; time < 50; ++time) {
    rig.view->injectParticle();
  }
  delete rig.view;
  QTest::qWait(20);
  EXPECT_EQ(rig.panel->findChild<NewTrackView*>(), nullptr);
}

TEST_F(TrackView, DeletedInTheMiddleOfARunItLeavesNothingBehind) {
  rig.activate();
  rig.faster_item->trigger();
  rig.inject_item->trigger();
  ASSERT_TRUE(wait_until([&] { return rig.model.simulation().show_points() > 5; }));
  delete rig.view;
  QTest::qWait(50);  // as long as several firings of its timer
  EXPECT_EQ(rig.panel->findChild<NewTrackView*>(), nullptr);
}

TEST_F(TrackView, TheLegacyLoopRunsToTheEndOfItsArea) {
  rig.view->setSpeed(3.0F);
  rig.view->injectParticle();
  rig.view->OldtrackOnScreen();
  const TrackSimulation& simulation = rig.model.simulation();
  EXPECT_FALSE(rig.view->is_tracking());
  EXPECT_EQ(simulation.time_interval(), 0.25);
  EXPECT_EQ(simulation.stepping().rot_fac, 0.0125);
  // Steps of 0.75 view units; the last point is the first outside.
  EXPECT_EQ(simulation.x_points()[1], 0.75F);
  EXPECT_EQ(simulation.x_points().back(), 490.5F);
  EXPECT_EQ(simulation.y_points().back(), 235.0F);
  EXPECT_TRUE(rig.view->pause());
  rig.view->goAhead();
  EXPECT_FALSE(rig.view->pause());
}

TEST_F(TrackView, TheLegacyLoopHeedsTheClearSignalAndSwitchesTheMenus) {
  rig.activate();
  rig.three_v_item->trigger();
  rig.view->injectParticle();
  ASSERT_FALSE(rig.v_item->isEnabled());
  rig.window->close();  // out of sight its steps cost no drawing
  rig.view->clearScreen();
  rig.view->OldtrackOnScreen();
  EXPECT_FALSE(rig.model.simulation().clear_signal());
  EXPECT_EQ(rig.model.simulation().x_points().front(), 0.75F) << "dropped at the first step";
  EXPECT_TRUE(rig.v_item->isEnabled());
}

TEST_F(TrackView, TheLegacyLoopMakesNoStepWithoutARun) {
  rig.view->OldtrackOnScreen();
  EXPECT_EQ(rig.model.simulation().stepping().istep, 1);
  EXPECT_FALSE(rig.view->is_tracking());
}

TEST_F(TrackView, TheLegacySliderTakesTheFieldAwayWithAStepDuringARun) {
  rig.activate();
  rig.slider->moveTo(0.5);
  rig.view->sliderSet();
  EXPECT_EQ(rig.model.simulation().settings.B_field, 0.0);
  EXPECT_EQ(rig.panel->field_text()->text(), QStringLiteral("B = 0.00"));
  EXPECT_EQ(rig.model.simulation().show_points(), 0) << "no step without a run";

  rig.slider->moveTo(0.5);
  rig.injectAndHold();
  rig.step(2);
  rig.view->sliderSet();
  EXPECT_EQ(rig.model.simulation().show_points(), 4);
  EXPECT_EQ(rig.model.simulation().stepping().B_rot, 0.0);
}

TEST_F(TrackView, TheLegacyDelayIsCutToMicroseconds) {
  rig.view->setScreenSpeed(2500.9);
  EXPECT_EQ(rig.view->musecs(), 2500);
  EXPECT_EQ(rig.model.timerSecs(), 0.01) << "and sets no period";
}

QString last_message;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

TEST_F(TrackView, TheLegacyTimerTestSaysSoAndStopsTheTimer) {
  QTimer timer;
  timer.start(1000);
  const auto before =
      qInstallMessageHandler([](QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                                const QString& message) { last_message = message; });
  NewTrackView::TestTimer(&timer);
  qInstallMessageHandler(before);
  EXPECT_EQ(last_message, QStringLiteral("timer fired"));
  EXPECT_FALSE(timer.isActive());
}

}  // namespace
}  // namespace velquon
