// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The grab tool of the projection view, and the cursors of both tools.

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "widgets/cursors.h"

namespace velquon::test {

namespace {

class GrabTest : public ApplicationFixture {
 protected:
  /// Its place in the picture is (100, 210.3) zoomed at grab_zooms 1, 2 and 3.
  const std::array<PlotPoint, 1> mark_{point_at(0.6, -369.4, 0.0, 3)};

  /// The one pixel that the mark adds to the frame.
  [[nodiscard]] QPoint markPixel() {
    showEvent({});
    const QImage frame = picture_of(projection());
    showEvent(mark_);
    const QImage marked = picture_of(projection());
    std::vector<QPoint> found;
    for (const QPoint& pixel : pixels_of(marked, white)) {
      if (frame.pixel(pixel) != white) {
        found.push_back(pixel);
      }
    }
    EXPECT_EQ(found.size(), 1U);
    return found.empty() ? QPoint(-1, -1) : found.front();
  }
  [[nodiscard]] QPointF offsets() {
    return {projection().mapping().offset_across, projection().mapping().offset_up};
  }
  void expectCursor(const char* name, QPoint hot_spot) {
    const QCursor cursor = projection().cursor();
    EXPECT_EQ(cursor.hotSpot(), hot_spot);
    const QImage image(QStringLiteral(":/cursors/%1.png").arg(QLatin1String(name)));
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(cursor.pixmap().toImage().convertToFormat(QImage::Format_ARGB32),
              image.convertToFormat(QImage::Format_ARGB32));
  }
};

struct GrabZoom {
  const char* button;
  double across;  ///< pixels of the picture a pixel of the mouse
  double up;
};
constexpr std::array grab_zooms{GrabZoom{"zoom_1", 0.5, 0.5}, GrabZoom{"zoom_2", 1.0, 0.5},
                                GrabZoom{"zoom_3", 1.5, 0.5}};

}  // namespace

TEST_F(GrabTest, TenUnitsToTheRightMoveThePictureByFive) {
  clickButton("grab_tool");
  const QPoint before = markPixel();
  drag(projection(), {100, 100}, {110, 100});
  EXPECT_EQ(offsets(), QPointF(480.0, 420.0));
  EXPECT_EQ(markPixel() - before, QPoint(5, 0));
}

TEST_F(GrabTest, ThePictureMovesByTheRatiosOfTheZoom) {
  clickButton("grab_tool");
  for (const auto& [button, across, up] : grab_zooms) {
    SCOPED_TRACE(button);
    clickButton(button);
    clickButton("xy_button");
    const QPoint before = markPixel();
    drag(projection(), {100, 100}, {140, 80});
    // 40 to the right and 20 up.
    EXPECT_EQ(offsets(), QPointF(510.0, 400.0));
    EXPECT_EQ(markPixel() - before, QPoint(qRound(40.0 * across), -qRound(20.0 * up)));
  }
}

TEST_F(GrabTest, DragsAddUp) {
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {140, 80});
  drag(projection(), {10, 10}, {0, 40});
  EXPECT_EQ(offsets(), QPointF(500.0, 430.0));
}

TEST_F(GrabTest, APressAloneMovesNothing) {
  clickButton("grab_tool");
  press(projection(), {100, 100});
  EXPECT_EQ(offsets(), QPointF(470.0, 420.0));
  release(projection(), {100, 100});
  EXPECT_EQ(offsets(), QPointF(470.0, 420.0));
}

TEST_F(GrabTest, AReleaseAwayFromTheLastMoveTakesThePictureAlong) {
  clickButton("grab_tool");
  const QPoint before = markPixel();
  press(projection(), {100, 100});
  release(projection(), {120, 70});
  EXPECT_EQ(offsets(), QPointF(490.0, 390.0));
  EXPECT_EQ(markPixel() - before, QPoint(10, -15));
  press(projection(), {100, 100});
  move_pressed(projection(), {110, 100});
  release(projection(), {130, 100});
  EXPECT_EQ(offsets(), QPointF(520.0, 390.0));
}

TEST_F(GrabTest, OtherMouseButtonsMoveNothing) {
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {140, 80}, Qt::RightButton);
  drag(projection(), {100, 100}, {140, 80}, Qt::MiddleButton);
  EXPECT_EQ(offsets(), QPointF(470.0, 420.0));
}

TEST_F(GrabTest, ANewEventPutsThePictureBack) {
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {140, 80});
  choose("new_event_item");
  EXPECT_EQ(offsets(), QPointF(470.0, 420.0));
}

TEST_F(GrabTest, TheTapeDoesNotMoveThePicture) {
  drag(projection(), {100, 100}, {140, 80});
  EXPECT_EQ(offsets(), QPointF(470.0, 420.0));
}

TEST_F(GrabTest, EachToolHasItsCursor) {
  expectCursor("crosshairs", {7, 7});
  clickButton("grab_tool");
  expectCursor("grabber", {8, 9});
  clickButton("tape_tool");
  expectCursor("crosshairs", {7, 7});
  const QImage cross(QStringLiteral(":/cursors/crosshairs.png"));
  EXPECT_NE(cross, QImage(QStringLiteral(":/cursors/grabber.png")));
}

TEST_F(GrabTest, CursorsHaveTheSizeOfAnyScreenAndTheirHotSpotOnIt) {
  struct Case {
    double ratio = 1.0;
    int side = 0;
    QPoint crosshairs;
    QPoint grabber;
  };
  constexpr std::array cases{Case{1.0, 16, {7, 7}, {8, 9}}, Case{2.0, 32, {14, 14}, {16, 18}},
                             Case{3.0, 48, {21, 21}, {24, 27}}, Case{1.5, 24, {11, 11}, {12, 14}},
                             Case{4.0, 64, {28, 28}, {32, 36}}};
  for (const auto& [ratio, side, crosshairs, grabber] : cases) {
    SCOPED_TRACE(ratio);
    const QCursor cross = cursor_named(QStringLiteral("crosshairs"), {7, 7}, ratio);
    EXPECT_EQ(cross.pixmap().size(), QSize(side, side));
    EXPECT_EQ(cross.pixmap().devicePixelRatio(), ratio);
    EXPECT_EQ(cross.hotSpot(), crosshairs);
    EXPECT_EQ(cursor_named(QStringLiteral("grabber"), {8, 9}, ratio).hotSpot(), grabber);
  }
}

TEST_F(GrabTest, ACursorOfTwiceTheSizeShowsTheSamePicture) {
  for (const char* const name : {"crosshairs", "grabber", "black_crosshairs"}) {
    const auto image = [name](double ratio) {
      return cursor_named(QLatin1String(name), {7, 7}, ratio)
          .pixmap()
          .toImage()
          .convertToFormat(QImage::Format_ARGB32);
    };
    QImage doubled = image(1.0).scaled(32, 32);
    doubled.setDevicePixelRatio(2.0);
    EXPECT_EQ(image(2.0), doubled) << name;
  }
}

}  // namespace velquon::test
