// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The views on a screen of any ratio of pixels: the same picture in finer pixels, and the mouse where
// it is seen. To be run at each ratio, also one that the screen gets only after the windows have come
// up; the screen needs room for both windows.

#include <algorithm>
#include <cmath>

#include "render/chamber_scene.h"
#include "tests/integration/screen_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/screen_settings.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/values_line.h"
#include "tests/support/windows/waiting.h"
#include "track/track_window.h"

namespace velquon::test {

namespace {

/// Lengths of the runs of a colour along a column.
std::vector<int> runs_along(const QImage& picture, int column, int from, int to, QRgb color) {
  std::vector<int> runs;
  int run = 0;
  for (int y = from; y < to; ++y) {
    if (picture.pixel(column, y) == color) {
      ++run;
    } else if (run > 0) {
      runs.push_back(run);
      run = 0;
    }
  }
  return runs;
}

class AnyScreenTest : public ScreenFixture {
 protected:
  void SetUp() override {
    ScreenFixture::SetUp();
    const QByteArray named = qgetenv("VELQUON_TEST_RATIO");
    ratio_ = named.isEmpty() ? 1.0 : named.toDouble();
    if (can_change_screen_ratio()) {
      ASSERT_TRUE(change_screen_ratio(ratio_, chamber()));
    }
    ASSERT_EQ(chamber().devicePixelRatioF(), ratio_);
    // With a broken ratio a window may come out a unit smaller.
    const QSize short_of = QSize(470, 420) - projection().size();
    ASSERT_LE(std::max(short_of.width(), short_of.height()), 1) << "the screen is too small";
  }

  void TearDown() override {
    if (can_change_screen_ratio()) {
      EXPECT_TRUE(change_screen_ratio(1.0, chamber()));
    }
    ScreenFixture::TearDown();
  }

  /// Drags the X server's mouse from one pixel of a view to another, counted from its upper left one.
  void dragOnScreen(const QWidget& view, QPoint from, QPoint to) {
    const ScreenArea area = screen_area_of(view);
    const auto move = [&](QPoint pixel) {
      return QStringLiteral("mousemove %1 %2 sleep 0.05 ")
          .arg(area.x + pixel.x())
          .arg(area.y + pixel.y());
    };
    const RealInput input(move(from) + QStringLiteral("mousedown 1 sleep 0.05 ") +
                          move((from + to) / 2) + move(to) + QStringLiteral("mouseup 1"));
    EXPECT_TRUE(wait_until([&] { return input.isOver(); }));
    run_loop_for(100);
  }
  /// A place given in view units from the upper left corner, in pixels.
  [[nodiscard]] QPoint pixel(double x, double y) const {
    return {qRound(x * ratio_), qRound(y * ratio_)};
  }
  [[nodiscard]] double ratio() const { return ratio_; }
  /// Whether a view's edges are between pixels of the screen; else its picture comes there blended.
  [[nodiscard]] bool liesOnWholePixels(const QWidget& view) const {
    const auto is_whole = [this](int units) { return std::fmod(units * ratio_, 1.0) == 0.0; };
    const QPoint corner = view.mapTo(view.window(), QPoint(0, 0));
    return is_whole(corner.x()) && is_whole(corner.y()) && is_whole(view.width()) &&
           is_whole(view.height());
  }

  /// The dots of an upright dotted line near a column of the picture, by their lengths.
  [[nodiscard]] std::vector<int> dotsNear(const QImage& picture, double column) const {
    std::vector<int> dots;
    for (int x = qRound(column - 2.0 * ratio_); x <= qRound(column + 2.0 * ratio_); ++x) {
      const auto runs =
          runs_along(picture, x, qRound(40.0 * ratio_), qRound(380.0 * ratio_), white);
      dots = runs.size() > dots.size() ? runs : dots;
    }
    return dots;
  }

 private:
  double ratio_ = 0.0;
};

}  // namespace

TEST_F(AnyScreenTest, ThePictureFillsItsFramebufferAndTheScreenShowsIt) {
  const std::array points{point_at(300.0, -100.0, 200.0, 3), point_at(-250.0, 150.0, 100.0, 4),
                          point_at(100.0, 250.0, -150.0, 6)};
  hideAxesAndValues();
  showEvent(points);
  for (GLView* const view :
       {static_cast<GLView*>(&chamber()), static_cast<GLView*>(&projection())}) {
    const QImage picture = picture_of(*view);
    EXPECT_NEAR(picture.width(), view->width() * ratio(), 0.5);
    EXPECT_NEAR(picture.height(), view->height() * ratio(), 0.5);
    if (liesOnWholePixels(*view)) {
      EXPECT_TRUE(screen_comes_to_show(*view, picture));
    }
  }
  const QImage picture = picture_of(chamber());
  for (const PlotPoint& point : points) {
    const QPointF place =
        resting_camera().pixel({point.coords[0], point.coords[1], point.coords[2]}) * ratio();
    EXPECT_TRUE(has_color_near(picture, place, color_of_code(point.code), 1.0)) << point.code;
  }
  // The projected middle of the chamber, (35 + 200, 10 + 200) from the top; of a window that came out
  // a unit smaller, that less.
  showEvent(std::array{point_at(0.0, 0.0, 0.0, 3)});
  EXPECT_TRUE(has_color_near(picture_of(projection()), QPointF(235.0, 210.0) * ratio(), white,
                             ratio() + 1.0));
}

TEST_F(AnyScreenTest, LinesAndDotsAreInProportion) {
  hideAxesAndValues();
  const QImage edges = picture_of(chamber());
  const QPointF middle = resting_camera().pixel({-400.0, 400.0, 100.0}) * ratio();
  int width = 0;
  for (int across = -6; across <= 6; ++across) {
    width += color_at(edges, middle + QPointF(across, 0.0)) == edge_blue ? 1 : 0;
  }
  EXPECT_NEAR(width, ratio(), 0.5);
}

TEST_F(AnyScreenTest, BothSidesOfTheProjectedFrameAreDotsAndGapsOfAViewUnitWhereverItIs) {
  clickButton("grab_tool");
  const int usual = std::max(qRound(ratio()), 1);
  for (const double moved : {0.0, 0.5}) {
    const QImage frame = picture_of(projection());
    for (const double side : {35.0, 435.0}) {
      const auto dots = dotsNear(frame, (side + moved) * ratio());
      ASSERT_GT(dots.size(), 100U) << side << " moved by " << moved;
      EXPECT_GE(std::ranges::count(dots, usual) + 2, std::ssize(dots));
      EXPECT_NEAR(static_cast<double>(dots.size()), 340.0 * ratio() / (2.0 * usual), 2.0);
    }
    // The picture follows at half the speed.
    drag(projection(), {100, 100}, {101, 101});
  }
}

TEST_F(AnyScreenTest, TheValuesLineIsAsLargeAndWhereItIsOnAnyScreen) {
  chamber().set_show_axes(false);
  showEvent({});
  const QRect unscaled = extent_of(pixels_of(values_line_unscaled(chamber()), white));
  const QRect shown = extent_of(pixels_of(picture_of(chamber()), white));
  ASSERT_GT(unscaled.width(), 100);
  EXPECT_NEAR(shown.width(), unscaled.width() * ratio(), ratio());
  EXPECT_NEAR(shown.height(), unscaled.height() * ratio(), ratio());
  EXPECT_NEAR(shown.x(), unscaled.x() * ratio(), ratio() + 1.0);
  EXPECT_NEAR(shown.y(), unscaled.y() * ratio(), ratio() + 1.0);
}

TEST_F(AnyScreenTest, TheMouseMeasuresThePixelsThatItPointsAt) {
  activate(projectorWindow());
  const QPoint from = pixel(101.3, 57.9);
  const QPoint to = pixel(298.6, 333.3);
  dragOnScreen(projection(), from, to);
  const QImage picture = picture_of(projection());
  const QRect tape = extent_of(pixels_of(picture, red));
  const double half_line = ratio() / 2.0;
  EXPECT_NEAR(tape.left(), from.x(), half_line + 1.5);
  EXPECT_NEAR(tape.top(), from.y(), half_line + 1.5);
  EXPECT_NEAR(tape.right(), to.x(), half_line + 1.5);
  EXPECT_NEAR(tape.bottom(), to.y(), half_line + 1.5);
  const QPoint way = to - from;
  // To a pixel of the picture, which the positions of the mouse are rounded to.
  EXPECT_NEAR(projection().tapeLength() / projection().scaler(),
              std::hypot(way.x(), way.y()) / ratio(), 1.0);
}

TEST_F(AnyScreenTest, TheGrabToolMovesThePictureByThePixelsOfTheMouse) {
  activate(projectorWindow());
  clickButton("grab_tool");
  const ProjectionMapping before = projection().mapping();
  const QPoint from = pixel(100.0, 100.0);
  const QPoint to = pixel(163.0, 141.0);
  dragOnScreen(projection(), from, to);
  EXPECT_NEAR((projection().mapping().offset_across - before.offset_across) * ratio(),
              to.x() - from.x(), 1.0);
  EXPECT_NEAR((projection().mapping().offset_up - before.offset_up) * ratio(), to.y() - from.y(),
              1.0);
}

TEST_F(AnyScreenTest, EveryWindowAndDialogOpensWithinIt) {
  ASSERT_NO_FATAL_FAILURE(expectWindowsOfViewsOnScreen());
  choose("new_event_item");
  for (const char* const item : window_items) {
    expect_window_on_screen([&] { choose(item); });
  }
  for (const char* const item : dialog_items) {
    activate(chamberWindow());
    expect_dialog_on_screen([&] { choose(item); });
  }
}

TEST_F(AnyScreenTest, TheCursorHasTheSizeOfSixteenUnits) {
  const QCursor cursor = projection().cursor();
  EXPECT_EQ(cursor.pixmap().width(), qRound(16.0 * ratio()));
  EXPECT_EQ(cursor.hotSpot(), QPoint(qRound(7.0 * ratio()), qRound(7.0 * ratio())));
}

}  // namespace velquon::test
