// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The tools of the projector that set points, without a window: curve and angle.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "model/projector.h"

namespace velquon::test {

namespace {

/// An event of these points in a chamber of 5 m, 1.25 cm a view unit at zoom 1.
std::shared_ptr<const ShownEvent> event_of(std::vector<PlotPoint> points, float field_kG) {
  auto event = std::make_shared<ShownEvent>();
  EventTracks tracks;
  tracks.points = std::move(points);
  event->tracks = std::make_shared<const EventTracks>(std::move(tracks));
  event->values.B_field = field_kG;
  return event;
}

/// A projector with a tool chosen that does not snap.
Projector projector_with(ProjectorTool tool, float field_kG = 2.0F) {
  Projector projector;
  projector.setScaler(1.25);
  projector.show(event_of({}, field_kG));
  projector.setTool(tool);
  projector.setSnaps(false);
  return projector;
}

void click(Projector& projector, Place place) {
  projector.press(place);
  projector.release(place);
}

void click_all(Projector& projector, const std::vector<Place>& places) {
  for (const Place place : places) {
    click(projector, place);
  }
}

std::vector<Quantity> quantities_of(const Projector& projector) {
  std::vector<Quantity> quantities;
  for (const Reading& reading : projector.readings()) {
    quantities.push_back(reading.quantity);
  }
  return quantities;
}

std::vector<Place> set_in(const Projector& projector) {
  const auto places = (projector.tool() == ProjectorTool::curve ? projector.curve().points
                                                                : projector.angle().points)
                          .places();
  return {places.begin(), places.end()};
}

/// Half a circle of 100 view units.
const std::vector<Place> half_circle{{100.0, 200.0}, {200.0, 300.0}, {300.0, 200.0}};

/// The point of the middle of the chamber is displayed at (235, 210).
constexpr Place displayed{235.0, 210.0};
const PlotPoint middle{{0.0, 0.0, 0.0, 1.0}, 0.0, 3};

constexpr std::array point_tools{ProjectorTool::curve, ProjectorTool::angle};

}  // namespace

TEST(ProjectorToolsTest, CurveReadsMomentumRadiusSagittaAndChordInThatOrder) {
  Projector projector = projector_with(ProjectorTool::curve, 2.0F);
  click_all(projector, half_circle);
  const auto readings = projector.readings();
  ASSERT_EQ(quantities_of(projector), (std::vector{Quantity::transverse_momentum, Quantity::radius,
                                                   Quantity::sagitta, Quantity::chord}));
  // 125 cm in 2 kG: 0.3 x 2 x 125.
  EXPECT_NEAR(readings[0].value, 75.0, 1.0e-9);
  EXPECT_NEAR(readings[1].value, 125.0, 1.0e-9);
  EXPECT_NEAR(readings[2].value, 125.0, 1.0e-9);
  EXPECT_NEAR(readings[3].value, 250.0, 1.0e-9);
  // The end points' errors of half a pixel across count half each: 0.5 / √2 view units.
  EXPECT_NEAR(readings[1].error, 1.25 * 0.5 / std::sqrt(2.0), 1.0e-6);
  EXPECT_NEAR(readings[0].error, 0.6 * readings[1].error, 1.0e-9);
}

TEST(ProjectorToolsTest, TheMomentumIsThatOfTheEventsFieldWhateverItsSign) {
  for (const auto& [field, momentum] : {std::pair{0.6F, 22.5}, {-2.0F, 75.0}, {10.0F, 375.0}}) {
    Projector projector = projector_with(ProjectorTool::curve, field);
    click_all(projector, half_circle);
    EXPECT_NEAR(projector.readings().front().value, momentum, 1.0e-5) << field;
  }
}

TEST(ProjectorToolsTest, OnlyTheXyPlaneAndAFieldTellAMomentum) {
  for (const auto& [plane, field] : {std::pair{ProjectionPlane::xz, 2.0F},
                                     {ProjectionPlane::yz, 2.0F},
                                     {ProjectionPlane::xy, 0.0F}}) {
    Projector projector = projector_with(ProjectorTool::curve, field);
    projector.setPlane(plane);
    click_all(projector, half_circle);
    EXPECT_EQ(quantities_of(projector),
              (std::vector{Quantity::radius, Quantity::sagitta, Quantity::chord}));
  }
}

TEST(ProjectorToolsTest, CurveReadsTheSameLengthsAtEachZoom) {
  for (const float zoom : {1.0F, 2.0F, 3.0F}) {
    Projector projector = projector_with(ProjectorTool::curve);
    projector.setZoom(zoom);
    const auto times = static_cast<double>(zoom);
    for (const Place place : half_circle) {
      click(projector, {place.x * times, place.y * times});
    }
    EXPECT_NEAR(projector.readings()[1].value, 125.0, 1.0e-9);
    EXPECT_NEAR(projector.readings()[1].error * times, 1.25 * 0.5 / std::sqrt(2.0), 1.0e-6);
  }
}

TEST(ProjectorToolsTest, CurveOnALineReadsNoRadiusAndNoMomentum) {
  Projector projector = projector_with(ProjectorTool::curve);
  click_all(projector, {{100.0, 100.0}, {150.0, 150.0}, {200.0, 200.0}});
  ASSERT_EQ(quantities_of(projector), (std::vector{Quantity::sagitta, Quantity::chord}));
  for (const Reading& reading : projector.readings()) {
    EXPECT_TRUE(std::isfinite(reading.value) && std::isfinite(reading.error));
  }
}

TEST(ProjectorToolsTest, CurveReadsNothingOfTwoPointsAndTakesAnyMore) {
  Projector projector = projector_with(ProjectorTool::curve);
  click_all(projector, {half_circle[0], half_circle[1]});
  EXPECT_TRUE(projector.readings().empty());
  click(projector, half_circle[2]);
  for (const double direction : {0.5, 1.0, 2.0, 2.5}) {
    click(projector, {200.0 + 100.0 * std::cos(direction), 200.0 + 100.0 * std::sin(direction)});
  }
  EXPECT_EQ(set_in(projector).size(), 7U);
  EXPECT_NEAR(projector.readings()[1].value, 125.0, 1.0e-6);
}

TEST(ProjectorToolsTest, AngleTakesItsVertexFirstAndReadsDegrees) {
  Projector projector = projector_with(ProjectorTool::angle);
  click_all(projector, {{100.0, 100.0}, {200.0, 100.0}});
  EXPECT_TRUE(projector.readings().empty());
  click(projector, {100.0, 50.0});
  ASSERT_EQ(quantities_of(projector), std::vector{Quantity::angle});
  EXPECT_NEAR(projector.readings().front().value, 90.0, 1.0e-9);
  // Half a pixel at 100 and at 50 for the ends, and the same again for the vertex.
  const double error = 0.5 * std::sqrt(2.0 * (1.0e-4 + 4.0e-4)) * 180.0 / 3.14159265358979;
  EXPECT_NEAR(projector.readings().front().error, error, 1.0e-9);
}

TEST(ProjectorToolsTest, AngleWithAllItsPointsBeginsAnew) {
  Projector projector = projector_with(ProjectorTool::angle);
  click_all(projector, {{100.0, 100.0}, {200.0, 100.0}, {100.0, 50.0}, {300.0, 300.0}});
  EXPECT_EQ(set_in(projector), (std::vector<Place>{{300.0, 300.0}}));
  EXPECT_TRUE(projector.readings().empty());
}

TEST(ProjectorToolsTest, APressNearAPointDragsItAndOneFartherOffSetsAnother) {
  struct Case {
    Place press;
    bool takes_hold = false;
  };
  constexpr std::array cases{Case{{100.0, 200.0}, true}, Case{{105.0, 200.0}, true},
                             Case{{97.0, 204.0}, true}, Case{{105.5, 200.0}, false},
                             Case{{104.0, 204.0}, false}};
  for (const ProjectorTool tool : point_tools) {
    for (const auto& [press, takes_hold] : cases) {
      Projector projector = projector_with(tool);
      click_all(projector, {{100.0, 200.0}, {200.0, 300.0}});
      EXPECT_EQ(projector.setsPointAt(press), !takes_hold);
      projector.press(press);
      EXPECT_TRUE(projector.isHolding());
      projector.drag(press + Place{7.0, 1.0});
      projector.release(press + Place{20.0, -3.0});
      EXPECT_FALSE(projector.isHolding());
      const auto places = set_in(projector);
      ASSERT_EQ(places.size(), takes_hold ? 2U : 3U) << press.x;
      EXPECT_EQ(takes_hold ? places[0] : places[2],
                (takes_hold ? Place{100.0, 200.0} : press) + (Place{20.0, -3.0}));
    }
  }
}

TEST(ProjectorToolsTest, OfTwoPointsInReachTheNearerIsTaken) {
  Projector projector = projector_with(ProjectorTool::curve);
  click_all(projector, {{100.0, 100.0}, {106.0, 100.0}});
  projector.press({104.0, 100.0});
  projector.release({104.0, 150.0});
  EXPECT_EQ(set_in(projector), (std::vector<Place>{{100.0, 100.0}, {106.0, 150.0}}));
}

TEST(ProjectorToolsTest, APointIsSetOntoAPointOfTheEventThatIsNear) {
  struct Case {
    Place click;
    bool snaps = false;
  };
  constexpr std::array cases{
      Case{displayed + Place{4.0, 0.0}, true}, Case{displayed + Place{-2.8, 2.8}, true},
      Case{displayed + Place{4.1, 0.0}, false}, Case{displayed + Place{3.0, 3.0}, false}};
  for (const ProjectorTool tool : point_tools) {
    for (const auto& [place, snaps] : cases) {
      for (const bool is_on : {true, false}) {
        Projector projector = projector_with(tool);
        projector.show(event_of({middle}, 1.0F));
        projector.setSnaps(is_on);
        EXPECT_EQ(projector.snaps(), is_on);
        click(projector, place);
        EXPECT_EQ(set_in(projector).front(), snaps && is_on ? displayed : place) << place.x;
      }
    }
  }
}

TEST(ProjectorToolsTest, ADraggedPointSnapsTooAndLeavesAgain) {
  Projector projector = projector_with(ProjectorTool::curve);
  projector.show(event_of({middle}, 1.0F));
  projector.setSnaps(true);
  click(projector, {100.0, 100.0});
  projector.press({102.0, 100.0});
  projector.drag(displayed + Place{3.0, 2.0});
  EXPECT_EQ(set_in(projector).front(), displayed);
  projector.drag(displayed + Place{12.0, 0.0});
  EXPECT_EQ(set_in(projector).front(), displayed + (Place{10.0, 0.0}));
}

TEST(ProjectorToolsTest, SnappingGoesByThePlaneAndTheZoom) {
  Projector projector = projector_with(ProjectorTool::angle);
  // Across and upwards 30, -10 on xy; 10, 50 on xz; 30, 50 on yz.
  projector.show(event_of({{{10.0, 30.0, 50.0, 1.0}, 0.0, 3}}, 1.0F));
  projector.setSnaps(true);
  struct Case {
    ProjectionPlane plane = ProjectionPlane::xy;
    Place across_and_up;
  };
  constexpr std::array cases{Case{ProjectionPlane::xy, {30.0, -10.0}},
                             Case{ProjectionPlane::xz, {10.0, 50.0}},
                             Case{ProjectionPlane::yz, {30.0, 50.0}}};
  for (const auto& [plane, place] : cases) {
    for (const float zoom : {1.0F, 2.0F, 3.0F}) {
      projector.setPlane(plane);
      projector.setZoom(zoom);
      const Place on_screen = projector.mapping().map(place);
      click(projector, on_screen + Place{-2.0, 3.0});
      EXPECT_EQ(set_in(projector).front(), on_screen);
    }
  }
}

TEST(ProjectorToolsTest, TapeAndGrabDoNotSnap) {
  Projector projector = projector_with(ProjectorTool::tape);
  projector.show(event_of({middle}, 1.0F));
  projector.setSnaps(true);
  projector.press(displayed + Place{2.0, 0.0});
  projector.release(displayed + Place{102.0, 1.0});
  EXPECT_EQ(projector.tape().start, displayed + (Place{2.0, 0.0}));
  EXPECT_EQ(projector.tape().end, displayed + (Place{102.0, 1.0}));
}

TEST(ProjectorToolsTest, PlaneZoomToolAndANewEventClearWhatIsSet) {
  using Change = void (*)(Projector&);
  constexpr std::array<Change, 5> changes{
      [](Projector& p) { p.setPlane(ProjectionPlane::xy); }, [](Projector& p) { p.setZoom(1.0F); },
      [](Projector& p) { p.setTool(p.tool()); }, [](Projector& p) { p.restore(); },
      [](Projector& p) { p.show(event_of({middle}, 2.0F)); }};
  for (const ProjectorTool tool : point_tools) {
    for (const Change change : changes) {
      Projector projector = projector_with(tool);
      click_all(projector, half_circle);
      ASSERT_FALSE(projector.readings().empty());
      projector.press({400.0, 20.0});
      change(projector);
      EXPECT_TRUE(set_in(projector).empty());
      EXPECT_FALSE(projector.isHolding());
      EXPECT_TRUE(projector.readings().empty());
    }
  }
}

TEST(ProjectorToolsTest, TheSameTracksInAnotherFieldAreReadAnew) {
  Projector projector = projector_with(ProjectorTool::curve, 2.0F);
  click_all(projector, half_circle);
  int told = 0;
  const Subscription changes = projector.changed.add([&told] { ++told; });
  auto event = std::make_shared<ShownEvent>();
  const auto same = event_of({}, 2.0F);
  projector.show(same);
  click_all(projector, half_circle);
  const int told_before = told;
  event->tracks = same->tracks;
  event->values.B_field = 4.0F;
  projector.show(event);
  EXPECT_EQ(told, told_before + 1);
  EXPECT_NEAR(projector.readings().front().value, 150.0, 1.0e-6);
  projector.show(std::make_shared<ShownEvent>(*event));
  EXPECT_EQ(told, told_before + 1) << "nothing is another";
}

TEST(ProjectorToolsTest, GivingUpPutsBackWhatIsHeldAndThenClears) {
  for (const ProjectorTool tool : point_tools) {
    Projector projector = projector_with(tool);
    click_all(projector, half_circle);
    projector.press({301.0, 200.0});
    projector.drag({350.0, 250.0});
    EXPECT_TRUE(projector.giveUp());
    EXPECT_EQ(set_in(projector), half_circle);
    EXPECT_TRUE(projector.giveUp());
    EXPECT_TRUE(set_in(projector).empty());
    EXPECT_FALSE(projector.giveUp());
  }
}

TEST(ProjectorToolsTest, GivingUpHidesATapeOnlyWhileItIsDrawnOut) {
  Projector projector = projector_with(ProjectorTool::tape);
  projector.press({100.0, 100.0});
  projector.drag({200.0, 100.0});
  EXPECT_TRUE(projector.giveUp());
  EXPECT_FALSE(projector.tape().visible);
  EXPECT_EQ(projector.reading(), 0.0);
  projector.press({100.0, 100.0});
  projector.drag({200.0, 100.0});
  projector.release({200.0, 100.0});
  EXPECT_FALSE(projector.giveUp());
  EXPECT_TRUE(projector.tape().visible);
}

TEST(ProjectorToolsTest, GivingUpAGrabBringsThePictureBack) {
  Projector projector = projector_with(ProjectorTool::grab);
  projector.press({100.0, 100.0});
  projector.drag({130.0, 90.0});
  ASSERT_EQ(projector.mapping().offset_across, 500.0);
  EXPECT_TRUE(projector.giveUp());
  EXPECT_EQ(projector.mapping().offset_across, 470.0);
  EXPECT_EQ(projector.mapping().offset_up, 420.0);
  EXPECT_FALSE(projector.isHolding());
}

TEST(ProjectorToolsTest, WhatIsGivenUpInADragStaysSoThoughTheDragGoesOn) {
  const std::vector<std::function<void(Projector&)>> ways{
      [](Projector& projector) { projector.giveUp(); },
      [](Projector& projector) { projector.setTool(projector.tool()); },
      [](Projector& projector) { projector.setZoom(1.0F); },
      [](Projector& projector) { projector.restore(); }};
  for (const ProjectorTool tool : {ProjectorTool::tape, ProjectorTool::grab}) {
    for (const auto& give_up : ways) {
      Projector projector = projector_with(tool);
      projector.press({100.0, 100.0});
      projector.drag({130.0, 90.0});
      give_up(projector);
      const ProjectionMapping place = projector.mapping();
      projector.drag({140.0, 80.0});
      projector.release({150.0, 70.0});
      EXPECT_FALSE(projector.tape().visible);
      EXPECT_EQ(projector.reading(), 0.0);
      EXPECT_EQ(projector.mapping().offset_across, place.offset_across);
      EXPECT_EQ(projector.mapping().offset_up, place.offset_up);
    }
  }
}

TEST(ProjectorToolsTest, AnotherToolInADragBeginsWithTheNextPress) {
  Projector projector = projector_with(ProjectorTool::tape);
  projector.press({100.0, 100.0});
  projector.drag({130.0, 90.0});
  projector.setTool(ProjectorTool::grab);
  projector.drag({140.0, 80.0});
  projector.release({140.0, 80.0});
  EXPECT_EQ(projector.mapping().offset_across, 470.0);
  EXPECT_EQ(projector.mapping().offset_up, 420.0);
  projector.press({100.0, 100.0});
  projector.release({101.0, 100.0});
  EXPECT_EQ(projector.mapping().offset_across, 471.0);
}

TEST(ProjectorToolsTest, TheLastPointCanBeTakenAway) {
  for (const ProjectorTool tool : point_tools) {
    Projector projector = projector_with(tool);
    click_all(projector, half_circle);
    projector.removeLastPoint();
    EXPECT_EQ(set_in(projector), (std::vector<Place>{half_circle[0], half_circle[1]}));
    EXPECT_TRUE(projector.readings().empty());
    for (int i = 0; i < 4; ++i) {
      projector.removeLastPoint();
    }
    EXPECT_TRUE(set_in(projector).empty());
  }
}

TEST(ProjectorToolsTest, PointsStayOnThePictureWhenTheViewGrows) {
  for (const ProjectorTool tool : point_tools) {
    Projector projector = projector_with(tool);
    click_all(projector, half_circle);
    projector.press({300.0, 200.0});
    projector.setViewHeight(520.0);
    projector.release({310.0, 300.0});
    EXPECT_EQ(set_in(projector),
              (std::vector<Place>{{100.0, 300.0}, {200.0, 400.0}, {310.0, 300.0}}));
  }
}

TEST(ProjectorToolsTest, EachStepOfAPointIsTold) {
  for (const ProjectorTool tool : point_tools) {
    Projector projector = projector_with(tool);
    int told = 0;
    const Subscription changes = projector.changed.add([&told] { ++told; });
    projector.press({100.0, 100.0});
    EXPECT_EQ(told, 1);
    projector.drag({110.0, 100.0});
    EXPECT_EQ(told, 2);
    projector.release({110.0, 100.0});
    EXPECT_EQ(told, 3);
    projector.removeLastPoint();
    EXPECT_EQ(told, 4);
  }
}

}  // namespace velquon::test
