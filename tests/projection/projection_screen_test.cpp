// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projection as it is seen on the screen.

#include <QAbstractButton>
#include <QScrollBar>
#include <QTest>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"
#include "widgets/view_scroll_area.h"

namespace velquon::test {

namespace {

class ProjectionScreenTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    ASSERT_TRUE(
        wait_until([this] { return screen_picture(projection()) == picture_of(projection()); }));
  }

  /// Does something and expects another picture on the screen, with nothing else handled.
  void expectNewPicture(const char* what, const std::function<void()>& act) {
    SCOPED_TRACE(what);
    const QImage before = screen_picture(projection());
    act();
    const QImage drawn = picture_of(projection());
    EXPECT_NE(drawn, before);
    EXPECT_TRUE(screen_comes_to_show(projection(), drawn));
  }
};

}  // namespace

TEST_F(ProjectionScreenTest, ShowsANewEventAtOnce) {
  choose("muplus_item");
  expectNewPicture("event", [this] {
    do {
      choose("new_event_item");
    } while (chamber().point_number() == 0);
  });
}

TEST_F(ProjectionScreenTest, ShowsAnotherPlaneAndZoomAtOnce) {
  const std::array points{point_at(100.0, 250.0, -33.0, 3)};
  showEvent(points);
  for (const char* const name :
       {"xz_button", "yz_button", "xy_button", "zoom_2", "zoom_3", "zoom_1"}) {
    expectNewPicture(name, [&] { clickButton(name); });
  }
}

TEST_F(ProjectionScreenTest, ShowsTheTapeAsItIsDrawnOut) {
  press(projection(), {100, 100});
  expectNewPicture("first move", [this] { move_pressed(projection(), {160, 130}); });
  expectNewPicture("second move", [this] { move_pressed(projection(), {200, 250}); });
  expectNewPicture("release", [this] { release(projection(), {220, 260}); });
  EXPECT_GT(count_on_screen(projection(), red), 100);
  expectNewPicture("tool", [this] { clickButton("grab_tool"); });
  EXPECT_EQ(count_on_screen(projection(), red), 0);
}

TEST_F(ProjectionScreenTest, ShowsThePictureAsItIsDragged) {
  clickButton("grab_tool");
  press(projection(), {100, 100});
  expectNewPicture("move", [this] { move_pressed(projection(), {140, 120}); });
  expectNewPicture("release", [this] { release(projection(), {180, 130}); });
}

TEST_F(ProjectionScreenTest, FollowsTheScrollBars) {
  const std::array points{point_at(0.6, -209.4, 0.0, 3)};
  showEvent(points);
  drag(projection(), {150, 150}, {200, 150});
  const QPointF mark(130.3, 210.3);
  const QPointF tape_middle(175.0, 150.0);
  ASSERT_TRUE(has_color_near(picture_of(projection()), mark, white, 1.0));
  projectorWindow().resize(projectorWindow().width(), 400);
  auto& across = *projectorWindow().area()->horizontalScrollBar();
  auto& down = *projectorWindow().area()->verticalScrollBar();
  ASSERT_TRUE(wait_until([&] { return across.maximum() > 0 && down.maximum() > 50; }));
  for (const QPoint& scrolled :
       {QPoint(0, 0), QPoint(across.maximum(), 0), QPoint(0, 50), QPoint(across.maximum(), 50)}) {
    across.setValue(scrolled.x());
    down.setValue(scrolled.y());
    const QImage seen = picture_of(projection());
    EXPECT_TRUE(has_color_near(seen, mark - scrolled, white, 1.0)) << scrolled.x();
    EXPECT_FALSE(has_color_near(seen, mark - scrolled - QPointF(across.maximum(), 0), white, 1.0));
    EXPECT_TRUE(has_color_near(seen, tape_middle - scrolled, red, 1.5)) << scrolled.y();
    EXPECT_EQ(extent_of(pixels_of(seen, red)).left(), 150 - scrolled.x());
    EXPECT_TRUE(screen_comes_to_show(projection(), seen));
  }
}

}  // namespace velquon::test
