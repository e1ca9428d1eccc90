// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The cross that keys move in the projection, without a window.

#include "model/key_cross.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace velquon::test {

namespace {

constexpr KeyField field{{0.0, 1.0}, {469.0, 420.0}};

class KeyCrossTest : public testing::Test {
 protected:
  KeyCrossTest() {
    projector_.setScaler(1.25);
    projector_.setSnaps(false);
  }
  void choose(ProjectorTool tool) { projector_.setTool(tool); }
  void move(double x, double y) { cross_.move({x, y}, field); }
  void act() { cross_.act(field); }
  [[nodiscard]] std::vector<Place> points() const {
    const auto places = projector_.curve().points.places();
    return {places.begin(), places.end()};
  }

  Projector projector_;
  KeyCross cross_{projector_};
};

}  // namespace

TEST_F(KeyCrossTest, AppearsInTheMiddleAndMovesFromThere) {
  EXPECT_FALSE(cross_.visible());
  act();
  EXPECT_TRUE(cross_.visible());
  EXPECT_EQ(cross_.place(), (Place{234.0, 210.0}));
  move(10.0, -1.0);
  EXPECT_EQ(cross_.place(), (Place{244.0, 209.0}));
}

TEST_F(KeyCrossTest, ComesBackWhereItWas) {
  move(10.0, 5.0);
  cross_.hide();
  EXPECT_FALSE(cross_.visible());
  act();
  EXPECT_EQ(cross_.place(), (Place{244.0, 215.0}));
}

TEST_F(KeyCrossTest, StaysWithinWhatIsSeen) {
  move(-1000.0, 1000.0);
  EXPECT_EQ(cross_.place(), (Place{0.0, 420.0}));
  move(5000.0, -5000.0);
  EXPECT_EQ(cross_.place(), (Place{469.0, 1.0}));
  cross_.appear({{0.0, 201.0}, {299.0, 420.0}});
  EXPECT_EQ(cross_.place(), (Place{299.0, 201.0}));
}

TEST_F(KeyCrossTest, LaysTheTapeFromOnePointToAnother) {
  cross_.appear(field);
  act();
  EXPECT_TRUE(projector_.isHolding());
  move(60.0, 0.0);
  move(0.0, 80.0);
  EXPECT_EQ(projector_.reading(), 125.0);
  EXPECT_TRUE(projector_.tape().visible);
  act();
  move(10.0, 0.0);
  EXPECT_EQ(projector_.reading(), 125.0);
  EXPECT_EQ(projector_.tape().start, (Place{234.0, 210.0}));
  EXPECT_EQ(projector_.tape().end, (Place{294.0, 290.0}));
}

TEST_F(KeyCrossTest, ANewTapeTakesThePlaceOfTheOldOneAtOnce) {
  cross_.appear(field);
  act();
  move(100.0, 0.0);
  act();
  move(0.0, 50.0);
  act();
  EXPECT_EQ(projector_.reading(), 0.0);
  EXPECT_EQ(projector_.tape().end, (Place{334.0, 260.0}));
}

TEST_F(KeyCrossTest, DragsThePictureWhileItHoldsIt) {
  choose(ProjectorTool::grab);
  cross_.appear(field);
  act();
  move(10.0, 0.0);
  move(0.0, 1.0);
  EXPECT_EQ(projector_.mapping().offset_across, 480.0);
  EXPECT_EQ(projector_.mapping().offset_up, 419.0);
  act();
  move(10.0, 0.0);
  EXPECT_EQ(projector_.mapping().offset_across, 480.0);
}

TEST_F(KeyCrossTest, SetsPointsAndMovesThoseThatItStandsOn) {
  choose(ProjectorTool::curve);
  cross_.appear(field);
  act();
  EXPECT_FALSE(projector_.isHolding());
  move(100.0, 0.0);
  act();
  EXPECT_EQ(points(), (std::vector<Place>{{234.0, 210.0}, {334.0, 210.0}}));
  act();
  EXPECT_TRUE(projector_.isHolding());
  move(0.0, 30.0);
  EXPECT_EQ(points().back(), (Place{334.0, 240.0}));
  act();
  move(50.0, 0.0);
  EXPECT_EQ(points(), (std::vector<Place>{{234.0, 210.0}, {334.0, 240.0}}));
}

TEST_F(KeyCrossTest, GivesUpWhatIsHalfDoneThenWhatIsSetThenItself) {
  choose(ProjectorTool::curve);
  cross_.appear(field);
  act();
  act();
  move(30.0, 0.0);
  EXPECT_TRUE(cross_.giveUp());
  EXPECT_EQ(points(), (std::vector<Place>{{234.0, 210.0}}));
  EXPECT_TRUE(cross_.giveUp());
  EXPECT_TRUE(points().empty());
  EXPECT_TRUE(cross_.visible());
  EXPECT_TRUE(cross_.giveUp());
  EXPECT_FALSE(cross_.visible());
  EXPECT_FALSE(cross_.giveUp());
}

TEST_F(KeyCrossTest, GivesUpAHalfLaidTapeAndAHeldPicture) {
  cross_.appear(field);
  act();
  move(50.0, 0.0);
  EXPECT_TRUE(cross_.giveUp());
  EXPECT_FALSE(projector_.tape().visible);
  EXPECT_TRUE(cross_.visible());
  choose(ProjectorTool::grab);
  act();
  move(20.0, 20.0);
  EXPECT_TRUE(cross_.giveUp());
  EXPECT_EQ(projector_.mapping().offset_across, 470.0);
  EXPECT_EQ(projector_.mapping().offset_up, 420.0);
}

TEST_F(KeyCrossTest, LetsGoWhenToolPlaneOrZoomChange) {
  using Change = void (*)(Projector&);
  constexpr std::array<Change, 3> changes{[](Projector& p) { p.setPlane(ProjectionPlane::xz); },
                                          [](Projector& p) { p.setZoom(2.0F); },
                                          [](Projector& p) { p.setTool(ProjectorTool::tape); }};
  for (const Change change : changes) {
    choose(ProjectorTool::tape);
    cross_.appear(field);
    act();
    move(20.0, 0.0);
    change(projector_);
    move(20.0, 0.0);
    EXPECT_FALSE(projector_.tape().visible);
    EXPECT_EQ(projector_.reading(), 0.0);
  }
}

}  // namespace velquon::test
