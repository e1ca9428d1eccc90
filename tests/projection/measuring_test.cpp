// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Curve and angle in the projector's window, by mouse.

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

const std::vector<QPoint> half_circle{{150, 250}, {250, 150}, {350, 250}};
constexpr QRgb dark_red = 0xFF800000;

class MeasuringTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    clickButton("snap_button");
  }
  [[nodiscard]] std::string readings() {
    return control<QLabel>("readings_text").text().toStdString();
  }
  void clickOn(const std::vector<QPoint>& places) {
    for (const QPoint place : places) {
      QTest::mouseClick(&projection(), Qt::LeftButton, {}, place);
    }
  }
  /// A mark is a square of 7 pixels; its middle stays free.
  [[nodiscard]] bool hasMark(QPointF place) {
    const QImage seen = picture_of(projection());
    return has_line(seen, place + QPointF(-3, -3), place + QPointF(3, -3), red) &&
           has_line(seen, place + QPointF(-3, 3), place + QPointF(3, 3), red) &&
           has_line(seen, place + QPointF(-3, -3), place + QPointF(-3, 3), red);
  }
};

/// Places on the circle about (250, 250), from the picture's top left.
QPointF on_circle(double direction_deg) {
  const double direction = qDegreesToRadians(direction_deg);
  return {250.0 + 100.0 * std::cos(direction), 250.0 - 100.0 * std::sin(direction)};
}

}  // namespace

TEST_F(MeasuringTest, CurveDrawsTheCircleThroughThreeClicksAndReadsIt) {
  clickButton("curve_tool");
  clickOn(half_circle);
  // 100 pixels are 125 cm; 0.3 x 0.6 kG x 125 cm. Half a pixel in each direction for each click.
  EXPECT_EQ(
      readings(),
      "pT = 22.50 ± 0.08 MeV/c   R = 125.0 ± 0.4 cm\ns = 125.0 ± 0.8 cm   c = 250.0 ± 0.9 cm");
  const QImage seen = picture_of(projection());
  for (int direction = 4; direction < 180; direction += 4) {
    EXPECT_TRUE(has_color_near(seen, on_circle(direction), red, 1.5)) << direction;
    EXPECT_TRUE(has_color_near(seen, on_circle(-direction), dark_red, 1.5)) << direction;
  }
  EXPECT_TRUE(has_line(seen, {154.0, 250.0}, {346.0, 250.0}, dark_red)) << "the chord";
  for (const QPoint place : half_circle) {
    EXPECT_TRUE(hasMark(place));
  }
}

TEST_F(MeasuringTest, TheCircleArrivesOnTheScreenAtOnce) {
  clickButton("curve_tool");
  clickOn({half_circle[0], half_circle[1]});
  QTest::mousePress(&projection(), Qt::LeftButton, {}, half_circle[2]);
  EXPECT_TRUE(screen_comes_to_show(projection(), picture_of(projection())));
  EXPECT_GT(count_on_screen(projection(), red), 250);
  EXPECT_GT(count_on_screen(projection(), dark_red), 200);
  QTest::mouseRelease(&projection(), Qt::LeftButton, {}, half_circle[2]);
  clickButton("tape_tool");
  EXPECT_TRUE(screen_comes_to_show(projection(), picture_of(projection())));
  EXPECT_EQ(count_on_screen(projection(), red), 0);
}

TEST_F(MeasuringTest, APointIsDraggedAndTheCircleFollows) {
  clickButton("curve_tool");
  clickOn(half_circle);
  drag(projection(), half_circle[1], {250, 200});
  EXPECT_TRUE(hasMark({250, 200}));
  EXPECT_FALSE(hasMark(half_circle[1]));
  // 250 cm of chord and 62.5 cm of sagitta.
  EXPECT_NE(readings().find("R = 156.2 ± "), std::string::npos) << readings();
}

TEST_F(MeasuringTest, PointsOnALineAreCalledStraight) {
  clickButton("curve_tool");
  clickOn({{100, 100}, {150, 150}, {200, 200}});
  EXPECT_EQ(readings(), "straight\ns = 0.0 ± 0.8 cm   c = 176.8 ± 0.9 cm");
  EXPECT_TRUE(has_line(picture_of(projection()), {104.0, 104.0}, {196.0, 196.0}, red));
}

TEST_F(MeasuringTest, TheWindowTellsWhatComesNext) {
  EXPECT_FALSE(control<QLabel>("readings_text").isVisible());
  EXPECT_TRUE(control<QLabel>("tape_text").isVisible());
  clickButton("angle_tool");
  EXPECT_FALSE(control<QLabel>("tape_text").isVisible());
  const QLabel& label = control<QLabel>("readings_text");
  EXPECT_TRUE(label.isVisible());
  std::vector<std::string> told{readings()};
  for (const QPoint place : {QPoint(200, 200), QPoint(300, 200), QPoint(200, 120)}) {
    clickOn({place});
    told.push_back(readings());
  }
  EXPECT_EQ(told,
            (std::vector<std::string>{"Set the vertex.", "Set a point of the first arm.",
                                      "Set a point of the second arm.", "∠ = 90.0 ± 0.6 degrees"}));
  clickButton("curve_tool");
  told = {readings()};
  for (const QPoint place : {half_circle[0], half_circle[1]}) {
    clickOn({place});
    told.push_back(readings());
  }
  EXPECT_EQ(told, (std::vector<std::string>{"Set three points or more along a track.",
                                            "Set two more points along the track.",
                                            "Set one more point along the track."}));
}

TEST_F(MeasuringTest, AngleDrawsItsArms) {
  clickButton("angle_tool");
  clickOn({{200, 200}, {300, 200}, {200, 120}});
  const QImage seen = picture_of(projection());
  EXPECT_TRUE(has_line(seen, {204.0, 200.0}, {296.0, 200.0}, red));
  EXPECT_TRUE(has_line(seen, {200.0, 196.0}, {200.0, 124.0}, red));
  EXPECT_TRUE(has_color_near(seen, {200.0 + 17.0, 200.0 - 17.0}, red, 1.5));
  EXPECT_FALSE(has_color_near(seen, {200.0 - 17.0, 200.0 + 17.0}, red, 5.0));
}

TEST_F(MeasuringTest, TheSnapButtonSetsPointsOntoTheEvent) {
  const std::array middle{point_at(0.0, 0.0, 0.0, 3)};
  showEvent(middle);
  clickButton("angle_tool");
  clickOn({{237, 207}});
  EXPECT_TRUE(hasMark({237, 207}));
  clickButton("snap_button");
  clickButton("angle_tool");
  clickOn({{237, 207}});
  EXPECT_TRUE(hasMark({235, 210}));
}

TEST_F(MeasuringTest, RecordIsAskedForWhatIsRead) {
  const QSignalSpy asked(&projectorWindow(), &ProjectorWindow::recordAsked);
  auto& button = control<QAbstractButton>("record_button");
  struct Case {
    const char* tool;
    std::vector<QPoint> clicks;
  };
  const std::array cases{Case{"curve_tool", half_circle}, Case{"angle_tool", half_circle}};
  EXPECT_FALSE(button.isEnabled());
  int times = 0;
  for (const auto& [tool, clicks] : cases) {
    clickButton(tool);
    EXPECT_FALSE(button.isEnabled()) << tool;
    clickOn(clicks);
    EXPECT_TRUE(button.isEnabled()) << tool;
    clickButton("record_button");
    EXPECT_EQ(asked.count(), ++times) << tool;
  }
  clickButton("tape_tool");
  EXPECT_FALSE(button.isEnabled());
  drag(projection(), {100, 100}, {200, 100});
  EXPECT_TRUE(button.isEnabled());
  clickButton("grab_tool");
  EXPECT_FALSE(button.isEnabled());
}

TEST_F(MeasuringTest, OtherMouseButtonsSetNothing) {
  clickButton("curve_tool");
  drag(projection(), {100, 100}, {140, 80}, Qt::RightButton);
  drag(projection(), {200, 100}, {240, 80}, Qt::MiddleButton);
  EXPECT_TRUE(pixels_of(picture_of(projection()), red).empty());
}

TEST_F(MeasuringTest, ANewEventAndAnotherPlaneOrZoomClearWhatIsSet) {
  for (const char* const name : {"xz_button", "zoom_2", "curve_tool"}) {
    clickButton("curve_tool");
    clickOn(half_circle);
    ASSERT_FALSE(pixels_of(picture_of(projection()), red).empty());
    clickButton(name);
    EXPECT_TRUE(pixels_of(picture_of(projection()), red).empty()) << name;
  }
  clickOn(half_circle);
  choose("new_event_item");
  EXPECT_TRUE(pixels_of(picture_of(projection()), red).empty());
}

TEST_F(MeasuringTest, PointsStayOnThePictureWhenTheWindowGrows) {
  clickButton("curve_tool");
  clickOn(half_circle);
  const std::string before = readings();
  projectorWindow().resize(projectorWindow().width(), projectorWindow().height() + 150);
  ASSERT_TRUE(wait_until([&] { return projection().height() >= 560; }));
  for (const QPoint place : half_circle) {
    EXPECT_TRUE(hasMark(place));
  }
  EXPECT_EQ(readings(), before);
}

TEST_F(MeasuringTest, TheWindowKeepsItsSizeWhateverIsRead) {
  const QSize window = projectorWindow().size();
  clickButton("curve_tool");
  clickOn(half_circle);
  run_loop_for(100);
  EXPECT_EQ(projectorWindow().size(), window);
  EXPECT_EQ(projection().size(), QSize(470, 420));
  // Each line is seen whole.
  const auto& label = control<QLabel>("readings_text");
  for (const QString& line : label.text().split(u'\n')) {
    EXPECT_LE(label.fontMetrics().horizontalAdvance(line), label.width());
  }
  EXPECT_GE(label.height(), 2 * label.fontMetrics().lineSpacing());
}

TEST_F(MeasuringTest, TheCursorOfCurveAndAngleIsTheCross) {
  const QPoint cross = projection().cursor().hotSpot();
  clickButton("grab_tool");
  EXPECT_NE(projection().cursor().hotSpot(), cross);
  for (const char* const name : {"curve_tool", "angle_tool"}) {
    clickButton(name);
    EXPECT_EQ(projection().cursor().hotSpot(), cross) << name;
  }
}

}  // namespace velquon::test
