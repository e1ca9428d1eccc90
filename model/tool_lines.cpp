// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/tool_lines.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace velquon {

namespace {

using Lines = std::vector<ToolLine>;

/// \param start direction from the centre in which it begins, radians
/// \param sweep the turn from there, counter-clockwise
std::vector<Place> places_of_arc(Place centre, double radius, double start, double sweep) {
  constexpr double most_off = 0.1;  // between a circle and the lines drawn for it, view units
  constexpr double most_pieces = 4000.0;
  const double step = std::sqrt(8.0 * most_off / std::max(radius, 1.0));
  const int pieces =
      static_cast<int>(std::clamp(std::ceil(std::fabs(sweep) / step), 2.0, most_pieces));
  std::vector<Place> places;
  for (int i = 0; i <= pieces; ++i) {
    const double direction = start + sweep * i / pieces;
    places.push_back(centre + Place{radius * std::cos(direction), radius * std::sin(direction)});
  }
  return places;
}

void add_marks(Lines& lines, std::span<const Place> places) {
  constexpr double half_side = 3.0;
  for (const Place place : places) {
    const Place first = place + Place{-half_side, -half_side};
    lines.push_back(
        {{first, place + Place{half_side, -half_side}, place + Place{half_side, half_side},
          place + Place{-half_side, half_side}, first}});
  }
}

void add_tape(Lines& lines, const Tape& tape) {
  if (tape.visible) {
    lines.push_back({{tape.start, tape.end}});
  }
}

/// The arc that is measured, and more faintly the rest of its circle and its chord.
void add_curve(Lines& lines, const Curve& curve) {
  const auto places = curve.points.places();
  const auto arc = curve.arc();
  if (arc && arc->is_straight) {
    lines.push_back({{places.front(), places.back()}});
  } else if (arc) {
    const double radius = arc->radius.value;
    const auto end_at = [&](double angle) {
      return arc->centre + Place{radius * std::cos(angle), radius * std::sin(angle)};
    };
    lines.push_back({places_of_arc(arc->centre, radius, arc->start, whole_turn), true});
    lines.push_back({{end_at(arc->start), end_at(arc->start + arc->sweep)}, true});
    lines.push_back({places_of_arc(arc->centre, radius, arc->start, arc->sweep)});
  }
  add_marks(lines, places);
}

/// The arms that are set, and between two of them the arc of the angle.
void add_angle(Lines& lines, const Angle& angle) {
  constexpr double arc_radius = 24.0;
  const auto places = angle.points.places();
  for (const Place end : places) {
    lines.push_back({{places.front(), end}});
  }
  if (places.size() == Angle::all_points) {
    const double first = direction(places[0], places[1]);
    const double turn = std::remainder(direction(places[0], places[2]) - first, whole_turn);
    lines.push_back({places_of_arc(places[0], arc_radius, first, turn)});
  }
  add_marks(lines, places);
}

}  // namespace

std::vector<ToolLine> tool_lines(const Projector& projector) {
  Lines lines;
  add_tape(lines, projector.tape());
  if (projector.tool() == ProjectorTool::curve) {
    add_curve(lines, projector.curve());
  } else if (projector.tool() == ProjectorTool::angle) {
    add_angle(lines, projector.angle());
  }
  return lines;
}

}  // namespace velquon
