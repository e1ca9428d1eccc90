// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/line_arrays.h"

#include <GL/freeglut.h>
#include <gtest/gtest.h>

#include <QImage>
#include <array>
#include <clocale>
#include <functional>
#include <string>

#include "render/camera.h"
#include "render/glut_start.h"
#include "render/off_screen.h"

namespace velquon::test {

namespace {

constexpr QSize size(682, 500);
constexpr float side = 800.0F;

/// A cube seen by a camera, white on black.
QImage drawn(const Camera& camera, const std::function<void()>& cube) {
  const auto picture = draw_off_screen(size, [&] {
    glViewport(0, 0, size.width(), size.height());
    glClear(GL_COLOR_BUFFER_BIT);
    camera.load();
    glColor3f(1.0F, 1.0F, 1.0F);
    cube();
  });
  EXPECT_TRUE(picture);
  return picture.value_or(QImage());
}

bool is_dark(const QImage& picture) {
  QImage dark(picture.size(), picture.format());
  dark.fill(picture.pixel(0, 0));
  return picture == dark;
}

}  // namespace

TEST(LineArrays, TheWireCubeIsTheOneOfGlutFromEverySide) {
  Camera camera;
  for (int turn = 0; turn < 12; ++turn) {
    SCOPED_TRACE(turn);
    const QImage ours = drawn(camera, [] { draw_wire_cube(side); });
    const QImage of_glut = drawn(camera, [] {
      need_glut();
      glutWireCube(static_cast<double>(side));
    });
    EXPECT_FALSE(is_dark(ours));
    EXPECT_EQ(ours, of_glut);
    camera.turn(23.0, std::array{along_x, along_y, along_z}[static_cast<std::size_t>(turn % 3)]);
  }
}

TEST(GlutStart, LeavesTheLocaleAsItIs) {
  const OffScreenContext context;
  std::setlocale(LC_NUMERIC, "C");
  const std::string before = std::setlocale(LC_ALL, nullptr);
  need_glut();
  EXPECT_NE(glutGet(GLUT_INIT_STATE), 0);
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
  EXPECT_TRUE(context.isValid());
}

}  // namespace velquon::test
