// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/scene_marks.h"

#include <GL/gl.h>

#include <array>
#include <span>
#include <vector>

#include "render/line_arrays.h"
#include "render/track_colors.h"

namespace velquon {

namespace {

/// A place in a letter: view units from the middle of its foot.
using LetterPlace = std::array<float, 2>;
using Stroke = std::vector<LetterPlace>;
using Letter = std::vector<Stroke>;

const Letter& letter_x() {
  static const Letter letter{{{-3.0F, 0.0F}, {3.0F, 7.0F}}, {{-3.0F, 7.0F}, {3.0F, 0.0F}}};
  return letter;
}

const Letter& letter_y() {
  static const Letter letter{{{-3.0F, 7.0F}, {0.0F, 0.5F}},
                             {{3.0F, 7.0F}, {-0.7F, -1.5F}, {-2.5F, -3.0F}}};
  return letter;
}

const Letter& letter_z() {
  static const Letter letter{{{-3.0F, 7.0F}, {3.0F, 7.0F}, {-3.0F, 0.0F}, {3.0F, 0.0F}}};
  return letter;
}

const Letter& letter_B() {
  static const Letter letter{{{-3.5F, 0.0F},
                              {-3.5F, 10.0F},
                              {1.5F, 10.0F},
                              {3.0F, 9.0F},
                              {3.0F, 6.5F},
                              {1.5F, 5.5F},
                              {3.5F, 4.0F},
                              {3.5F, 1.5F},
                              {1.5F, 0.0F},
                              {-3.5F, 0.0F}},
                             {{-3.5F, 5.5F}, {1.5F, 5.5F}}};
  return letter;
}

/// Draws a letter with its middle at a place of the chamber.
void draw_letter(const Letter& letter, const Vector& place, const Camera& camera) {
  constexpr float half_height = 4.0F;  // view units
  const auto middle = camera.pixel(place);
  const auto corner_at = [&](const LetterPlace& in_letter) {
    return Corner{static_cast<float>(middle[0]) + in_letter[0],
                  static_cast<float>(middle[1]) + in_letter[1] - half_height, 0.0F};
  };
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  glOrtho(0.0, chamber_width, 0.0, chamber_height, -1.0, 1.0);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  for (const Stroke& stroke : letter) {
    std::vector<Corner> corners;
    for (const LetterPlace& in_letter : stroke) {
      corners.push_back(corner_at(in_letter));
    }
    draw_line_strip(corners);
  }
}

}  // namespace

void draw_axis_letters(const Camera& camera) {
  // The axes end at 400 drawing units.
  constexpr double beyond_tip = 440.0;
  constexpr Color white{1.0F, 1.0F, 1.0F};
  constexpr Color green{0.0F, 0.737F, 0.0F};
  glColor3fv(white.data());
  draw_letter(letter_x(), {beyond_tip, 0.0, 0.0}, camera);
  draw_letter(letter_y(), {0.0, beyond_tip, 0.0}, camera);
  glColor3fv(green.data());
  draw_letter(letter_z(), {0.0, 0.0, beyond_tip}, camera);
}

void draw_field_arrow(const Camera& camera, double field_kG) {
  // Beside an edge of the chamber, half as long as that; drawing units.
  constexpr float x = 470.0F;
  constexpr float y = -470.0F;
  constexpr float half_length = 200.0F;
  constexpr float head = 60.0F;
  constexpr float half_head_width = 22.0F;
  constexpr Color color{1.0F, 0.6F, 1.0F};
  const float along = field_kG > 0.0 ? 1.0F : -1.0F;
  const Corner tip{x, y, along * half_length};
  const float head_z = along * (half_length - head);
  camera.load();
  glColor3fv(color.data());
  draw_line_strip(std::array<Corner, 2>{{{x, y, -along * half_length}, tip}});
  for (const auto& [dx, dy] : {std::array{1.0F, 0.0F}, std::array{0.0F, 1.0F}}) {
    const float across_x = half_head_width * dx;
    const float across_y = half_head_width * dy;
    draw_line_strip(std::array<Corner, 3>{
        {{x + across_x, y + across_y, head_z}, tip, {x - across_x, y - across_y, head_z}}});
  }
  constexpr float beyond_tip = 50.0F;
  const float letter_z = along * (half_length + beyond_tip);
  draw_letter(letter_B(),
              {static_cast<double>(x), static_cast<double>(y), static_cast<double>(letter_z)},
              camera);
}

}  // namespace velquon
