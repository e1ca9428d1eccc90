// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The chamber's scene drawn without a window, at any size.

#include "render/off_screen.h"

#include <gtest/gtest.h>

#include <QColor>
#include <array>
#include <cmath>
#include <random>
#include <vector>

#include "render/chamber_scene.h"
#include "tests/support/windows/light.h"

namespace velquon::test {

namespace {

std::vector<PlotPoint> some_points() {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> coordinate(-380.0, 380.0);
  std::vector<PlotPoint> points;
  for (std::int16_t i = 0; i < 60; ++i) {
    points.push_back({.coords = {coordinate(random), coordinate(random), coordinate(random), 1.0},
                      .code = static_cast<std::int16_t>(3 + i % 5)});
  }
  return points;
}

QImage drawn_at(int scale, const Camera& camera) {
  ChamberScene scene;
  scene.setPoints(some_points());
  const auto picture = draw_off_screen(QSize(chamber_width, chamber_height) * scale, [&] {
    scene.draw(camera, scale, some_points().size(),
               {.axes = true, .values = "B = 1 kG, T = 2 MeV, L = 3 m"});
  });
  EXPECT_TRUE(picture);
  return picture.value_or(QImage()).convertToFormat(QImage::Format_RGB32);
}

/// The first points of an event, some of which are marked.
QImage drawn_with_marks(std::size_t points, const std::vector<std::size_t>& marked) {
  ChamberScene scene;
  scene.setPoints(some_points());
  const auto picture = draw_off_screen(QSize(chamber_width, chamber_height), [&] {
    scene.draw(Camera(), 1.0, points, {.axes = true, .values = {}, .marked = marked});
  });
  EXPECT_TRUE(picture);
  return picture.value_or(QImage());
}

int lit(const QImage& picture) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      count += brightness(picture.pixel(x, y)) > 0.5 ? 1 : 0;
    }
  }
  return count;
}

}  // namespace

TEST(OffScreenTest, FourTimesTheSizeIsTheSamePictureAfterScaling) {
  Camera turned;
  turned.turn(20.0, along_z);
  for (const Camera& camera : {Camera(), turned}) {
    const QImage plain = drawn_at(1, camera);
    const QImage large = drawn_at(4, camera);
    ASSERT_EQ(plain.size(), QSize(chamber_width, chamber_height));
    ASSERT_EQ(large.size(), QSize(chamber_width, chamber_height) * 4);
    const QImage scaled =
        large.scaled(plain.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_EQ(strangers(plain, scaled, 0.25), 0);
    EXPECT_EQ(strangers(scaled, plain, 0.25), 0);
    EXPECT_NEAR(lit(large) / 16.0, lit(plain), 0.1 * lit(plain));
  }
}

TEST(OffScreenTest, ItIsDrawnInTheColoursOfItsTracks) {
  const QImage picture = drawn_at(4, Camera());
  const std::vector<PlotPoint> points = some_points();
  const PlotPoint& last = points.back();  // over all others
  const auto [x, y] = Camera().pixel({last.coords[0], last.coords[1], last.coords[2]});
  const QRgb pixel = picture.pixel(static_cast<int>(std::lround(4.0 * x)),
                                   static_cast<int>(std::lround(4.0 * (chamber_height - y))));
  EXPECT_EQ(QColor(pixel), QColor::fromRgbF(0.2F, 0.8F, 1.0F).toRgb());
}

TEST(OffScreenTest, MarksAreOnThePointsThatAreDrawn) {
  const QImage plain = drawn_with_marks(10, {});
  const QImage marked = drawn_with_marks(10, {5});
  EXPECT_NE(marked, plain);
  EXPECT_EQ(drawn_with_marks(10, {5, 10, 40, 1000}), marked);
  EXPECT_EQ(drawn_with_marks(10, {10, 40}), plain);
}

TEST(OffScreenTest, ThePictureOfAnImpossibleSizeIsRefused) {
  EXPECT_FALSE(draw_off_screen({1'000'000, 1'000'000}, [] {}));
}

TEST(OffScreenTest, TheContextBeforeIsCurrentAgainAfterwards) {
  const OffScreenContext outer;
  const QOpenGLContext* const before = QOpenGLContext::currentContext();
  EXPECT_TRUE(draw_off_screen({10, 10}, [] {}));
  EXPECT_EQ(QOpenGLContext::currentContext(), before);
}

}  // namespace velquon::test
