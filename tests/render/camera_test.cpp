// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The camera against OpenGL's own matrices.

#include "render/camera.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "render/off_screen.h"

namespace velquon::test {

namespace {

using Columns = std::array<double, 16>;

Columns loaded(GLenum which) {
  Columns columns{};
  glGetDoublev(which, columns.data());
  return columns;
}

/// The driver keeps single precision; what moves the chamber is some thousand units.
void expect_alike(const Columns& left, const Columns& right) {
  constexpr std::size_t first_of_the_move = 12;
  for (std::size_t i = 0; i < left.size(); ++i) {
    EXPECT_NEAR(left.at(i), right.at(i), i < first_of_the_move ? 2.0e-6 : 2.0e-3) << i;
  }
}

/// Builds the resting viewpoint on OpenGL's matrix stack.
void load_resting_viewpoint() {
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  gluPerspective(15.0, 1.365, 100.0, 7500.0);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  gluLookAt(350.0, 1750.0, 5150.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  glRotated(-90.0, 1.0, 0.0, 0.0);
  glRotated(-120.0, 0.0, 0.0, 1.0);
  glRotated(8.0, 0.0, 1.0, 0.0);
  glRotated(-5.0, 1.0, 0.0, 0.0);
  glRotated(7.0, 0.0, 0.0, 1.0);
  glRotated(2.0, 0.0, 1.0, 0.0);
  glRotated(-2.0, 1.0, 0.0, 0.0);
  glRotated(-3.5, 0.0, 0.0, 1.0);
  glRotated(1.0, 0.0, 1.0, 0.0);
}

struct Matrices {
  Columns projection = loaded(GL_PROJECTION_MATRIX);
  Columns model_view = loaded(GL_MODELVIEW_MATRIX);
};

void expect_loads(const Camera& camera, const Matrices& wanted) {
  camera.load();
  const Matrices shown;
  expect_alike(shown.projection, wanted.projection);
  expect_alike(shown.model_view, wanted.model_view);
}

}  // namespace

TEST(CameraTest, RestsWhereTheMatrixStackHasIt) {
  const OffScreenContext context;
  ASSERT_TRUE(context.isValid());
  load_resting_viewpoint();
  expect_loads(Camera(), Matrices());
}

TEST(CameraTest, TurnsAsTheMatrixStackDoes) {
  const OffScreenContext context;
  ASSERT_TRUE(context.isValid());
  load_resting_viewpoint();
  Camera camera;
  for (const auto& [degrees, axis] :
       {std::pair{0.5, along_x}, {-30.0, along_y}, {170.0, along_z}, {-0.5, along_x}}) {
    glRotated(degrees, axis[0], axis[1], axis[2]);
    camera.turn(degrees, axis);
  }
  expect_loads(camera, Matrices());
}

TEST(CameraTest, ScrollsByTwiceTheDistance) {
  const OffScreenContext context;
  ASSERT_TRUE(context.isValid());
  load_resting_viewpoint();
  glMatrixMode(GL_PROJECTION);
  glTranslated(-20.0, -60.0, 0.0);
  expect_loads(Camera().scrolled(10.0, 30.0), Matrices());
}

TEST(CameraTest, TheOverlaysViewpointTakesTheCoarseTurnsAndStandsStill) {
  const OffScreenContext context;
  ASSERT_TRUE(context.isValid());
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  gluPerspective(15.0, 1.365, 100.0, 7500.0);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  gluLookAt(250.0, 1750.0, 4650.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  glRotated(-90.0, 1.0, 0.0, 0.0);
  glRotated(-120.0, 0.0, 0.0, 1.0);
  glRotated(8.0, 0.0, 1.0, 0.0);
  glRotated(-5.0, 1.0, 0.0, 0.0);
  Camera camera;
  camera.turn(33.0, along_y);
  expect_loads(camera.overlay(), Matrices());
}

TEST(CameraTest, PixelsAreThoseOfTheUtilityLibrary) {
  Camera camera;
  camera.turn(25.0, along_z);
  const OffScreenContext context;
  camera.load();
  const Matrices shown;
  const std::array<GLint, 4> viewport{0, 0, chamber_width, chamber_height};
  for (const Vector& place :
       {Vector{0.0, 0.0, 0.0}, {400.0, -400.0, 400.0}, {10.0, 20.0, -300.0}}) {
    double x = 0.0;
    double y = 0.0;
    double depth = 0.0;
    ASSERT_EQ(gluProject(place[0], place[1], place[2], shown.model_view.data(),
                         shown.projection.data(), viewport.data(), &x, &y, &depth),
              GL_TRUE);
    EXPECT_NEAR(camera.pixel(place)[0], x, 1.0e-3);
    EXPECT_NEAR(camera.pixel(place)[1], y, 1.0e-3);
  }
}

TEST(CameraTest, TheEyeIsSeenNowhere) {
  for (const bool is_scrolled : {false, true}) {
    Camera camera;
    camera.turn(40.0, along_y);
    if (is_scrolled) {
      camera = camera.scrolled(10.0, 30.0);
    }
    const auto [x, y, z] = camera.eye();
    const auto apply = [&, x = x, y = y, z = z](const Matrix& m, std::size_t row) {
      return m[row][0] * x + m[row][1] * y + m[row][2] * z + m[row][3];
    };
    const Matrix& view = camera.modelView();
    const double seen_x = apply(view, 0);
    const double seen_y = apply(view, 1);
    // The perspective's centre, which the scrolling has moved by twice the distance.
    EXPECT_NEAR(seen_x, is_scrolled ? 20.0 : 0.0, 1.0e-9);
    EXPECT_NEAR(seen_y, is_scrolled ? 60.0 : 0.0, 1.0e-9);
    EXPECT_NEAR(apply(view, 2), 0.0, 1.0e-9);
  }
}

TEST(CameraTest, ATurnOfHalfADegree720TimesComesBack) {
  Camera camera;
  for (int step = 0; step < 720; ++step) {
    camera.turn(0.5, along_z);
  }
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      EXPECT_NEAR(camera.modelView()[row][column], Camera().modelView()[row][column], 1.0e-9);
    }
  }
}

TEST(CameraTest, ADragMovesTheNearSideWithTheHandAndLeavesTheMiddle) {
  struct Drag {
    double rightwards;
    double downwards;
  };
  for (const int turned : {0, 40, 215}) {
    for (const auto [rightwards, downwards] :
         {Drag{1.0, 0.0}, Drag{-1.0, 0.0}, Drag{0.0, 1.0}, Drag{0.0, -1.0}}) {
      Camera camera;
      camera.turn(turned, along_z);
      camera.turn(0.6 * turned, along_x);
      const Vector eye = camera.eye();
      // A place between the middle of the chamber and the eye.
      const Vector near_side{0.06 * eye[0], 0.06 * eye[1], 0.06 * eye[2]};
      const auto before = camera.pixel(near_side);
      const auto middle = camera.pixel({0.0, 0.0, 0.0});
      camera.turnNearSide(rightwards, downwards);
      const auto after = camera.pixel(near_side);
      EXPECT_GT((after[0] - before[0]) * rightwards - (after[1] - before[1]) * downwards, 0.3);
      EXPECT_NEAR((after[0] - before[0]) * downwards + (after[1] - before[1]) * rightwards, 0.0,
                  0.1);
      EXPECT_NEAR(camera.pixel({0.0, 0.0, 0.0})[0], middle[0], 1e-9);
      EXPECT_NEAR(camera.pixel({0.0, 0.0, 0.0})[1], middle[1], 1e-9);
    }
  }
}

TEST(CameraTest, AThousandDragsKeepTheChamberACube) {
  Camera camera;
  for (int i = 0; i < 1000; ++i) {
    camera.turnNearSide(3.0 * std::sin(i), 5.0 * std::cos(i));
  }
  const Matrix& view = camera.modelView();
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t other = 0; other < 3; ++other) {
      double product = 0.0;
      for (std::size_t k = 0; k < 3; ++k) {
        product += view[row][k] * view[other][k];
      }
      EXPECT_NEAR(product, row == other ? 1.0 : 0.0, 1e-11);
    }
  }
}

}  // namespace velquon::test
