// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <numbers>

#include "tests/support/windows/waiting.h"
#include "tests/track/track_rig.h"

// What the view draws, read from its pixels.

namespace velquon {
namespace {

using test::TrackRig;
using test::wait_until;

constexpr int entry_height = 228;
constexpr double pixel = 1.5;  // how far a line's pixels may lie from it

struct Extent {
  int left = INT_MAX;
  int right = INT_MIN;
  int bottom = INT_MAX;
  int top = INT_MIN;
};

Extent extent_of(const std::vector<QPoint>& pixels) {
  Extent extent;
  for (const QPoint place : pixels) {
    extent.left = std::min(extent.left, place.x());
    extent.right = std::max(extent.right, place.x());
    extent.bottom = std::min(extent.bottom, place.y());
    extent.top = std::max(extent.top, place.y());
  }
  return extent;
}

bool near_entry_height(QPoint place) {
  return std::abs(place.y() - entry_height) <= 1;
}

class TrackPicture : public ::testing::Test {
 protected:
  TrackPicture() { rig.activate(); }

  /// Expects the line at mid height between two places, and nothing else.
  void expectLine(int from, int to) const {
    const std::vector<QPoint> pixels = rig.whitePixels();
    ASSERT_FALSE(pixels.empty());
    EXPECT_TRUE(std::ranges::all_of(pixels, near_entry_height));
    const Extent extent = extent_of(pixels);
    EXPECT_NEAR(extent.left, from, 1);
    EXPECT_NEAR(extent.right, to, 1);
    EXPECT_GE(static_cast<int>(pixels.size()), extent.right - extent.left) << "it has no gap";
  }

  TrackRig rig;
};

TEST_F(TrackPicture, IsEmptyBeforeTheFirstInjection) {
  EXPECT_TRUE(rig.whitePixels().empty());
  EXPECT_EQ(rig.picture().size(), rig.view->size());
  EXPECT_GE(rig.view->width(), track_area_width);
  EXPECT_GE(rig.view->height(), track_area_height);
}

TEST_F(TrackPicture, AStraightTrackGrowsWithEveryStep) {
  rig.injectAndHold();
  rig.step(20);
  expectLine(0, 40);
  rig.step(100);
  expectLine(0, 240);
}

TEST_F(TrackPicture, FromTheRightItGrowsToTheLeft) {
  rig.RtoL_item->trigger();
  rig.injectAndHold();
  rig.step(20);
  expectLine(450, 490);
}

struct ClosedCircle {
  double field;
  int speed;
  bool positron;
};

class TrackCirclePicture : public TrackPicture,
                           public ::testing::WithParamInterface<ClosedCircle> {};

TEST_P(TrackCirclePicture, ClosesWithTheRadiusOfItsChords) {
  const auto [field, speed, positron] = GetParam();
  (positron ? rig.positron_item : rig.electron_item)->trigger();
  const std::array<QAction*, 3> speeds{rig.v_item, rig.two_v_item, rig.three_v_item};
  speeds.at(static_cast<std::size_t>(speed - 1))->trigger();
  const int straight_steps = 240 / speed;
  const double turn = 0.05 * std::fabs(field);
  const int turn_steps = static_cast<int>(std::ceil(2.0 * std::numbers::pi / turn)) + 1;
  rig.injectAndCircle(straight_steps, field, turn_steps);

  const double radius = speed / (2.0 * std::sin(0.025 * std::fabs(field)));
  const bool upwards = (field > 0.0) != positron;
  const double center_x = straight_steps * speed + 0.5 * speed;
  const double center_y = entry_height + (upwards ? radius : -radius);
  constexpr std::size_t parts = 24;
  std::array<bool, parts> seen{};
  for (const QPoint place : rig.whitePixels()) {
    if (near_entry_height(place) && place.x() < center_x - 6.0) {
      continue;  // the straight way in
    }
    const double across = place.x() + 0.5 - center_x;
    const double up = place.y() + 0.5 - center_y;
    ASSERT_NEAR(std::hypot(across, up), radius, pixel) << place.x() << ", " << place.y();
    const double angle = std::atan2(up, across) / (2.0 * std::numbers::pi) + 0.5;
    seen.at(std::min<std::size_t>(static_cast<std::size_t>(angle * parts), parts - 1)) = true;
  }
  EXPECT_EQ(std::ranges::count(seen, true), parts) << "the circle is whole";
}

INSTANTIATE_TEST_SUITE_P(FieldsSpeedsAndCharges, TrackCirclePicture,
                         ::testing::Values(ClosedCircle{1.0, 1, false}, ClosedCircle{1.0, 3, true},
                                           ClosedCircle{-0.6, 2, false},
                                           ClosedCircle{0.5, 2, true}));

TEST_F(TrackPicture, ElectronAndPositronCurveInOppositeSenses) {
  // Half a circle of radius 80 brings each back to the side that it came from.
  rig.slider->moveTo(0.5);
  std::array<Extent, 2> halves{};
  for (std::size_t which = 0; which < 2; ++which) {
    (which == 0 ? rig.electron_item : rig.positron_item)->trigger();
    rig.injectAndHold();
    while (rig.view->is_tracking()) {
      rig.step(1);
    }
    halves.at(which) = extent_of(rig.whitePixels());
  }
  const auto& [electron, positron] = halves;
  const double radius = 2.0 / (2.0 * std::sin(0.0125));
  EXPECT_NEAR(electron.top, entry_height + 2.0 * radius, 2.0);
  EXPECT_NEAR(electron.bottom, entry_height, 1.0);
  EXPECT_NEAR(positron.bottom, entry_height - 2.0 * radius, 2.0);
  EXPECT_NEAR(positron.top, entry_height, 1.0);
  EXPECT_NEAR(electron.right, radius, 2.0);
  EXPECT_NEAR(positron.right, electron.right, 1.0);
}

TEST_F(TrackPicture, AStepDrawsTheNewestHundredPointsOverThePicture) {
  rig.v_item->trigger();
  rig.injectAndHold();
  rig.step(200);
  expectLine(0, 200);
  rig.view->makeCurrent();
  glClear(GL_COLOR_BUFFER_BIT);
  rig.step(1);
  expectLine(102, 201);
}

TEST_F(TrackPicture, AnInjectionBeginsWithAnEmptyPictureAndTape) {
  rig.slider->moveTo(1.0);
  rig.injectAndHold();
  rig.step(30);
  rig.panel->tape_box()->setText(QStringLiteral("D =  1.00"));
  rig.slider->moveTo(0.0);
  rig.view->injectParticle();
  EXPECT_EQ(rig.panel->tape_box()->text(), QString());
  EXPECT_TRUE(rig.whitePixels().empty());
  rig.injectAndHold();
  rig.step(10);
  expectLine(0, 20);
}

TEST_F(TrackPicture, WhatAnOldTimerDrawsBetweenInjectionAndStartIsGoneWithTheFirstStep) {
  rig.slider->moveTo(1.0);
  rig.injectAndHold();
  rig.step(30);
  rig.slider->moveTo(0.0);
  rig.view->injectParticle();
  rig.step(1);  // of the old run
  ASSERT_FALSE(rig.whitePixels().empty());
  rig.injectAndHold();
  rig.step(10);
  expectLine(0, 20);
}

TEST_F(TrackPicture, ClearingWhenIdleEmptiesIt) {
  rig.injectAndHold();
  while (rig.view->is_tracking()) {
    rig.step(1);
  }
  expectLine(0, rig.view->width() > 492 ? 492 : rig.view->width() - 1);
  rig.clear_item->trigger();
  EXPECT_TRUE(rig.whitePixels().empty());
  EXPECT_FALSE(rig.model.simulation().clear_signal());
}

TEST_F(TrackPicture, ClearingDuringARunKeepsThePresentPointOnly) {
  rig.injectAndHold();
  rig.step(120);
  rig.clear_item->trigger();
  expectLine(0, 240);  // until the next step
  rig.step(1);
  EXPECT_TRUE(rig.whitePixels().empty());
  EXPECT_TRUE(rig.view->is_tracking());
  rig.step(10);
  expectLine(242, 262);
}

TEST_F(TrackPicture, AResizeShowsTheWholeTrack) {
  rig.v_item->trigger();
  rig.injectAndHold();
  rig.step(300);
  const QSize before = rig.view->size();
  rig.window->resize(rig.window->size() + QSize(60, 40));
  ASSERT_TRUE(wait_until([&] { return rig.view->size() == before + QSize(60, 40); }));
  rig.view->display();
  expectLine(0, 300);
  rig.step(5);
  expectLine(0, 305);
  EXPECT_TRUE(rig.view->is_tracking()) << "the run goes on";
}

TEST_F(TrackPicture, AFramebufferMadeAnewOnAnotherScreenShowsTheWholeTrack) {
  rig.v_item->trigger();
  rig.injectAndHold();
  rig.step(300);
  rig.view->makeCurrent();
  glClear(GL_COLOR_BUFFER_BIT);
  Q_EMIT rig.view->resized();
  rig.step(1);
  expectLine(0, 301);
}

TEST_F(TrackPicture, AWindowThatComesBackShowsWhatWasNotDrawnMeanwhile) {
  rig.v_item->trigger();
  rig.injectAndHold();
  rig.step(10);
  rig.stepHidden(300);
  expectLine(0, 310);
}

TEST_F(TrackPicture, ATrackOfMoreThan9996PointsGoesOnWithItsNewerHalf) {
  rig.v_item->trigger();
  rig.injectAndCircle(245, 1.0, 0);
  rig.stepHidden(9994 - 245);
  const auto on_the_way_in = [](QPoint place) {
    return near_entry_height(place) && place.x() < 200;
  };
  EXPECT_TRUE(std::ranges::any_of(rig.whitePixels(), on_the_way_in));
  rig.step(2);
  EXPECT_EQ(rig.model.simulation().show_points(), 4997);
  const std::vector<QPoint> pixels = rig.whitePixels();
  EXPECT_FALSE(std::ranges::any_of(pixels, on_the_way_in)) << "dropped with the older points";
  const Extent extent = extent_of(pixels);
  EXPECT_NEAR(extent.top - extent.bottom, 40, 2);
  EXPECT_NEAR(extent.right - extent.left, 40, 2);
  rig.step(50);
  EXPECT_TRUE(rig.view->is_tracking());
  EXPECT_EQ(rig.model.simulation().show_points(), 5047);
}

TEST_F(TrackPicture, AFieldSetByKeysBendsTheFlyingParticleFromTheNextStepOn) {
  rig.injectAndHold();
  rig.step(100);
  rig.slider->setFocus();
  QTest::keyClick(rig.slider, Qt::Key_PageUp);
  QTest::keyClick(rig.slider, Qt::Key_Up);
  EXPECT_NEAR(rig.model.simulation().settings.B_field, 0.11, 1.0e-6);
  EXPECT_EQ(rig.panel->field_text()->text(), QStringLiteral("B = 0.11"));
  EXPECT_EQ(rig.model.simulation().vy(), 0.0);
  rig.step(1);
  EXPECT_GT(rig.model.simulation().vy(), 0.0);
  EXPECT_EQ(rig.model.simulation().y_points().back(), 228.0F);
  rig.step(60);
  const Extent extent = extent_of(rig.whitePixels());
  EXPECT_GT(extent.top, entry_height + 10);
  EXPECT_NEAR(extent.bottom, entry_height, 1);
  const std::vector<QPoint> pixels = rig.whitePixels();
  EXPECT_TRUE(std::ranges::all_of(pixels, [](QPoint place) {
    return place.x() > 205 || near_entry_height(place);
  })) << "straight until then";
}

/// Also run on a screen that has two pixels across for one of the view's.
class TrackLines : public TrackPicture {
 protected:
  /// Expects a number of pixels in each column of a level line, or each row of an upright one,
  /// between two places of the view.
  static void expectThickness(const std::vector<QPoint>& pixels, bool is_level, int from, int to) {
    const double ratio = asked_ratio();
    for (int place = qRound(from * ratio); place < qRound(to * ratio); ++place) {
      EXPECT_EQ(std::ranges::count_if(
                    pixels, [&](QPoint at) { return (is_level ? at.x() : at.y()) == place; }),
                qRound(ratio))
          << place;
    }
  }
  static double asked_ratio() {
    const QByteArray factor = qgetenv("QT_SCALE_FACTOR");
    return factor.isEmpty() ? 1.0 : factor.toDouble();
  }
  void dragTape(QPoint from, QPoint to) const {
    const int height = rig.view->height();
    QTest::mousePress(rig.view, Qt::LeftButton, {}, {from.x(), height - from.y()});
    QTest::mouseMove(rig.view, {to.x(), height - to.y()});
  }
};

TEST_F(TrackLines, AreOnePixelOfTheViewThickAtAnyRatio) {
  ASSERT_EQ(rig.view->devicePixelRatioF(), asked_ratio());
  ASSERT_EQ(rig.picture().size(), rig.view->size() * asked_ratio());
  rig.injectAndHold();
  rig.stepHidden(100);
  expectThickness(rig.whitePixels(), true, 2, 198);
  const Extent track = extent_of(rig.whitePixels());
  EXPECT_NEAR(track.bottom, entry_height * asked_ratio(), 1.0);
  EXPECT_NEAR(track.right, 200 * asked_ratio(), 1.0);

  dragTape({100, 50}, {100, 150});
  expectThickness(rig.redPixels(), false, 52, 148);
  dragTape({100, 100}, {300, 100});
  expectThickness(rig.redPixels(), true, 102, 298);
  EXPECT_EQ(rig.panel->tape_box()->text(), QStringLiteral("D = 20.00"));
}

class TrackTape : public TrackPicture {
 protected:
  /// A place in the view's coordinates, as the mouse gives it.
  [[nodiscard]] QPoint at(int x, int y) const { return {x, rig.view->height() - y}; }
};

TEST_F(TrackTape, IsDrawnAndReadWhileItIsDraggedAndLeavesItsReading) {
  rig.v_item->trigger();
  rig.injectAndHold();
  rig.step(300);
  QTest::mousePress(rig.view, Qt::LeftButton, {}, at(100, 100));
  EXPECT_EQ(rig.panel->tape_box()->text(), QString());
  QTest::mouseMove(rig.view, at(130, 140));
  EXPECT_EQ(rig.panel->tape_box()->text(), QStringLiteral("D =  5.00"));
  QTest::mouseMove(rig.view, at(400, 100));
  EXPECT_EQ(rig.panel->tape_box()->text(), QStringLiteral("D = 30.00"));
  EXPECT_DOUBLE_EQ(rig.view->tapeLength(), 30.0);
  const std::vector<QPoint> red = rig.redPixels();
  ASSERT_FALSE(red.empty());
  const Extent extent = extent_of(red);
  EXPECT_NEAR(extent.left, 100, 1);
  EXPECT_NEAR(extent.right, 400, 1);
  EXPECT_NEAR(extent.bottom, 100, 1) << "the line to the earlier place is gone";
  EXPECT_NEAR(extent.top, 100, 1);
  expectLine(0, 300);

  QTest::mouseRelease(rig.view, Qt::LeftButton, {}, at(400, 150));
  EXPECT_TRUE(rig.redPixels().empty());
  EXPECT_EQ(rig.panel->tape_box()->text(), QStringLiteral("D = 30.00")) << "the last reading stays";
  EXPECT_DOUBLE_EQ(rig.view->tapeLength(), 0.1 * std::hypot(300.0, 50.0));
  expectLine(0, 300);
}

TEST_F(TrackTape, AClickLeavesTheTrackWhole) {
  rig.v_item->trigger();
  rig.injectAndHold();
  rig.step(300);
  QTest::mouseClick(rig.view, Qt::LeftButton, {}, at(50, 50));
  EXPECT_EQ(rig.panel->tape_box()->text(), QString());
  expectLine(0, 300);
}

TEST_F(TrackTape, StaysOnTheScreenWhileTheParticleFliesOn) {
  rig.injectAndHold();
  rig.step(20);
  QTest::mousePress(rig.view, Qt::LeftButton, {}, at(100, 100));
  QTest::mouseMove(rig.view, at(100, 200));
  rig.step(100);
  EXPECT_EQ(rig.redPixels().size(), 100U);
  expectLine(0, 240);
  QTest::mouseRelease(rig.view, Qt::LeftButton, {}, at(100, 200));
  EXPECT_TRUE(rig.redPixels().empty());
}

TEST_F(TrackTape, IsReadAgainByTheFirstStepOfARunThatIsInjectedWhileItIsStretched) {
  QTest::mousePress(rig.view, Qt::LeftButton, {}, at(100, 100));
  QTest::mouseMove(rig.view, at(130, 140));
  rig.injectAndHold();
  EXPECT_EQ(rig.panel->tape_box()->text(), QString());
  rig.step(1);
  EXPECT_EQ(rig.panel->tape_box()->text(), QStringLiteral("D =  5.00"));
  EXPECT_FALSE(rig.redPixels().empty());
  QTest::mouseRelease(rig.view, Qt::LeftButton, {}, at(130, 140));
}

TEST_F(TrackTape, BelongsToTheLeftButton) {
  QTest::mousePress(rig.view, Qt::RightButton, {}, at(100, 100));
  QTest::mouseMove(rig.view, at(100, 200));
  QTest::mouseRelease(rig.view, Qt::RightButton, {}, at(100, 200));
  EXPECT_EQ(rig.panel->tape_box()->text(), QString());
  EXPECT_EQ(rig.view->tapeLength(), 0.0);
}

}  // namespace
}  // namespace velquon
