#include "render/chamber_scene.h"

#include <GL/freeglut.h>

#include <array>

#include "render/track_colors.h"
#include "engine/chamber_values.h"

namespace velquon {

namespace {

struct Turn {
  float degrees;
  std::array<float, 3> axis;
};

constexpr std::array<float, 3> x_axis{1.0F, 0.0F, 0.0F};
constexpr std::array<float, 3> y_axis{0.0F, 1.0F, 0.0F};
constexpr std::array<float, 3> z_axis{0.0F, 0.0F, 1.0F};

constexpr std::array<Turn, 9> resting_turns{{{-90.0F, x_axis},
                                             {-120.0F, z_axis},
                                             {8.0F, y_axis},
                                             {-5.0F, x_axis},
                                             {7.0F, z_axis},
                                             {2.0F, y_axis},
                                             {-2.0F, x_axis},
                                             {-3.5F, z_axis},
                                             {1.0F, y_axis}}};

// The overlay's viewpoint takes only the coarse turns.
constexpr std::size_t overlay_turns = 4;

void turn_by(std::span<const Turn> turns) {
  for (const Turn& turn : turns) {
    glRotatef(turn.degrees, turn.axis[0], turn.axis[1], turn.axis[2]);
  }
}

using Corner = std::array<float, 3>;

constexpr auto half_side = static_cast<float>(CHAMBER_SIDE / 2.0);

/// As an array, which is how GLUT draws its cube: a software renderer makes a program for each kind
/// of vertices it meets, and that takes its time when the view comes up.
void draw_line_strip(std::span<const Corner> corners, const Color& color) {
  glColor3fv(color.data());
  glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
  glEnableClientState(GL_VERTEX_ARRAY);
  glVertexPointer(3, GL_FLOAT, 0, corners.data());
  glDrawArrays(GL_LINE_STRIP, 0, static_cast<GLsizei>(corners.size()));
  glPopClientAttrib();
}

void draw_axis(const Corner& axis, const Color& color) {
  const std::array<Corner, 2> ends{
      {{0.0F, 0.0F, 0.0F}, {axis[0] * half_side, axis[1] * half_side, axis[2] * half_side}}};
  draw_line_strip(ends, color);
}

void draw_middle_plane() {
  constexpr std::array<Corner, 5> corners{{{half_side, -half_side, 0.0F},
                                           {half_side, half_side, 0.0F},
                                           {-half_side, half_side, 0.0F},
                                           {-half_side, -half_side, 0.0F},
                                           {half_side, -half_side, 0.0F}}};
  draw_line_strip(corners, {0.6F, 0.2F, 0.2F});
}

}  // namespace

void load_resting_viewpoint() {
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  gluPerspective(15.0, 1.365, 100.0, 7500.0);
  glTranslatef(0.0F, 0.0F, 0.0F);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  gluLookAt(350.0, 1750.0, 5150.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  turn_by(resting_turns);
}

void draw_chamber_frame(bool with_axes) {
  constexpr Color white{1.0F, 1.0F, 1.0F};
  constexpr Color green{0.0F, 0.737F, 0.0F};
  glMatrixMode(GL_MODELVIEW);
  glColor3f(0.2F, 0.804F, 1.0F);
  glutWireCube(CHAMBER_SIDE);
  if (with_axes) {
    draw_axis(x_axis, white);
    draw_axis(y_axis, white);
    draw_axis(z_axis, green);
  }
  draw_middle_plane();
}

void draw_solid_cubes(std::span<const PlotPoint> points, float side, bool mark_cubes) {
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

void place_overlay_text() {
  glColor3f(1.0F, 1.0F, 1.0F);
  glMatrixMode(GL_MODELVIEW);
  glPushMatrix();
  glLoadIdentity();
  gluLookAt(250.0, 1750.0, 4650.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  turn_by(std::span(resting_turns).first<overlay_turns>());
  glRasterPos3f(600.0F, -400.0F, 780.0F);
  glPopMatrix();
}

}  // namespace velquon
