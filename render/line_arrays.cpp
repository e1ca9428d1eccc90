// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/line_arrays.h"

#include <GL/gl.h>

namespace velquon {

namespace {

void draw_array(GLenum mode, std::span<const Corner> corners) {
  glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(3, GL_FLOAT, 0, corners.data());
  glDrawArrays(mode, 0, static_cast<GLsizei>(corners.size()));
  glPopClientAttrib();
}

}  // namespace

void draw_line_strip(std::span<const Corner> corners) {
  draw_array(GL_LINE_STRIP, corners);
}

void draw_line_loop(std::span<const Corner> corners) {
  draw_array(GL_LINE_LOOP, corners);
}

void draw_wire_cube(float side) {
  const float h = side / 2.0F;
  const std::array<std::array<Corner, 4>, 6> faces{{
      {{{h, h, h}, {-h, h, h}, {-h, -h, h}, {h, -h, h}}},
      {{{h, h, h}, {h, -h, h}, {h, -h, -h}, {h, h, -h}}},
      {{{h, h, h}, {h, h, -h}, {-h, h, -h}, {-h, h, h}}},
      {{{-h, h, h}, {-h, h, -h}, {-h, -h, -h}, {-h, -h, h}}},
      {{{-h, -h, -h}, {h, -h, -h}, {h, -h, h}, {-h, -h, h}}},
      {{{h, -h, -h}, {-h, -h, -h}, {-h, h, -h}, {h, h, -h}}},
  }};
  for (const auto& face : faces) {
    draw_line_loop(face);
  }
}

}  // namespace velquon
