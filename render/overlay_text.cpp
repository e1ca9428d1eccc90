// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/overlay_text.h"

#include <GL/freeglut.h>

#include <QImage>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <array>
#include <numeric>

#include "render/glut_start.h"

namespace velquon {

namespace {

// Room around the text, for what a character has to the left and below its origin.
constexpr int margin = 6;
constexpr int line_height = 24;

constexpr Vector text_place{600.0, -400.0, 780.0};  // drawing units

void draw_characters(const std::string& text) {
  for (const char character : text) {
    glutBitmapCharacter(GLUT_BITMAP_HELVETICA_12, character);
  }
}

int width_of(const std::string& text) {
  return std::accumulate(text.begin(), text.end(), 0, [](int width, char character) {
    return width + glutBitmapWidth(GLUT_BITMAP_HELVETICA_12, character);
  });
}

/// Draws in white on black, a pixel a view unit, with the origin in the lower left corner. Leaves
/// the context's state as it was, but for the matrices.
void draw_line_alone(const std::string& text, int width) {
  glPushAttrib(GL_ALL_ATTRIB_BITS);
  glViewport(0, 0, width, line_height);
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glOrtho(0.0, width, 0.0, line_height, -1.0, 1.0);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glClearColor(0.0F, 0.0F, 0.0F, 1.0F);
  glClear(GL_COLOR_BUFFER_BIT);
  glColor3f(1.0F, 1.0F, 1.0F);
  glRasterPos2i(margin, margin);
  draw_characters(text);
  glPopAttrib();
}

/// The text as GLUT draws it. GLUT keeps its font to itself, so it has to draw into something.
QImage picture_of_line(const std::string& text) {
  const int width = width_of(text) + 2 * margin;
  GLint bound = 0;
  glGetIntegerv(GL_FRAMEBUFFER_BINDING, &bound);
  QOpenGLFramebufferObject target(width, line_height);
  target.bind();
  draw_line_alone(text, width);
  QImage picture = target.toImage();
  QOpenGLContext::currentContext()->functions()->glBindFramebuffer(GL_FRAMEBUFFER,
                                                                   static_cast<GLuint>(bound));
  return picture;
}

}  // namespace

void OverlayText::draw(const std::string& text, double ratio, const Camera& camera) {
  need_glut();
  if (ratio != 1.0 && (text != text_ || ratio != ratio_)) {
    magnify(text, ratio);
  }
  camera.overlay().load();
  glColor3f(1.0F, 1.0F, 1.0F);
  glRasterPos3dv(text_place.data());
  if (ratio == 1.0) {
    draw_characters(text);
    return;
  }
  glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  const auto origin = static_cast<float>(margin * ratio);
  glBitmap(width_, height_, origin, origin, 0.0F, 0.0F, bits_.data());
  glPopClientAttrib();
}

std::array<double, 2> overlay_text_start(const Camera& camera) {
  return camera.overlay().pixel(text_place);
}

int overlay_text_width(const std::string& text) {
  need_glut();
  return width_of(text);
}

void OverlayText::magnify(const std::string& text, double ratio) {
  constexpr int byte_bits = 8;
  constexpr unsigned first_bit = 0x80;
  const QImage picture = picture_of_line(text);
  text_ = text;
  ratio_ = ratio;
  width_ = qRound(picture.width() * ratio);
  height_ = qRound(picture.height() * ratio);
  const auto row_bytes = static_cast<std::size_t>((width_ + byte_bits - 1) / byte_bits);
  bits_.assign(row_bytes * static_cast<std::size_t>(height_), 0);
  const auto source = [ratio](int pixel, int size) {
    return std::min(static_cast<int>((pixel + 0.5) / ratio), size - 1);
  };
  for (int y = 0; y < height_; ++y) {
    const int row = picture.height() - 1 - source(y, picture.height());
    for (int x = 0; x < width_; ++x) {
      if (qRed(picture.pixel(source(x, picture.width()), row)) != 0) {
        const auto byte = static_cast<std::size_t>(x / byte_bits);
        bits_[static_cast<std::size_t>(y) * row_bytes + byte] |=
            static_cast<std::uint8_t>(first_bit >> (x % byte_bits));
      }
    }
  }
}

}  // namespace velquon
