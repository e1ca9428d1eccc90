// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/arc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace velquon {

namespace {

using Vector = std::array<double, 3>;

/// The turn from one direction to another counter-clockwise, 0 to a whole turn.
double turn_between(double from, double to) {
  const double turn = std::fmod(to - from, whole_turn);
  return turn < 0.0 ? turn + whole_turn : turn;
}

/// The turn from the first place to the last on the side where most of the others are.
double sweep_of(std::span<const Place> places, Place centre) {
  const double start = direction(centre, places.front());
  const double turn = turn_between(start, direction(centre, places.back()));
  const auto between = places.subspan(1, places.size() - 2);
  const auto passed = 2 * std::ranges::count_if(between, [&](Place place) {
                        return turn_between(start, direction(centre, place)) < turn;
                      });
  const auto all = static_cast<std::ptrdiff_t>(between.size());
  const bool is_left = passed == all ? turn <= std::numbers::pi : passed > all;
  return is_left ? turn : turn - whole_turn;
}

double standard_error(const Vector& gradient, const CircleFit& fit, double of_the_ends) {
  double variance = of_the_ends * of_the_ends;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      variance += gradient[i] * fit.covariance[i][k] * gradient[k];
    }
  }
  return std::sqrt(variance);
}

/// How the turn between two directions from the centre changes with the circle's curvature, normal
/// and distance while the places stay.
Vector turn_gradient(const BentLine& line, double radius, double first, double last) {
  const double to_centre = line.distance + 1.0 / line.curvature;
  const Place normal{std::cos(line.normal), std::sin(line.normal)};
  const double shrink = -1.0 / (line.curvature * line.curvature);
  const std::array<Place, 3> moves{Place{normal.x * shrink, normal.y * shrink},
                                   Place{-normal.y * to_centre, normal.x * to_centre}, normal};
  // A place's direction falls by the centre's move along the tangent there.
  const Place tangents{std::sin(last) - std::sin(first), std::cos(first) - std::cos(last)};
  Vector gradient{};
  for (std::size_t i = 0; i < 3; ++i) {
    gradient[i] = (tangents.x * moves[i].x + tangents.y * moves[i].y) / radius;
  }
  return gradient;
}

/// Height and length of a piece that is straight within the errors.
Arc straight_arc(const CircleFit& fit, Place first, Place last) {
  const Place span = last - first;
  const double chord = std::hypot(span.x, span.y);
  const double height_by_bend = chord * chord / 8.0;
  Arc arc;
  arc.is_straight = true;
  arc.sagitta = {height_by_bend * std::fabs(fit.line.curvature),
                 standard_error({height_by_bend, 0.0, 0.0}, fit, 0.0)};
  arc.chord = {chord, std::numbers::sqrt2 * fit.spread};
  return arc;
}

Arc bent_arc(const CircleFit& fit, std::span<const Place> places) {
  const double bend = fit.line.curvature;
  const double radius = 1.0 / std::fabs(bend);
  const Vector radius_gradient{-std::copysign(radius * radius, bend), 0.0, 0.0};
  Arc arc;
  arc.centre = fit.line.centre();
  arc.radius = {radius, standard_error(radius_gradient, fit, 0.0)};
  arc.start = direction(arc.centre, places.front());
  arc.sweep = sweep_of(places, arc.centre);
  const double half = 0.5 * std::fabs(arc.sweep);
  const Vector turn =
      turn_gradient(fit.line, radius, arc.start, direction(arc.centre, places.back()));
  // Places move along the circle without changing it: this error adds to the circle's own.
  const double of_the_ends = std::numbers::sqrt2 * fit.spread / radius;
  const auto estimate = [&](double by_radius, double by_turn) {
    Vector gradient{};
    for (std::size_t i = 0; i < 3; ++i) {
      gradient[i] =
          by_radius * radius_gradient[i] + by_turn * std::copysign(1.0, arc.sweep) * turn[i];
    }
    return Estimate{radius * by_radius, standard_error(gradient, fit, by_turn * of_the_ends)};
  };
  arc.sagitta = estimate(1.0 - std::cos(half), 0.5 * radius * std::sin(half));
  arc.chord = estimate(2.0 * std::sin(half), radius * std::cos(half));
  return arc;
}

}  // namespace

std::optional<Arc> arc_through(std::span<const Place> places, double least_spread) {
  const auto fit = fit_circle(places, least_spread);
  if (!fit) {
    return std::nullopt;
  }
  const double bend_error = std::sqrt(fit->covariance[0][0]);
  return std::fabs(fit->line.curvature) <= bend_error
             ? straight_arc(*fit, places.front(), places.back())
             : bent_arc(*fit, places);
}

}  // namespace velquon
