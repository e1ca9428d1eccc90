// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The tape measure of the projection view.

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>

#include "app/event_documents.h"
#include "files/event_file.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_label.h"

namespace velquon::test {

namespace {

constexpr const char* no_reading = "D =  0.00 cm";

class TapeTest : public ApplicationFixture {
 protected:
  [[nodiscard]] std::string reading() { return control<QLabel>("tape_text").text().toStdString(); }
  [[nodiscard]] std::vector<QPoint> redPixels() { return pixels_of(picture_of(projection()), red); }
  void expectHiddenTape() {
    EXPECT_FALSE(projection().tape_visible());
    EXPECT_TRUE(redPixels().empty());
  }
};

struct TapeZoom {
  const char* button;
  const char* hundred_units;
  int zoom;
};
constexpr std::array tape_zooms{TapeZoom{"zoom_1", "D = 125.00 cm", 1},
                                TapeZoom{"zoom_2", "D = 62.50 cm", 2},
                                TapeZoom{"zoom_3", "D = 41.67 cm", 3}};

}  // namespace

TEST_F(TapeTest, ReadsNothingAtStart) {
  EXPECT_EQ(reading(), no_reading);
  EXPECT_TRUE(control<QAbstractButton>("tape_tool").isChecked());
  expectHiddenTape();
}

TEST_F(TapeTest, ReadsAHundredUnitsAtEachZoomAlongAnyDirection) {
  for (const auto& [button, text, zoom] : tape_zooms) {
    clickButton(button);
    drag(projection(), {100, 100}, {200, 100});
    EXPECT_EQ(reading(), text);
    drag(projection(), {300, 250}, {300, 150});
    EXPECT_EQ(reading(), text);
    drag(projection(), {300, 250}, {240, 330});
    EXPECT_EQ(reading(), text);
  }
}

TEST_F(TapeTest, RoundsAsPrintfDoes) {
  clickButton("zoom_2");
  drag(projection(), {100, 100}, {201, 100});
  EXPECT_EQ(reading(), "D = 63.12 cm") << "63.125, to the even digit";
  drag(projection(), {100, 100}, {203, 100});
  EXPECT_EQ(reading(), "D = 64.38 cm") << "64.375";
}

TEST_F(TapeTest, StaysOnWhatItMeasuredWhenTheWindowGrows) {
  drag(projection(), {100, 100}, {200, 140});
  const QRect before = extent_of(redPixels());
  projectorWindow().resize(projectorWindow().width(), projectorWindow().height() + 200);
  ASSERT_TRUE(wait_until([&] { return projection().height() >= 600; }));
  // The picture hangs from the top, and so does the tape.
  const QRect after = extent_of(redPixels());
  EXPECT_EQ(after.left(), before.left());
  EXPECT_LE(std::abs(after.top() - before.top()), 1);
  EXPECT_EQ(reading(), "D = 134.63 cm");
}

TEST_F(TapeTest, AFrameWideTapeReadsTheSideAtEveryZoom) {
  for (const float side : {500.0F, 230.0F}) {
    controller().settings().setSidesControl(side);
    choose("new_event_item");
    for (const auto& [button, text, zoom] : tape_zooms) {
      clickButton(button);
      const int left = zoom * 35;
      drag(projection(), {left, 200}, {left + 400 * zoom, 200});
      const double pixel_worth = static_cast<double>(side) / (400.0 * zoom);
      EXPECT_NEAR(projection().tapeLength(), static_cast<double>(side), pixel_worth) << button;
    }
  }
}

TEST_F(TapeTest, ATapeBetweenTheDrawnEdgesReadsTheSide) {
  const auto dots = pixels_of(picture_of(projection()), white);
  ASSERT_FALSE(dots.empty());
  const QRect extent = extent_of(dots);
  drag(projection(), {extent.left(), 200}, {extent.right(), 200});
  EXPECT_NEAR(projection().tapeLength(), 500.0, 1.25);
}

TEST_F(TapeTest, IsDrawnRedFromEndToEnd) {
  drag(projection(), {60, 300}, {260, 120});
  const QImage seen = picture_of(projection());
  EXPECT_TRUE(has_line(seen, {60.0, 300.0}, {260.0, 120.0}, red));
  for (const QPoint& pixel : pixels_of(seen, red)) {
    EXPECT_GE(pixel.x(), 59);
    EXPECT_LE(pixel.x(), 261);
  }
}

TEST_F(TapeTest, FollowsTheMouse) {
  press(projection(), {100, 100});
  EXPECT_FALSE(projection().tape_visible());
  EXPECT_EQ(reading(), no_reading);
  move_pressed(projection(), {140, 100});
  EXPECT_EQ(reading(), "D = 50.00 cm");
  EXPECT_TRUE(has_line(picture_of(projection()), {100.0, 100.0}, {140.0, 100.0}, red));
  move_pressed(projection(), {100, 180});
  EXPECT_EQ(reading(), "D = 100.00 cm");
  const QImage seen = picture_of(projection());
  EXPECT_TRUE(has_line(seen, {100.0, 100.0}, {100.0, 180.0}, red));
  EXPECT_FALSE(has_color_near(seen, {130.0, 100.0}, red, 2.0));
  release(projection(), {100, 140});
  EXPECT_EQ(reading(), "D = 50.00 cm");
}

TEST_F(TapeTest, AClickWithoutADragReadsNothingAndShowsNothing) {
  QTest::mouseClick(&projection(), Qt::LeftButton, {}, QPoint(200, 200));
  EXPECT_EQ(reading(), no_reading);
  expectHiddenTape();
}

TEST_F(TapeTest, AClickShrinksATapeThatIsThere) {
  drag(projection(), {100, 100}, {200, 100});
  ASSERT_GT(redPixels().size(), 90U);
  QTest::mouseClick(&projection(), Qt::LeftButton, {}, QPoint(250, 300));
  EXPECT_EQ(reading(), no_reading);
  EXPECT_TRUE(projection().tape_visible());
  EXPECT_LE(redPixels().size(), 1U);
}

TEST_F(TapeTest, OtherMouseButtonsMeasureNothing) {
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    drag(projection(), {100, 100}, {200, 100}, button);
    EXPECT_EQ(reading(), no_reading);
    expectHiddenTape();
  }
}

TEST_F(TapeTest, IsHiddenByAnyChoiceOfPlaneZoomAndTool) {
  for (const char* const name : {"xy_button", "xz_button", "yz_button", "zoom_2", "zoom_3",
                                 "zoom_1", "zoom_1", "tape_tool", "grab_tool", "tape_tool"}) {
    drag(projection(), {100, 100}, {200, 100});
    clickButton(name);
    EXPECT_EQ(reading(), no_reading) << name;
    expectHiddenTape();
  }
}

TEST_F(TapeTest, IsHiddenByANewEvent) {
  drag(projection(), {100, 100}, {200, 100});
  ASSERT_TRUE(projection().tape_visible());
  choose("new_event_item");
  expectHiddenTape();
  EXPECT_EQ(reading(), no_reading);
}

TEST_F(TapeTest, IsReadAnewWhenAnEventOfAnotherSizeIsOpenedUnderIt) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("small.cwd")));
  const std::array points{point_at(10.0, 20.0, 30.0, 3)};
  const auto bytes =
      encode_event(points, {.B_field = 1.0F, .sides_cm = 200.0F, .kinetic_Mev = 1.0F});
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(QByteArrayView(bytes).toByteArray()), static_cast<qint64>(bytes.size()));
  file.close();
  drag(projection(), {100, 100}, {200, 100});
  ASSERT_EQ(reading(), "D = 125.00 cm");
  ASSERT_TRUE(application().documents().readAndDisplayFile(file.fileName()));
  EXPECT_TRUE(projection().tape_visible());
  EXPECT_EQ(reading(), "D = 50.00 cm");
}

TEST_F(TapeTest, ThatIsHiddenStaysUnreadInAChamberOfAnotherSize) {
  drag(projection(), {100, 100}, {200, 100});
  clickButton("zoom_2");
  controller().settings().setNextSidesCm(200.0F);
  controller().setCurrentChamberValues();
  EXPECT_EQ(reading(), no_reading);
}

TEST_F(TapeTest, ThatIsTooLongToReadEndsInDotsAndDoesNotWidenTheWindow) {
  const QSize window = projectorWindow().size();
  drag(projection(), {100, 100}, {200, 100});
  projection().setScaler(1.0e60);
  handle_waiting_events();
  EXPECT_EQ(projectorWindow().size(), window);
  const auto& label = control<ValueLabel>("tape_text");
  EXPECT_GT(label.text().size(), 30);
  EXPECT_TRUE(label.shownText().endsWith(QChar(u'…')));
  EXPECT_TRUE(label.shownText().startsWith(QStringLiteral("D = ")));
}

TEST_F(TapeTest, ALongReadingDoesNotChangeTheWindow) {
  controller().settings().setSidesControl(1000.0F);
  choose("new_event_item");
  const QSize window = projectorWindow().size();
  drag(projection(), {1, 1}, {469, 419});
  EXPECT_EQ(reading(), "D = 1568.73 cm");
  run_loop_for(100);
  EXPECT_EQ(projectorWindow().size(), window);
  EXPECT_EQ(projection().size(), QSize(470, 420));
  auto& label = control<QLabel>("tape_text");
  EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width());
}

TEST_F(TapeTest, SurvivesTheWindowGoingAndComingBack) {
  drag(projection(), {100, 100}, {200, 100});
  projectorWindow().close();
  choose("projector_window_item");
  ASSERT_TRUE(wait_until_exposed(&projectorWindow()));
  EXPECT_TRUE(has_line(picture_of(projection()), {100.0, 100.0}, {200.0, 100.0}, red));
}

}  // namespace velquon::test
