// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/circle_fit.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace velquon {

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

/// The sums of a least-squares step: half the gradient and the normal matrix.
struct NormalEquations {
  Vector gradient{};
  Matrix matrix{};
  double squares = 0.0;  ///< sum of the squared distances
};

double dot(Place a, Place b) {
  return a.x * b.x + a.y * b.y;
}

Place unit_place(double direction) {
  return {std::cos(direction), std::sin(direction)};
}

/// Adds the distance of a place from the line, and its derivatives by the line's numbers. With
/// A = curvature (D² - R²) / 2, where D is the place's distance from the centre, the distance D - R is
/// 2 A / (1 + √(1 + 2 curvature A)), for a straight line too (V. Karimäki, Nucl. Instrum. Methods A 305
/// (1991) 187).
void add_place(NormalEquations& sums, const BentLine& line, Place place) {
  constexpr double least_root = 1.0e-9;  // at the centre, from where every way is as near
  const Place from_origin = place - line.origin;
  const double across = dot(unit_place(line.normal), from_origin);
  const double along = dot(unit_place(line.normal + std::numbers::pi / 2.0), from_origin);
  const double bend = line.curvature;
  const double rest = line.distance;
  const double half_square = 0.5 * (dot(from_origin, from_origin) + rest * rest) - rest * across;
  const double a = bend * half_square - across + rest;
  const double root = std::max(std::sqrt(std::max(1.0 + 2.0 * bend * a, 0.0)), least_root);
  const double distance = 2.0 * a / (1.0 + root);
  const Vector derivative{(half_square - 0.5 * distance * distance) / root,
                          -(1.0 + bend * rest) * along / root,
                          (1.0 + bend * (rest - across)) / root};
  sums.squares += distance * distance;
  for (std::size_t i = 0; i < 3; ++i) {
    sums.gradient[i] += derivative[i] * distance;
    for (std::size_t k = 0; k < 3; ++k) {
      sums.matrix[i][k] += derivative[i] * derivative[k];
    }
  }
}

NormalEquations equations_of(std::span<const Place> places, const BentLine& line) {
  NormalEquations sums;
  for (const Place place : places) {
    add_place(sums, line, place);
  }
  return sums;
}

/// The inverse of a symmetric matrix; none when it has none to the accuracy of the numbers.
std::optional<Matrix> inverse_of(const Matrix& matrix) {
  constexpr double least_determinant = 1.0e-12;
  Vector scale{};
  for (std::size_t i = 0; i < 3; ++i) {
    scale[i] = std::sqrt(matrix[i][i]);
  }
  // Of numbers of one size, whatever the units.
  const auto scaled = [&](std::size_t i, std::size_t k) {
    return matrix[i][k] / (scale[i] * scale[k]);
  };
  const auto cofactor = [&](std::size_t i, std::size_t k) {
    const std::size_t a = (i + 1) % 3;
    const std::size_t b = (i + 2) % 3;
    const std::size_t c = (k + 1) % 3;
    const std::size_t d = (k + 2) % 3;
    return scaled(a, c) * scaled(b, d) - scaled(a, d) * scaled(b, c);
  };
  const double determinant =
      scaled(0, 0) * cofactor(0, 0) + scaled(0, 1) * cofactor(0, 1) + scaled(0, 2) * cofactor(0, 2);
  if (!(determinant > least_determinant)) {
    return std::nullopt;
  }
  Matrix inverse{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      inverse[i][k] = cofactor(k, i) / (determinant * scale[i] * scale[k]);
    }
  }
  return inverse;
}

/// Moments of places about their middle, with z the square of the distance from it.
struct Moments {
  Place middle;
  double xx = 0.0;
  double xy = 0.0;
  double yy = 0.0;
  double xz = 0.0;
  double yz = 0.0;
  double zz = 0.0;
};

Moments moments_of(std::span<const Place> places) {
  const double share = 1.0 / static_cast<double>(places.size());
  Moments m;
  for (const Place place : places) {
    m.middle = m.middle + Place{place.x * share, place.y * share};
  }
  for (const Place place : places) {
    const auto [x, y] = place - m.middle;
    const double z = x * x + y * y;
    m.xx += x * x * share;
    m.xy += x * y * share;
    m.yy += y * y * share;
    m.xz += x * z * share;
    m.yz += y * z * share;
    m.zz += z * z * share;
  }
  return m;
}

/// The least root of the characteristic polynomial of Taubin's fit, which is not below 0.
double least_root_of(const Moments& m) {
  constexpr int most_steps = 50;
  constexpr double accuracy = 1.0e-12;
  const double z = m.xx + m.yy;
  const double plane = m.xx * m.yy - m.xy * m.xy;
  const double variance = m.zz - z * z;
  const double a3 = 4.0 * z;
  const double a2 = -3.0 * z * z - m.zz;
  const double a1 = variance * z + 4.0 * plane * z - m.xz * m.xz - m.yz * m.yz;
  const double a0 =
      m.xz * (m.xz * m.yy - m.yz * m.xy) + m.yz * (m.yz * m.xx - m.xz * m.xy) - variance * plane;
  double root = 0.0;
  for (int step = 0; step < most_steps; ++step) {
    const double value = a0 + root * (a1 + root * (a2 + root * a3));
    const double slope = a1 + root * (2.0 * a2 + 3.0 * root * a3);
    const double next = root - value / slope;
    if (!std::isfinite(next) || next < 0.0 || std::fabs(next - root) <= accuracy * z) {
      break;
    }
    root = next;
  }
  return root;
}

BentLine straight_line(const Moments& m, Place origin) {
  const double along = 0.5 * std::atan2(2.0 * m.xy, m.xx - m.yy);
  const double normal = along + std::numbers::pi / 2.0;
  return {
      .origin = origin, .normal = normal, .distance = dot(unit_place(normal), m.middle - origin)};
}

/// Taubin's circle, seen from the first place, which is never far from the circle.
BentLine algebraic_circle(std::span<const Place> places) {
  constexpr double least_bend = 1.0e-12;
  const Moments m = moments_of(places);
  const Place origin = places.front();
  const double root = least_root_of(m);
  const double z = m.xx + m.yy;
  const double bend = root * root - root * z + m.xx * m.yy - m.xy * m.xy;
  if (std::fabs(bend) <= least_bend * z * z) {
    return straight_line(m, origin);
  }
  const Place to_centre{(m.xz * (m.yy - root) - m.yz * m.xy) / (2.0 * bend),
                        (m.yz * (m.xx - root) - m.xz * m.xy) / (2.0 * bend)};
  const double radius = std::sqrt(dot(to_centre, to_centre) + z);
  const auto [x, y] = m.middle + to_centre - origin;
  return {.origin = origin,
          .curvature = 1.0 / radius,
          .normal = std::atan2(y, x),
          .distance = std::hypot(x, y) - radius};
}

/// A line changed by a step of the normal equations, damped.
std::optional<BentLine> stepped(const BentLine& line, NormalEquations sums, double damping) {
  for (std::size_t i = 0; i < 3; ++i) {
    sums.matrix[i][i] *= 1.0 + damping;
  }
  const auto inverse = inverse_of(sums.matrix);
  if (!inverse) {
    return std::nullopt;
  }
  Vector step{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t k = 0; k < 3; ++k) {
      step[i] -= (*inverse)[i][k] * sums.gradient[k];
    }
  }
  return BentLine{.origin = line.origin,
                  .curvature = line.curvature + step[0],
                  .normal = line.normal + step[1],
                  .distance = line.distance + step[2]};
}

/// The line of the least squares that is reached from a first one.
BentLine geometric_circle(std::span<const Place> places, BentLine line) {
  constexpr int most_steps = 100;
  constexpr double accuracy = 1.0e-14;
  constexpr double most_damping = 1.0e9;
  double damping = 1.0e-3;
  NormalEquations sums = equations_of(places, line);
  for (int step = 0; step < most_steps && damping < most_damping; ++step) {
    const auto next = stepped(line, sums, damping);
    if (!next) {
      break;
    }
    const NormalEquations next_sums = equations_of(places, *next);
    if (!(next_sums.squares < sums.squares)) {
      damping *= 10.0;
      continue;
    }
    const bool is_there = sums.squares - next_sums.squares <= accuracy * sums.squares;
    line = *next;
    sums = next_sums;
    damping /= 10.0;
    if (is_there) {
      break;
    }
  }
  return line;
}

}  // namespace

Place BentLine::centre() const {
  const double way = distance + 1.0 / curvature;
  return origin + Place{way * std::cos(normal), way * std::sin(normal)};
}

std::optional<CircleFit> fit_circle(std::span<const Place> places, double least_spread) {
  constexpr std::size_t unknowns = 3;
  if (places.size() < unknowns) {
    return std::nullopt;
  }
  CircleFit fit{.line = geometric_circle(places, algebraic_circle(places))};
  const NormalEquations sums = equations_of(places, fit.line);
  const auto inverse = inverse_of(sums.matrix);
  if (!inverse) {
    return std::nullopt;
  }
  fit.spread = least_spread;
  if (places.size() > unknowns) {
    const double seen = std::sqrt(sums.squares / static_cast<double>(places.size() - unknowns));
    fit.spread = std::max(seen, least_spread);
  }
  for (std::size_t i = 0; i < unknowns; ++i) {
    for (std::size_t k = 0; k < unknowns; ++k) {
      fit.covariance[i][k] = fit.spread * fit.spread * (*inverse)[i][k];
    }
  }
  return fit;
}

}  // namespace velquon
