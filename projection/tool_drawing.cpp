// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/tool_drawing.h"

#include <GL/gl.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

#include "render/line_arrays.h"

namespace velquon {

namespace {

Corner corner_at(Place place) {
  return {static_cast<float>(place.x), static_cast<float>(place.y), 0.0F};
}

void draw_line(Place from, Place to) {
  draw_line_strip(std::array{corner_at(from), corner_at(to)});
}

/// \param start direction from the centre in which it begins, radians
/// \param sweep the turn from there, counter-clockwise
void draw_arc(Place centre, double radius, double start, double sweep) {
  constexpr double most_off = 0.1;  // between a circle and the lines drawn for it, view units
  constexpr double most_pieces = 4000.0;
  const double step = std::sqrt(8.0 * most_off / std::max(radius, 1.0));
  const int pieces =
      static_cast<int>(std::clamp(std::ceil(std::fabs(sweep) / step), 2.0, most_pieces));
  std::vector<Corner> corners;
  for (int i = 0; i <= pieces; ++i) {
    const double direction = start + sweep * i / pieces;
    corners.push_back(
        corner_at(centre + Place{radius * std::cos(direction), radius * std::sin(direction)}));
  }
  draw_line_strip(corners);
}

void draw_marks(std::span<const Place> places) {
  constexpr float half_side = 3.0F;
  for (const Place place : places) {
    const auto [x, y, z] = corner_at(place);
    draw_line_loop(std::array<Corner, 4>{{{x - half_side, y - half_side, z},
                                          {x + half_side, y - half_side, z},
                                          {x + half_side, y + half_side, z},
                                          {x - half_side, y + half_side, z}}});
  }
}

void draw_tape(const Tape& tape) {
  if (!tape.visible) {
    return;
  }
  glBegin(GL_LINE_STRIP);
  glVertex2d(tape.start.x, tape.start.y);
  glVertex2d(tape.end.x, tape.end.y);
  glEnd();
}

/// The arc that is measured, and more faintly the rest of its circle and its chord.
void draw_curve(const Curve& curve) {
  const auto places = curve.points.places();
  const auto arc = curve.arc();
  if (arc && arc->is_straight) {
    draw_line(places.front(), places.back());
  } else if (arc) {
    const auto end_at = [&](double direction) {
      return arc->centre + Place{arc->radius.value * std::cos(direction),
                                 arc->radius.value * std::sin(direction)};
    };
    constexpr double whole_turn = 2.0 * std::numbers::pi;
    glColor3f(0.5F, 0.0F, 0.0F);
    draw_arc(arc->centre, arc->radius.value, arc->start, whole_turn);
    draw_line(end_at(arc->start), end_at(arc->start + arc->sweep));
    glColor3f(1.0F, 0.0F, 0.0F);
    draw_arc(arc->centre, arc->radius.value, arc->start, arc->sweep);
  }
  draw_marks(places);
}

double direction(Place from, Place to) {
  return std::atan2(to.y - from.y, to.x - from.x);
}

/// The arms that are set, and between two of them the arc of the angle.
void draw_angle(const Angle& angle) {
  constexpr double arc_radius = 24.0;
  const auto places = angle.points.places();
  for (const Place end : places) {
    draw_line(places.front(), end);
  }
  if (places.size() == Angle::all_points) {
    const double first = direction(places[0], places[1]);
    const double turn =
        std::remainder(direction(places[0], places[2]) - first, 2.0 * std::numbers::pi);
    draw_arc(places[0], arc_radius, first, turn);
  }
  draw_marks(places);
}

}  // namespace

void draw_tool(const Projector& projector) {
  glColor3f(1.0F, 0.0F, 0.0F);
  draw_tape(projector.tape());
  if (projector.tool() == ProjectorTool::curve) {
    draw_curve(projector.curve());
  } else if (projector.tool() == ProjectorTool::angle) {
    draw_angle(projector.angle());
  }
}

void draw_cross(const KeyCross& cross) {
  if (!cross.visible()) {
    return;
  }
  constexpr double reach = 10.0;
  constexpr double gap = 2.0;  // so that what is aimed at is seen
  glColor3f(1.0F, 1.0F, 0.2F);
  for (const Place way : {Place{1.0, 0.0}, Place{-1.0, 0.0}, Place{0.0, 1.0}, Place{0.0, -1.0}}) {
    draw_line(cross.place() + Place{gap * way.x, gap * way.y},
              cross.place() + Place{reach * way.x, reach * way.y});
  }
}

}  // namespace velquon
