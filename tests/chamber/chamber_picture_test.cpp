// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the chamber view draws, pixel by pixel against places worked out from its viewpoint.

#include <cstdlib>
#include <optional>
#include <random>

#include "model/clock.h"

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr double half = 400.0;
// A cube of 4.5 drawing units is no wider than that in the resting view.
constexpr double cube_reach = 2.0;

class ChamberPictureTest : public ApplicationFixture {
 protected:
  const PictureCamera camera_ = resting_camera();

  /// A place on the line from the middle of the chamber to the eye.
  [[nodiscard]] Vector onTheWayToTheEye(double part) const {
    const Matrix& view = camera_.modelView();
    Vector place{};
    for (std::size_t axis = 0; axis < place.size(); ++axis) {
      for (std::size_t row = 0; row < place.size(); ++row) {
        place.at(axis) -= part * view[row][axis] * view[row][3];
      }
    }
    return place;
  }
  [[nodiscard]] QPointF pixel(const PlotPoint& point) const {
    return camera_.pixel({point.coords[0], point.coords[1], point.coords[2]});
  }

  /// Whether the pixel at a point's place has the colour of the last cube that can cover it, and
  /// whether no other cube can.
  struct Finding {
    bool has_a_right_color;
    bool is_alone;
  };
  [[nodiscard]] Finding look(const QImage& picture, std::span<const PlotPoint> points,
                             std::size_t index) const {
    const QPointF place = pixel(points[index]);
    const QRgb seen = color_at(picture, place);
    Finding finding{seen == color_of_code(points[index].code), true};
    for (std::size_t other = index + 1; other < points.size(); ++other) {
      const QPointF apart = pixel(points[other]) - place;
      if (std::hypot(apart.x(), apart.y()) < 2.0 * cube_reach) {
        finding.is_alone = false;
        finding.has_a_right_color |= seen == color_of_code(points[other].code);
      }
    }
    return finding;
  }
};

}  // namespace

TEST_F(ChamberPictureTest, TheChamberHasItsEightCornersAndTwelveEdges) {
  // The axes would lie over some of the edges.
  chamber().set_show_axes(false);
  const QImage picture = picture_of(chamber());
  ASSERT_EQ(picture.size(), QSize(682, 500));
  for (const double x : {-half, half}) {
    for (const double y : {-half, half}) {
      EXPECT_TRUE(
          has_line(picture, camera_.pixel({x, y, -half}), camera_.pixel({x, y, half}), edge_blue));
      EXPECT_TRUE(
          has_line(picture, camera_.pixel({x, -half, y}), camera_.pixel({x, half, y}), edge_blue));
      EXPECT_TRUE(
          has_line(picture, camera_.pixel({-half, x, y}), camera_.pixel({half, x, y}), edge_blue));
      for (const double z : {-half, half}) {
        EXPECT_TRUE(has_color_near(picture, camera_.pixel({x, y, z}), edge_blue, 1.5));
      }
    }
  }
}

TEST_F(ChamberPictureTest, TheMiddlePlaneIsOutlinedWithAxesAndWithout) {
  for (const bool with_axes : {true, false}) {
    chamber().set_show_axes(with_axes);
    const QImage picture = picture_of(chamber());
    const std::array corners{camera_.pixel({half, -half, 0.0}), camera_.pixel({half, half, 0.0}),
                             camera_.pixel({-half, half, 0.0}), camera_.pixel({-half, -half, 0.0})};
    for (std::size_t i = 0; i < corners.size(); ++i) {
      EXPECT_TRUE(has_line(picture, corners.at(i), corners.at((i + 1) % 4), plane_red)) << i;
    }
  }
}

TEST_F(ChamberPictureTest, AxesAreDrawnFromTheCentreWhenWanted) {
  const QPointF centre = camera_.pixel({0.0, 0.0, 0.0});
  struct Case {
    Vector end;
    QRgb color;
  };
  constexpr std::array cases{Case{{half, 0.0, 0.0}, white}, Case{{0.0, half, 0.0}, white},
                             Case{{0.0, 0.0, half}, green}};
  const QImage with_axes = picture_of(chamber());
  for (const auto& [end, color] : cases) {
    EXPECT_TRUE(has_line(with_axes, centre, camera_.pixel(end), color));
  }
  choose("axes_item");
  const QImage without = picture_of(chamber());
  EXPECT_TRUE(pixels_of(without, white).empty());
  EXPECT_TRUE(pixels_of(without, green).empty());
  choose("axes_item");
  EXPECT_EQ(differing_pixels(picture_of(chamber()), with_axes), 0);
}

TEST_F(ChamberPictureTest, NothingIsDrawnBesidesTheChamberWithoutAnEvent) {
  const QImage before = picture_of(chamber());
  showEvent({});
  chamber().set_show_values(false);
  EXPECT_EQ(differing_pixels(picture_of(chamber()), before), 0);
}

TEST_F(ChamberPictureTest, EachCodeHasItsColor) {
  hideAxesAndValues();
  constexpr std::array<std::int16_t, 14> codes{3, 4,  5, 6, 7,   0,     1,
                                               2, -5, 8, 9, 100, 32767, -32768};
  std::vector<PlotPoint> points;
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const auto step = static_cast<double>(i);
    points.push_back(point_at(-330.0 + 45.0 * step, 250.0 - 30.0 * step, 120.0, codes.at(i)));
  }
  showEvent(points);
  const QImage picture = picture_of(chamber());
  for (const PlotPoint& point : points) {
    EXPECT_EQ(color_at(picture, pixel(point)), color_of_code(point.code)) << point.code;
  }
}

TEST_F(ChamberPictureTest, PointsOfANewEventAreAtTheirPlaces) {
  hideAxesAndValues();
  controller().settings().setEnergyControl(30.0F);
  for (const char* const type : {"piminus_item", "muplus_item", "lambda_item"}) {
    SCOPED_TRACE(type);
    choose(type);
    std::size_t alone = 0;
    // Not every Lambda leaves points.
    for (int attempt = 0; attempt < 20 && alone == 0; ++attempt) {
      choose("new_event_item");
      const QImage picture = picture_of(chamber());
      const auto points = chamber().data_ptr();
      for (std::size_t i = 0; i < points.size(); ++i) {
        const Finding finding = look(picture, points, i);
        EXPECT_TRUE(finding.has_a_right_color) << "point " << i;
        alone += finding.is_alone ? 1U : 0U;
      }
    }
    EXPECT_GT(alone, 0U);
  }
}

TEST_F(ChamberPictureTest, NoColorOfAPointIsFarFromAnyPoint) {
  hideAxesAndValues();
  std::mt19937 random(1);
  std::uniform_real_distribution<double> coordinate(-395.0, 395.0);
  std::vector<PlotPoint> points;
  points.reserve(60);
  for (int i = 0; i < 60; ++i) {
    points.push_back(point_at(coordinate(random), coordinate(random), coordinate(random),
                              static_cast<std::int16_t>(3 + i % 5)));
  }
  showEvent(points);
  const QImage picture = picture_of(chamber());
  int near_points = 0;
  for (const QRgb color : {red, yellow, green, blue, light_blue}) {
    for (const QPoint& found : pixels_of(picture, color)) {
      const bool is_near = std::ranges::any_of(points, [&](const PlotPoint& point) {
        const QPointF apart = pixel(point) - (QPointF(found) + QPointF(0.5, 0.5));
        return std::hypot(apart.x(), apart.y()) < cube_reach && color_of_code(point.code) == color;
      });
      EXPECT_TRUE(is_near) << found.x() << ", " << found.y();
      near_points += is_near ? 1 : 0;
    }
  }
  EXPECT_GT(near_points, 60);
}

TEST_F(ChamberPictureTest, APictureIsOnTheScreenWhenItsDrawingReturns) {
  ASSERT_TRUE(wait_until([&] { return screen_picture(chamber()) == picture_of(chamber()); }));
  const QImage before = screen_picture(chamber());
  chamber().setData(std::array{point_at(0.0, 50.0, 50.0, 3), point_at(0.0, -150.0, 50.0, 4)});
  chamber().display();
  EXPECT_TRUE(screen_comes_to_show(chamber(), picture_of(chamber())));
  EXPECT_NE(screen_picture(chamber()), before);
}

TEST_F(ChamberPictureTest, ANewEventIsOnTheScreenWhenItHasBeenMade) {
  ASSERT_TRUE(wait_until([&] { return screen_picture(chamber()) == picture_of(chamber()); }));
  for (const char* const type : {"piminus_item", "muplus_item"}) {
    SCOPED_TRACE(type);
    choose(type);
    const QImage before = screen_picture(chamber());
    choose("new_event_item");
    EXPECT_TRUE(screen_comes_to_show(chamber(), picture_of(chamber())));
    EXPECT_NE(screen_picture(chamber()), before);
  }
}

TEST_F(ChamberPictureTest, ACubeHasASideOfFourAndAHalfDrawingUnits) {
  hideAxesAndValues();
  // Between the eye and the chamber, where a cube is seen large.
  const Vector place = onTheWayToTheEye(0.96);
  showEvent(std::array{point_at(place[0], place[1], place[2], 3)});
  constexpr double half_cube = 2.25;
  QRectF expected;
  for (const double x : {-half_cube, half_cube}) {
    for (const double y : {-half_cube, half_cube}) {
      for (const double z : {-half_cube, half_cube}) {
        const QPointF corner = camera_.pixel({place[0] + x, place[1] + y, place[2] + z});
        expected |= QRectF(corner, QSizeF(1.0e-6, 1.0e-6));
      }
    }
  }
  ASSERT_GT(expected.width(), 30.0);
  const QRect seen = extent_of(pixels_of(picture_of(chamber()), red));
  EXPECT_NEAR(seen.left(), expected.left(), 1.0);
  EXPECT_NEAR(seen.right() + 1, expected.right(), 1.0);
  EXPECT_NEAR(seen.top(), expected.top(), 1.0);
  EXPECT_NEAR(seen.bottom() + 1, expected.bottom(), 1.0);
}

TEST_F(ChamberPictureTest, ANewContextShowsTheEventFromTheRestingViewpoint) {
  showEvent(std::array{point_at(300.0, -100.0, 200.0, 3), point_at(-250.0, 150.0, 100.0, 4)});
  chamber().set_show_values(false);
  const QImage resting = picture_of(chamber());
  choose("rotate_item");
  for (int step = 0; step < 40; ++step) {
    chamber().rotate();
  }
  chamber().stopRotating();
  ASSERT_NE(picture_of(chamber()), resting);
  // A view that moves into another window gets a context of its own.
  QWidget other_window;
  QWidget* const area = chamber().parentWidget()->parentWidget();
  QWidget* const home = area->parentWidget();
  other_window.resize(area->size());
  area->setParent(&other_window);
  area->move(0, 0);
  area->show();
  other_window.show();
  ASSERT_TRUE(wait_until_exposed(&other_window));
  handle_waiting_events();
  EXPECT_EQ(differing_pixels(picture_of(chamber()), resting), 0);
  area->setParent(home);
}

TEST_F(ChamberPictureTest, WithoutASeedTheClockSeedsTheGenerator) {
  for (int view = 0; view < 3; ++view) {
    const std::uint64_t before = Microseconds();
    const ChamberModel unseeded(std::nullopt);
    const std::uint64_t after = Microseconds();
    const std::array drawn{std::rand(), std::rand(), std::rand()};
    bool is_of_the_clock = false;
    for (std::uint64_t time = before; time <= after && !is_of_the_clock; ++time) {
      std::srand(static_cast<std::uint32_t>(time));
      is_of_the_clock = drawn == std::array{std::rand(), std::rand(), std::rand()};
    }
    EXPECT_TRUE(is_of_the_clock);
  }
}

TEST_F(ChamberPictureTest, LaterPointsAreDrawnOverEarlierOnes) {
  const std::array points{point_at(0.0, 50.0, 50.0, 3), point_at(0.0, 50.0, 50.0, 6)};
  showEvent(points);
  EXPECT_EQ(color_at(picture_of(chamber()), pixel(points[0])), blue);
  const std::array other_order{points[1], points[0]};
  showEvent(other_order);
  EXPECT_EQ(color_at(picture_of(chamber()), pixel(points[0])), red);
}

TEST_F(ChamberPictureTest, PointsOutsideTheChamberAndTheViewDoNoHarm) {
  const std::array points{point_at(1.0e30, -1.0e30, 0.0, 3), point_at(0.0, 6000.0, 0.0, 4),
                          point_at(0.0, 50.0, 50.0, 3)};
  showEvent(points);
  EXPECT_EQ(color_at(picture_of(chamber()), pixel(points[2])), red);
}

}  // namespace velquon::test
