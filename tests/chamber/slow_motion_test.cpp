// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Slow motion in a window that comes up for it.

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class SlowMotionTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    choose("muplus_item");
    controller().settings().setEnergyControl(30.0F);
    choose("slomo_item");
  }

  /// Makes an event, which brings the chamber's window up, and looks at its place on the screen.
  /// \return how many different pictures were seen there
  [[nodiscard]] int picturesOfANewEvent(ScreenWatch& watch) {
    const int passes = chamber().passes();
    choose("new_event_item");
    const int points = chamber().point_number();
    EXPECT_GT(points, 30);
    EXPECT_TRUE(wait_until([&] { return chamber().passes() >= passes + points; }, 60'000));
    return distinct_pictures(watch.finish());
  }
};

}  // namespace

TEST_F(SlowMotionTest, IsSeenFromTheFirstPointsOnInAWindowThatWasClosed) {
  const ScreenArea area = screen_area_of(chamber());
  chamberWindow().close();
  activate(projectorWindow());
  ScreenWatch watch(area);
  EXPECT_GE(picturesOfANewEvent(watch), 10);
}

TEST_F(SlowMotionTest, IsSeenFromTheFirstPointsOnInAWindowThatWasMinimized) {
  const ScreenArea area = screen_area_of(chamber());
  chamberWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return chamberWindow().isMinimized(); }));
  activate(projectorWindow());
  ScreenWatch watch(area);
  EXPECT_GE(picturesOfANewEvent(watch), 10);
}

TEST_F(SlowMotionTest, IsSeenInAWindowThatWasThereAllTheTime) {
  ScreenWatch watch(chamber());
  EXPECT_GE(picturesOfANewEvent(watch), 10);
}

}  // namespace velquon::test
