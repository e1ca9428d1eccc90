// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projection view: frame, points, planes and shown_zooms.

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include "model/projector.h"
#include "projection/projector_window.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"

namespace velquon::test {

namespace {

constexpr double view_height = 420.0;

struct PlaneCase {
  const char* button;
  /// The point that a plane shows at a place across and upward.
  PlotPoint (*point)(double across, double upward, double depth);
};
const std::array planes{
    PlaneCase{"xy_button", [](double across, double upward,
                              double depth) { return point_at(-upward, across, depth, 3); }},
    PlaneCase{"xz_button", [](double across, double upward,
                              double depth) { return point_at(across, depth, upward, 4); }},
    PlaneCase{"yz_button", [](double across, double upward, double depth) {
                return point_at(depth, across, upward, 7);
              }}};

/// Places across and upward that every zoom shows, and what lies along the line of sight.
constexpr std::array<std::array<double, 3>, 5> places{{{-201.3, 33.1, 250.0},
                                                       {-250.7, -100.9, -333.0},
                                                       {-298.9, 99.3, 0.0},
                                                       {-333.3, -20.7, 399.0},
                                                       {-160.9, 77.7, -1.0}}};

struct ShownZoom {
  const char* button;
  double zoom;
};
constexpr std::array shown_zooms{ShownZoom{"zoom_1", 1.0}, ShownZoom{"zoom_2", 2.0},
                                 ShownZoom{"zoom_3", 3.0}};

/// The place of projected drawing units in the picture, from its top left corner.
QPointF place_of(double across, double upward, double zoom, QPointF offsets = {470.0, 420.0}) {
  const double s = 0.5 * zoom;
  const double a = offsets.y() / zoom;
  return {s * (across + offsets.x()), s * (a - upward)};
}

class ProjectionTest : public ApplicationFixture {
 protected:
  const std::array<PlotPoint, 2> points_{point_at(-20.7, -302.7, 33.1, 3),
                                         point_at(150.1, 120.3, -100.9, 4)};

  [[nodiscard]] QImage picture() { return picture_of(projection()); }
  [[nodiscard]] std::string reading() { return control<QLabel>("tape_text").text().toStdString(); }
  void expectFrame(double zoom) {
    const QImage seen = picture();
    const double left = place_of(-400.0, 0.0, zoom).x();
    const double right = place_of(400.0, 0.0, zoom).x();
    const double top = place_of(0.0, 400.0, zoom).y();
    const double bottom = place_of(0.0, -400.0, zoom).y();
    EXPECT_TRUE(hasDots(seen, left, true));
    EXPECT_EQ(hasDots(seen, right, true), right < seen.width());
    EXPECT_EQ(hasDots(seen, top, false), top > 0.0);
    EXPECT_EQ(hasDots(seen, bottom, false), bottom < seen.height());
  }

 private:
  /// Whether every other pixel is white along a column or a row, on either side of its place.
  static bool hasDots(const QImage& seen, double place, bool is_column) {
    const int line = static_cast<int>(place);
    for (const int at : {line - 1, line}) {
      const int length = is_column ? seen.height() : seen.width();
      int dots = 0;
      int pairs = 0;
      for (int along = 40; along < length - 40; ++along) {
        const auto is_dot = [&](int i) {
          const QPoint pixel = is_column ? QPoint(at, i) : QPoint(i, at);
          return seen.valid(pixel) && seen.pixel(pixel) == white;
        };
        dots += is_dot(along) ? 1 : 0;
        pairs += is_dot(along) && is_dot(along + 1) ? 1 : 0;
      }
      if (dots > 120 && pairs < 8) {
        return true;
      }
    }
    return false;
  }
};

}  // namespace

TEST_F(ProjectionTest, TheFrameOfZoomOneSpansItsPlace) {
  const auto dots = pixels_of(picture(), white);
  ASSERT_FALSE(dots.empty());
  const QRect extent = extent_of(dots);
  EXPECT_NEAR(extent.left(), 35, 1);
  EXPECT_NEAR(extent.right(), 435, 1);
  EXPECT_NEAR(extent.top(), 10, 1);
  EXPECT_NEAR(extent.bottom(), 410, 1);
  // Every other pixel of four sides of 400, and nothing else.
  EXPECT_NEAR(static_cast<double>(dots.size()), 800.0, 8.0);
}

TEST_F(ProjectionTest, TheFrameIsWhereEachZoomPutsIt) {
  for (const auto& [button, zoom] : shown_zooms) {
    SCOPED_TRACE(button);
    clickButton(button);
    expectFrame(zoom);
  }
}

TEST_F(ProjectionTest, TheMappingIsThatOfTheFormulas) {
  clickButton("zoom_2");
  const auto [lower_left, upper_right] = projection().mapping().frame();
  EXPECT_DOUBLE_EQ(lower_left.x, 70.0);
  EXPECT_DOUBLE_EQ(upper_right.x, 870.0);
  EXPECT_DOUBLE_EQ(lower_left.y, view_height - 610.0);
  EXPECT_DOUBLE_EQ(upper_right.y, view_height + 190.0);
}

TEST_F(ProjectionTest, PointsAreAtTheirPlacesInEachPlaneAndZoom) {
  for (const auto& [plane, point] : planes) {
    clickButton(plane);
    std::vector<PlotPoint> points;
    points.reserve(places.size());
    for (const auto& [across, upward, depth] : places) {
      points.push_back(point(across, upward, depth));
    }
    showEvent(points);
    for (const auto& [button, zoom] : shown_zooms) {
      clickButton(button);
      const QImage seen = picture();
      for (const auto& [across, upward, depth] : places) {
        EXPECT_EQ(color_at(seen, place_of(across, upward, zoom)), white)
            << plane << ", " << button << ", " << across;
      }
    }
  }
}

TEST_F(ProjectionTest, APointIsOnePixelAndNothingElseIsDrawn) {
  const QImage empty = picture();
  showEvent(points_);
  EXPECT_EQ(differing_pixels(picture(), empty), static_cast<int>(points_.size()));
}

TEST_F(ProjectionTest, TheCentreOfTheChamberIsTheCentreOfTheFrame) {
  const std::array centre{point_at(0.0, 0.0, 0.0, 3)};
  for (const auto& [plane, point] : planes) {
    clickButton(plane);
    showEvent({});
    const QImage empty = picture();
    showEvent(centre);
    const QImage seen = picture();
    EXPECT_TRUE(has_color_near(seen, {235.0, 210.0}, white, 1.0));
    EXPECT_EQ(differing_pixels(seen, empty), 1);
  }
}

TEST_F(ProjectionTest, AnEventWithoutPointsShowsTheFrameAlone) {
  const QImage at_start = picture();
  showEvent(points_);
  showEvent({});
  EXPECT_EQ(differing_pixels(picture(), at_start), 0);
}

TEST_F(ProjectionTest, ANewEventIsShownInThePlaneThatIsChosen) {
  clickButton("yz_button");
  choose("muplus_item");
  choose("new_event_item");
  const auto points = chamber().data_ptr();
  ASSERT_FALSE(points.empty());
  const QImage seen = picture();
  for (const PlotPoint& point : points) {
    const QPointF place = place_of(point.coords[1], point.coords[2], 1.0);
    EXPECT_TRUE(has_color_near(seen, place, white, 1.0));
  }
}

TEST_F(ProjectionTest, ThePlaneIsThatOfTheButton) {
  struct Case {
    const char* button;
    ProjectionPlane plane;
  };
  constexpr std::array cases{Case{"xz_button", ProjectionPlane::xz},
                             Case{"yz_button", ProjectionPlane::yz},
                             Case{"xy_button", ProjectionPlane::xy}};
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::xy);
  for (const auto& [button, plane] : cases) {
    clickButton(button);
    EXPECT_EQ(projection().projection_plane(), plane);
    EXPECT_TRUE(control<QAbstractButton>(button).isChecked());
  }
}

TEST_F(ProjectionTest, APlaneChosenAgainGoesBackToItsPlaceAndHidesTheTape) {
  clickButton("xz_button");
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {160, 130});
  ASSERT_NE(projection().mapping().offset_across, 470.0);
  clickButton("tape_tool");
  drag(projection(), {100, 100}, {200, 100});
  ASSERT_TRUE(projection().tape_visible());
  clickButton("xz_button");
  EXPECT_EQ(projection().mapping().offset_across, 470.0);
  EXPECT_EQ(projection().mapping().offset_up, 420.0);
  EXPECT_FALSE(projection().tape_visible());
  EXPECT_EQ(reading(), "D =  0.00 cm");
}

TEST_F(ProjectionTest, AZoomKeepsTheOffsets) {
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {160, 130});
  const ProjectionMapping moved = projection().mapping();
  for (const auto& [button, zoom] : shown_zooms) {
    clickButton(button);
    EXPECT_EQ(projection().mapping().zoom, zoom);
    EXPECT_EQ(projection().mapping().offset_across, moved.offset_across);
    EXPECT_EQ(projection().mapping().offset_up, moved.offset_up);
  }
}

TEST_F(ProjectionTest, ButtonsWorkByKeys) {
  auto& button = control<QAbstractButton>("xz_button");
  activate(projectorWindow());
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::xz);
  auto& zoom = control<QAbstractButton>("zoom_3");
  zoom.setFocus();
  QTest::keyClick(&zoom, Qt::Key_Space);
  EXPECT_EQ(projection().mapping().zoom, 3.0);
}

TEST_F(ProjectionTest, TheButtonsShowWhatIsChosenElsewhere) {
  projection().setProjection(ProjectionPlane::yz);
  projection().setZoom(2.0F);
  projection().setTool(ProjectorTool::angle);
  for (const char* const name : {"yz_button", "zoom_2", "angle_tool"}) {
    EXPECT_TRUE(control<QAbstractButton>(name).isChecked()) << name;
  }
  for (const char* const name : {"xy_button", "zoom_1", "tape_tool"}) {
    EXPECT_FALSE(control<QAbstractButton>(name).isChecked()) << name;
  }
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::yz);
}

TEST_F(ProjectionTest, TheButtonOfSnappingShowsWhatIsChosenElsewhere) {
  Projector projector;
  const ProjectorWindow window(projector);
  const auto* const button = window.findChild<QAbstractButton*>(QStringLiteral("snap_button"));
  ASSERT_NE(button, nullptr);
  EXPECT_TRUE(button->isChecked());
  projector.setSnaps(false);
  EXPECT_FALSE(button->isChecked());
}

TEST_F(ProjectionTest, AChoiceDrawsOnce) {
  for (const char* const name : {"yz_button", "yz_button", "zoom_2", "zoom_2", "grab_tool"}) {
    const int passes = projection().passes();
    clickButton(name);
    EXPECT_EQ(projection().passes(), passes + 1) << name;
  }
}

}  // namespace velquon::test
