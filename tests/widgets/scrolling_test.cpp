// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The views in windows that are smaller or larger than what they show.

#include <QAbstractScrollArea>
#include <QScrollBar>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"
#include "widgets/view_scroll_area.h"

namespace velquon::test {

namespace {

class ScrollingTest : public ApplicationFixture {
 protected:
  const PlotPoint left_point_ = point_at(101.3, -290.7, 0.0, 3);

  [[nodiscard]] ViewScrollArea& area(const char* name) { return control<ViewScrollArea>(name); }
  /// Makes a window wider and higher by some pixels, or smaller.
  void grow(QWidget& window, GLView& view, QSize by) {
    window.setMinimumSize(1, 1);
    const QSize before = view.size();
    window.resize(window.size() + by);
    ASSERT_TRUE(wait_until([&] { return view.size() != before; }));
    run_loop_for(100);
  }
};

}  // namespace

TEST_F(ScrollingTest, ThereAreNoScrollBarsWhereAllIsSeen) {
  for (const char* const name : {"chamber_area", "projector_area"}) {
    EXPECT_FALSE(area(name).horizontalScrollBar()->isVisible()) << name;
    EXPECT_FALSE(area(name).verticalScrollBar()->isVisible()) << name;
  }
  EXPECT_EQ(chamber().visibleRect(), QRectF(0.0, 0.0, 682.0, 500.0));
  EXPECT_EQ(projection().visibleRect(), QRectF(0.0, 0.0, 470.0, 420.0));
}

TEST_F(ScrollingTest, TheProjectionShowsThePartThatIsScrolledTo) {
  const std::array points{left_point_};
  showEvent(points);
  grow(projectorWindow(), projection(), {0, -150});
  QScrollBar& bar = *area("projector_area").verticalScrollBar();
  ASSERT_TRUE(bar.isVisible());
  const QSize seen = projection().size();
  ASSERT_LT(seen.height(), 300);
  // 0.5 (-290.7 + 470) across; 420 - 0.5 (420 + 101.3) from the document's bottom.
  const QPointF in_document(89.65, 420.0 - 260.65);
  for (const int value : {bar.maximum(), bar.maximum() / 2, bar.maximum() / 4}) {
    bar.setValue(value);
    const double origin = 420.0 - seen.height() - value;
    EXPECT_EQ(projection().visibleRect().y(), origin);
    const double from_left = in_document.x() - projection().visibleRect().x();
    const double from_top = seen.height() - (in_document.y() - origin);
    ASSERT_GT(from_top, 1.0);
    ASSERT_LT(from_top, seen.height() - 1.0);
    EXPECT_EQ(color_at(picture_of(projection()), {from_left, from_top}), white) << value;
  }
}

TEST_F(ScrollingTest, ScrollingToAPointMakesItTheLowerLeftOneSeen) {
  grow(projectorWindow(), projection(), {0, -150});
  area("projector_area").scrollPoint({10.0, 30.0});
  EXPECT_EQ(projection().visibleRect().y(), 30.0);
  area("projector_area").scrollPoint({0.0, 5000.0});
  EXPECT_EQ(projection().visibleRect().y(), 420.0 - projection().height());
  area("projector_area").scrollPoint({0.0, -5000.0});
  EXPECT_EQ(projection().visibleRect().y(), 0.0);
}

TEST_F(ScrollingTest, ToolsWorkInTheScrolledPart) {
  grow(projectorWindow(), projection(), {0, -150});
  area("projector_area").scrollPoint({0.0, 60.0});
  drag(projection(), {100, 50}, {200, 50});
  const QImage seen = picture_of(projection());
  EXPECT_TRUE(has_line(seen, {100.0, 50.0}, {200.0, 50.0}, red));
  EXPECT_DOUBLE_EQ(projection().tapeLength(), 125.0);
}

TEST_F(ScrollingTest, ALargerProjectionIsMeasuredFromItsOwnTop) {
  const std::array points{left_point_};
  showEvent(points);
  grow(projectorWindow(), projection(), {80, 120});
  const QSize seen = projection().size();
  ASSERT_GT(seen.height(), 500);
  EXPECT_FALSE(area("projector_area").verticalScrollBar()->isVisible());
  EXPECT_EQ(projection().mapping().view_height, seen.height());
  // So its place from the top does not change.
  EXPECT_EQ(color_at(picture_of(projection()), {89.65, 260.65}), white);
}

TEST_F(ScrollingTest, AUnitLostToABrokenScaleBringsNoBars) {
  grow(chamberWindow(), chamber(), {-1, -1});
  EXPECT_EQ(chamber().size(), QSize(681, 499));
  EXPECT_FALSE(area("chamber_area").horizontalScrollBar()->isVisible());
  EXPECT_FALSE(area("chamber_area").verticalScrollBar()->isVisible());
  EXPECT_EQ(chamber().visibleRect().topLeft(), QPointF(0.0, 0.0));
}

TEST_F(ScrollingTest, TheChamberMovesByTwiceTheScrolledDistanceAndDoesNotDrift) {
  hideAxesAndValues();
  const std::array points{point_at(0.0, -100.0, 30.0, 3)};
  showEvent(points);
  grow(chamberWindow(), chamber(), {-150, -150});
  const QSize seen = chamber().size();
  ASSERT_TRUE(area("chamber_area").horizontalScrollBar()->isVisible());
  for (const QPointF origin : {QPointF(0.0, 0.0), QPointF(20.0, 60.0), QPointF(90.0, 40.0)}) {
    area("chamber_area").scrollPoint(origin);
    ASSERT_EQ(chamber().visibleRect().topLeft(), origin);
    // The picture's lower left corner is the view's.
    const QPointF in_picture = resting_camera().scrolled(origin).pixel({0.0, -100.0, 30.0});
    const QPointF place(in_picture.x(), seen.height() - (500.0 - in_picture.y()));
    for (int pass = 0; pass < 3; ++pass) {
      chamber().display();
    }
    EXPECT_EQ(color_at(picture_of(chamber()), place), red) << origin.x();
  }
}

TEST_F(ScrollingTest, ALargerChamberKeepsItsPictureInTheLowerLeftCorner) {
  hideAxesAndValues();
  const std::array points{point_at(0.0, -100.0, 30.0, 3)};
  showEvent(points);
  grow(chamberWindow(), chamber(), {60, 90});
  const QPointF in_picture = resting_camera().pixel({0.0, -100.0, 30.0});
  const QPointF place(in_picture.x(), chamber().height() - (500.0 - in_picture.y()));
  EXPECT_EQ(color_at(picture_of(chamber()), place), red);
}

}  // namespace velquon::test
