// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The cubes drawn from one array against one GLUT cube a point.

#include <GL/gl.h>

#include <QOpenGLFramebufferObject>
#include <random>

#include "render/chamber_scene.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr int rounding_pixels = 3;

class CubeArrayTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    chamber().set_show_values(false);
  }

  /// The view's scene with its matrices as they stand, in a picture of its own.
  [[nodiscard]] QImage drawnPointByPoint() {
    chamber().makeCurrent();
    QOpenGLFramebufferObject target(chamber_width, chamber_height);
    target.bind();
    // The chamber by a scene without points, and over it the points one by one.
    ChamberScene().draw(chamber().camera(), 1.0, 0, {.axes = chamber().show_axes(), .values = {}});
    draw_solid_cubes(chamber().data_ptr(), screen_cube_side, false);
    QImage picture = target.toImage().convertToFormat(QImage::Format_RGB32);
    target.release();
    chamber().doneCurrent();
    return picture;
  }

  void showRandomEvent(int count) {
    std::mt19937 random(static_cast<unsigned>(count));
    std::uniform_real_distribution<double> coordinate(-400.0, 400.0);
    std::uniform_int_distribution<int> code(2, 7);
    std::vector<PlotPoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      points.push_back(point_at(coordinate(random), coordinate(random), coordinate(random),
                                static_cast<std::int16_t>(code(random))));
    }
    showEvent(points);
  }
};

}  // namespace

TEST_F(CubeArrayTest, PicturesAgreeButForRounding) {
  const QImage empty = picture_of(chamber());
  for (const int count : {1, 350, 5000}) {
    SCOPED_TRACE(count);
    showRandomEvent(count);
    const QImage picture = picture_of(chamber());
    EXPECT_LE(differing_pixels(picture, drawnPointByPoint()), rounding_pixels);
    EXPECT_GE(differing_pixels(picture, empty), count);
  }
}

TEST_F(CubeArrayTest, PicturesAgreeAtAnyOrientation) {
  showRandomEvent(350);
  for (const char* const axis : {"x_item", "y_item", "z_item"}) {
    SCOPED_TRACE(axis);
    choose(axis);
    const auto steps = chamber().rotation_steps();
    choose("rotate_item");
    ASSERT_TRUE(wait_until([&] { return chamber().rotation_steps() > steps + 60; }));
    chamber().stopRotating();
    EXPECT_LE(differing_pixels(picture_of(chamber()), drawnPointByPoint()), rounding_pixels);
  }
}

TEST_F(CubeArrayTest, PicturesAgreeForPointsUponEachOther) {
  std::vector<PlotPoint> points;
  points.reserve(350);
  for (int i = 0; i < 350; ++i) {
    points.push_back(point_at(i % 7, 30.0 + i % 5, i % 3, static_cast<std::int16_t>(3 + i % 5)));
  }
  showEvent(points);
  EXPECT_LE(differing_pixels(picture_of(chamber()), drawnPointByPoint()), rounding_pixels);
}

}  // namespace velquon::test
