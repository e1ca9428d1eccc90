// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the projector shows an event with, without a window.

#include "model/projector.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace velquon::test {

namespace {

/// A projector of a chamber of 5 m.
Projector projector_of_5_m() {
  Projector projector;
  projector.setScaler(1.25);
  return projector;
}

void lay_tape(Projector& projector, Place from, Place to) {
  projector.press(from);
  projector.drag(to);
  projector.release(to);
}

void expect_resting(const ProjectionMapping& mapping) {
  EXPECT_EQ(mapping.offset_across, 470.0);
  EXPECT_EQ(mapping.offset_up, 420.0);
}

}  // namespace

TEST(ProjectorTest, BeginsWithTheXyPlaneAtZoom1AndTheTape) {
  const Projector projector;
  EXPECT_EQ(projector.plane(), ProjectionPlane::xy);
  EXPECT_EQ(projector.zoom(), 1.0F);
  EXPECT_EQ(projector.tool(), ProjectorTool::tape);
  EXPECT_FALSE(projector.tape().visible);
  EXPECT_EQ(projector.reading(), 0.0);
  expect_resting(projector.mapping());
}

TEST(ProjectorTest, TheTapeReadsCentimetresOfTheChamberAtEachZoom) {
  for (const auto& [zoom, reading] : {std::pair{1.0F, 125.0}, {2.0F, 62.5}, {3.0F, 125.0 / 3.0}}) {
    Projector projector = projector_of_5_m();
    projector.setZoom(zoom);
    lay_tape(projector, {100.0, 100.0}, {160.0, 180.0});
    EXPECT_DOUBLE_EQ(projector.reading(), reading) << zoom;
    EXPECT_TRUE(projector.tape().visible);
  }
}

TEST(ProjectorTest, PlaneZoomToolGrabAndANewEventHideTheTape) {
  using Change = void (*)(Projector&);
  constexpr std::array<Change, 5> changes{
      [](Projector& p) { p.setPlane(ProjectionPlane::xz); }, [](Projector& p) { p.setZoom(2.0F); },
      [](Projector& p) { p.setTool(ProjectorTool::tape); }, [](Projector& p) { p.restore(); },
      [](Projector& p) {
        p.setTool(ProjectorTool::grab);
        p.press({1.0, 1.0});
        p.drag({2.0, 2.0});
      }};
  for (const Change change : changes) {
    Projector projector = projector_of_5_m();
    lay_tape(projector, {100.0, 100.0}, {200.0, 100.0});
    change(projector);
    EXPECT_FALSE(projector.tape().visible);
    EXPECT_EQ(projector.reading(), 0.0);
  }
}

TEST(ProjectorTest, OnlyATapeThatIsLaidOutIsReadAnewInAChamberOfAnotherSize) {
  Projector projector = projector_of_5_m();
  lay_tape(projector, {100.0, 100.0}, {200.0, 100.0});
  projector.setScaler(0.5);
  EXPECT_EQ(projector.reading(), 50.0);
  projector.setZoom(1.0F);
  projector.setScaler(1.25);
  EXPECT_EQ(projector.reading(), 0.0);
}

TEST(ProjectorTest, AnEventInAChamberOfAnotherSizeHasTheTapeReadAnew) {
  Projector projector = projector_of_5_m();
  lay_tape(projector, {100.0, 100.0}, {200.0, 100.0});
  auto event = std::make_shared<ShownEvent>();
  event->values.sides_cm = 200.0F;
  event->values.B_field = 3.0F;
  int told = 0;
  const Subscription changes = projector.changed.add([&] {
    ++told;
    EXPECT_EQ(projector.reading(), 50.0);
  });
  projector.show(event);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(projector.scaler(), 0.5);
  EXPECT_EQ(projector.reading(), 50.0);
}

TEST(ProjectorTest, TheGrabMovesThePictureAcrossAndUpAsTheMouse) {
  Projector projector;
  projector.setTool(ProjectorTool::grab);
  projector.press({100.0, 100.0});
  projector.drag({130.0, 100.0});
  projector.release({130.0, 90.0});
  EXPECT_EQ(projector.mapping().offset_across, 500.0);
  EXPECT_EQ(projector.mapping().offset_up, 430.0);
}

TEST(ProjectorTest, AZoomKeepsWhatWasGrabbedAndAPlaneDoesNot) {
  Projector projector;
  projector.setTool(ProjectorTool::grab);
  projector.press({100.0, 100.0});
  projector.drag({130.0, 140.0});
  projector.setZoom(3.0F);
  EXPECT_EQ(projector.mapping().offset_across, 500.0);
  projector.setPlane(ProjectionPlane::yz);
  expect_resting(projector.mapping());
}

TEST(ProjectorTest, TheTapeStaysOnWhatItMeasuredWhenTheViewGrows) {
  Projector projector = projector_of_5_m();
  lay_tape(projector, {100.0, 100.0}, {200.0, 100.0});
  const double from_top = projector.viewHeight() - projector.tape().end.y;
  projector.setViewHeight(600.0);
  EXPECT_EQ(projector.viewHeight() - projector.tape().end.y, from_top);
  EXPECT_EQ(projector.mapping().view_height, 600.0);
  EXPECT_EQ(projector.reading(), 125.0);
}

TEST(ProjectorTest, APageHasAMappingOfItsOwn) {
  Projector projector;
  projector.setViewHeight(900.0);
  EXPECT_EQ(projector.mappingAt(projection_height).view_height, 420.0);
}

TEST(ProjectorTest, TellsOfEachChange) {
  Projector projector;
  int told = 0;
  const Subscription changes = projector.changed.add([&told] { ++told; });
  projector.setZoom(2.0F);
  projector.press({0.0, 0.0});
  EXPECT_EQ(told, 1);
  projector.drag({5.0, 5.0});
  EXPECT_EQ(told, 2);
}

}  // namespace velquon::test
