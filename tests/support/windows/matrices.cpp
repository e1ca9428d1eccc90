// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/matrices.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace velquon::test {

namespace {

constexpr double picture_width = 682.0;
constexpr double picture_height = 500.0;

double radians(double degrees) {
  return degrees * std::numbers::pi / 180.0;
}

Place difference(const Place& a, const Place& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Place cross(const Place& a, const Place& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Place unit(const Place& a) {
  const double length = std::hypot(a[0], a[1], a[2]);
  return {a[0] / length, a[1] / length, a[2] / length};
}

std::array<double, 4> operator*(const Matrix& matrix, const std::array<double, 4>& column) {
  std::array<double, 4> result{};
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t k = 0; k < 4; ++k) {
      result[row] += matrix[row][k] * column[k];
    }
  }
  return result;
}

Matrix viewing_projection() {
  return perspective(15.0, 1.365, 100.0, 7500.0);
}

}  // namespace

Matrix operator*(const Matrix& left, const Matrix& right) {
  Matrix result{};
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      for (std::size_t k = 0; k < 4; ++k) {
        result[row][column] += left[row][k] * right[k][column];
      }
    }
  }
  return result;
}

Matrix translation(const Place& by) {
  return {{{1.0, 0.0, 0.0, by[0]}, {0.0, 1.0, 0.0, by[1]}, {0.0, 0.0, 1.0, by[2]}, {0, 0, 0, 1.0}}};
}

Matrix rotation(double degrees, const Place& axis) {
  const double c = std::cos(radians(degrees));
  const double s = std::sin(radians(degrees));
  const auto& [x, y, z] = axis;
  return {{{x * x * (1 - c) + c, x * y * (1 - c) - z * s, x * z * (1 - c) + y * s, 0.0},
           {y * x * (1 - c) + z * s, y * y * (1 - c) + c, y * z * (1 - c) - x * s, 0.0},
           {x * z * (1 - c) - y * s, y * z * (1 - c) + x * s, z * z * (1 - c) + c, 0.0},
           {0.0, 0.0, 0.0, 1.0}}};
}

Matrix perspective(double degrees_up, double aspect, double near_plane, double far_plane) {
  const double f = 1.0 / std::tan(radians(degrees_up) / 2.0);
  const double depth = near_plane - far_plane;
  return {{{f / aspect, 0.0, 0.0, 0.0},
           {0.0, f, 0.0, 0.0},
           {0.0, 0.0, (far_plane + near_plane) / depth, 2.0 * far_plane * near_plane / depth},
           {0.0, 0.0, -1.0, 0.0}}};
}

Matrix look_at(const Place& eye, const Place& centre, const Place& up) {
  const Place forward = unit(difference(centre, eye));
  const Place side = unit(cross(forward, up));
  const Place upright = cross(side, forward);
  const Matrix turn{{{side[0], side[1], side[2], 0.0},
                     {upright[0], upright[1], upright[2], 0.0},
                     {-forward[0], -forward[1], -forward[2], 0.0},
                     {0.0, 0.0, 0.0, 1.0}}};
  return turn * translation({-eye[0], -eye[1], -eye[2]});
}

QPointF Camera::pixel(const Place& place) const {
  const auto clip =
      projection * (model_view * std::array<double, 4>{place[0], place[1], place[2], 1.0});
  return {(clip[0] / clip[3] + 1.0) / 2.0 * picture_width,
          (1.0 - clip[1] / clip[3]) / 2.0 * picture_height};
}

Camera Camera::turned(double degrees, const Place& axis) const {
  return {projection, model_view * rotation(degrees, axis)};
}

Camera Camera::scrolled(QPointF origin) const {
  return {projection * translation({-2.0 * origin.x(), -2.0 * origin.y(), 0.0}), model_view};
}

Camera resting_camera() {
  Camera camera{viewing_projection(),
                look_at({350.0, 1750.0, 5150.0}, {0.0, 0.0, 0.0}, {0.0, 1.0, 0.0})};
  const std::array<std::pair<double, Place>, 9> turns{{{-90.0, along_x},
                                                       {-120.0, along_z},
                                                       {8.0, along_y},
                                                       {-5.0, along_x},
                                                       {7.0, along_z},
                                                       {2.0, along_y},
                                                       {-2.0, along_x},
                                                       {-3.5, along_z},
                                                       {1.0, along_y}}};
  for (const auto& [degrees, axis] : turns) {
    camera = camera.turned(degrees, axis);
  }
  return camera;
}

Camera overlay_camera() {
  const Camera upright{viewing_projection(),
                       look_at({250.0, 1750.0, 4650.0}, {0.0, 0.0, 0.0}, {0.0, 1.0, 0.0})};
  return upright.turned(-90.0, along_x)
      .turned(-120.0, along_z)
      .turned(8.0, along_y)
      .turned(-5.0, along_x);
}

}  // namespace velquon::test
