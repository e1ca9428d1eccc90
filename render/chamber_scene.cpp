// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/chamber_scene.h"

#include <GL/freeglut.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "engine/chamber_values.h"
#include "render/glut_start.h"
#include "render/line_arrays.h"
#include "render/scene_marks.h"
#include "render/track_colors.h"

namespace velquon {

namespace {

constexpr auto half_side = static_cast<float>(CHAMBER_SIDE / 2.0);

void draw_axis(const Corner& tip, const Color& color) {
  glColor3fv(color.data());
  draw_line_strip(std::array<Corner, 2>{{{0.0F, 0.0F, 0.0F}, tip}});
}

void draw_middle_plane() {
  constexpr std::array<Corner, 5> corners{{{half_side, -half_side, 0.0F},
                                           {half_side, half_side, 0.0F},
                                           {-half_side, half_side, 0.0F},
                                           {-half_side, -half_side, 0.0F},
                                           {half_side, -half_side, 0.0F}}};
  glColor3f(0.6F, 0.2F, 0.2F);
  draw_line_strip(corners);
}

/// The wire cube, the axes if wanted, and the outline of the middle plane.
/// \param wire_cube draws the edges of the chamber
void draw_chamber(bool with_axes, const std::function<void()>& wire_cube) {
  constexpr Color white{1.0F, 1.0F, 1.0F};
  constexpr Color green{0.0F, 0.737F, 0.0F};
  glColor3f(0.2F, 0.804F, 1.0F);
  wire_cube();
  if (with_axes) {
    draw_axis({half_side, 0.0F, 0.0F}, white);
    draw_axis({0.0F, half_side, 0.0F}, white);
    draw_axis({0.0F, 0.0F, half_side}, green);
  }
  draw_middle_plane();
}

}  // namespace

void ChamberScene::setPoints(std::span<const PlotPoint> points) {
  points_.assign(points.begin(), points.end());
  cubes_.build(points_, screen_cube_side);
}

void ChamberScene::draw(const Camera& camera, double scale, std::size_t points,
                        const SceneOptions& options) {
  glViewport(0, 0, static_cast<GLsizei>(std::lround(chamber_width * scale)),
             static_cast<GLsizei>(std::lround(chamber_height * scale)));
  glClearColor(0.0F, 0.0F, 0.0F, 0.0F);
  glClear(GL_COLOR_BUFFER_BIT);
  glLineWidth(static_cast<float>(scale));
  camera.load();
  draw_chamber(options.axes, [] { draw_wire_cube(static_cast<float>(CHAMBER_SIDE)); });
  cubes_.draw(points, camera.eye());
  drawMarked(options.marked, points, camera.eye());
  if (options.axes && options.axis_letters) {
    draw_axis_letters(camera);
  }
  if (options.field_kG.value_or(0.0) != 0.0) {
    draw_field_arrow(camera, *options.field_kG);
  }
  if (!options.values.empty()) {
    overlay_text_.draw(options.values, scale, camera);
  }
  glFlush();
}

void ChamberScene::drawMarked(std::span<const std::size_t> marked, std::size_t points,
                              const Vector& eye) {
  std::vector<PlotPoint> chosen;
  for (const std::size_t point : marked) {
    if (point < std::min(points, points_.size())) {
      chosen.push_back(points_[point]);
    }
  }
  CubeArray cubes;
  cubes.build(chosen, marked_cube_side);
  cubes.draw(chosen.size(), eye);
}

std::optional<FeedbackPicture> ChamberScene::drawForPrinting(const Camera& camera,
                                                             bool axes) const {
  need_glut();
  glViewport(0, 0, chamber_width, chamber_height);
  camera.load();
  return draw_into_feedback(static_cast<int>(points_.size()), [&] {
    draw_chamber(axes, [] { glutWireCube(CHAMBER_SIDE); });
    draw_solid_cubes(points_, paper_cube_side, true);
  });
}

void draw_solid_cubes(std::span<const PlotPoint> points, float side, bool mark_cubes) {
  need_glut();
  glMatrixMode(GL_MODELVIEW);
  for (const PlotPoint& point : points) {
    glPushMatrix();
    glColor3fv(track_color(point.code).data());
    glTranslatef(static_cast<float>(point.coords[0]), static_cast<float>(point.coords[1]),
                 static_cast<float>(point.coords[2]));
    if (mark_cubes) {
      glPassThrough(cube_mark);
    }
    glutSolidCube(static_cast<double>(side));
    glPopMatrix();
  }
}

}  // namespace velquon
