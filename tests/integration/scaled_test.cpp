// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The chamber view on a screen with two pixels a view unit: the picture is the same, in finer
// pixels. A program of its own, as the ratio is settled before the windows.

#include "render/chamber_scene.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/values_line.h"

namespace velquon::test {

namespace {

constexpr int ratio = 2;

class ScaledTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    ASSERT_EQ(chamber().devicePixelRatioF(), ratio);
    ASSERT_EQ(chamber().size(), QSize(chamber_width, chamber_height));
  }

  [[nodiscard]] QPointF pixel(const Vector& place) const { return camera_.pixel(place) * ratio; }

 private:
  const PictureCamera camera_ = resting_camera();
};

}  // namespace

TEST_F(ScaledTest, ThePictureFillsTheViewInFinerPixels) {
  const std::array points{point_at(300.0, -100.0, 200.0, 3), point_at(-250.0, 150.0, 100.0, 4),
                          point_at(100.0, 250.0, -150.0, 6)};
  hideAxesAndValues();
  showEvent(points);
  const QImage picture = picture_of(chamber());
  EXPECT_EQ(picture.size(), QSize(chamber_width, chamber_height) * ratio);
  for (const PlotPoint& point : points) {
    EXPECT_EQ(color_at(picture, pixel({point.coords[0], point.coords[1], point.coords[2]})),
              color_of_code(point.code));
  }
  EXPECT_TRUE(screen_comes_to_show(chamber(), picture));
}

TEST_F(ScaledTest, LinesAreTwoPixelsWide) {
  hideAxesAndValues();
  const QImage picture = picture_of(chamber());
  for (const double x : {-400.0, 400.0}) {
    // The edges along z are nearly upright in the picture.
    const QPointF middle = pixel({x, 400.0, 100.0});
    int width = 0;
    for (int across = -4; across <= 4; ++across) {
      width += color_at(picture, middle + QPointF(across, 0.0)) == edge_blue ? 1 : 0;
    }
    EXPECT_EQ(width, ratio);
  }
}

TEST_F(ScaledTest, EachPixelOfTheValuesLineIsASquareOfPixels) {
  chamber().set_show_axes(false);
  showEvent({});
  const auto unscaled = pixels_of(values_line_unscaled(chamber()), white);
  const QImage picture = picture_of(chamber());
  const auto scaled = pixels_of(picture, white);
  ASSERT_GT(unscaled.size(), 100U);
  ASSERT_EQ(scaled.size(), unscaled.size() * ratio * ratio);
  const QPoint start = extent_of(unscaled).topLeft();
  const QPoint scaled_start = extent_of(scaled).topLeft();
  for (const QPoint& place : unscaled) {
    const QPoint square = scaled_start + (place - start) * ratio;
    for (const QPoint& within : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
      EXPECT_EQ(picture.pixel(square + within), white);
    }
  }
  // Within a view unit it is where it is on any screen.
  EXPECT_NEAR(scaled_start.x(), start.x() * ratio, ratio);
  EXPECT_NEAR(scaled_start.y(), start.y() * ratio, ratio);
}

TEST_F(ScaledTest, TheValuesLineShowsTheValuesOfTheEvent) {
  chamber().set_show_axes(false);
  showEvent({});
  const auto before = pixels_of(picture_of(chamber()), white);
  chamber().setCurrentMev(123.0F);
  chamber().display();
  EXPECT_NE(pixels_of(picture_of(chamber()), white), before);
}

}  // namespace velquon::test
