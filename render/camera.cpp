// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "render/camera.h"

#include <GL/gl.h>

#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>

namespace velquon {

namespace {

struct Turn {
  double degrees;
  Vector axis;
};

constexpr std::array<Turn, 9> resting_turns{{{-90.0, along_x},
                                             {-120.0, along_z},
                                             {8.0, along_y},
                                             {-5.0, along_x},
                                             {7.0, along_z},
                                             {2.0, along_y},
                                             {-2.0, along_x},
                                             {-3.5, along_z},
                                             {1.0, along_y}}};
constexpr int all_turns = 9;
constexpr int coarse_turns = 4;

constexpr Vector resting_eye{350.0, 1750.0, 5150.0};
constexpr Vector overlay_eye{250.0, 1750.0, 4650.0};

// The projection shows the whole picture; twice the scrolled distance is what the view is made for.
constexpr double scroll_factor = 2.0;

constexpr double radians(double degrees) {
  return degrees * std::numbers::pi / 180.0;
}

Vector cross(const Vector& a, const Vector& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector unit(const Vector& a) {
  const double length = std::hypot(a[0], a[1], a[2]);
  return {a[0] / length, a[1] / length, a[2] / length};
}

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

std::array<double, 4> operator*(const Matrix& matrix, const std::array<double, 4>& column) {
  std::array<double, 4> result{};
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t k = 0; k < 4; ++k) {
      result[row] += matrix[row][k] * column[k];
    }
  }
  return result;
}

Matrix translation(const Vector& by) {
  return {{{1.0, 0.0, 0.0, by[0]},
           {0.0, 1.0, 0.0, by[1]},
           {0.0, 0.0, 1.0, by[2]},
           {0.0, 0.0, 0.0, 1.0}}};
}

/// The turn about an axis through the origin by Rodrigues' formula.
Matrix rotation(double degrees, const Vector& axis) {
  const double c = std::cos(radians(degrees));
  const double s = std::sin(radians(degrees));
  const auto& [x, y, z] = axis;
  return {{{x * x * (1 - c) + c, x * y * (1 - c) - z * s, x * z * (1 - c) + y * s, 0.0},
           {y * x * (1 - c) + z * s, y * y * (1 - c) + c, y * z * (1 - c) - x * s, 0.0},
           {x * z * (1 - c) - y * s, y * z * (1 - c) + x * s, z * z * (1 - c) + c, 0.0},
           {0.0, 0.0, 0.0, 1.0}}};
}

/// The perspective of OpenGL's utility library: near and far planes at distances from the eye.
Matrix perspective(double degrees_up, double aspect, double near_plane, double far_plane) {
  const double f = 1.0 / std::tan(radians(degrees_up) / 2.0);
  const double depth = near_plane - far_plane;
  return {{{f / aspect, 0.0, 0.0, 0.0},
           {0.0, f, 0.0, 0.0},
           {0.0, 0.0, (far_plane + near_plane) / depth, 2.0 * far_plane * near_plane / depth},
           {0.0, 0.0, -1.0, 0.0}}};
}

/// The view of an eye that looks at the origin, with y upwards.
Matrix look_at_origin_from(const Vector& eye) {
  const Vector forward = unit({-eye[0], -eye[1], -eye[2]});
  const Vector side = unit(cross(forward, along_y));
  const Vector upright = cross(side, forward);
  const Matrix turn{{{side[0], side[1], side[2], 0.0},
                     {upright[0], upright[1], upright[2], 0.0},
                     {-forward[0], -forward[1], -forward[2], 0.0},
                     {0.0, 0.0, 0.0, 1.0}}};
  return turn * translation({-eye[0], -eye[1], -eye[2]});
}

void load_matrix(const Matrix& matrix) {
  std::array<double, 16> columns{};
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < 4; ++column) {
      columns[4 * column + row] = matrix[row][column];
    }
  }
  glLoadMatrixd(columns.data());
}

}  // namespace

Camera::Camera() : Camera(resting_eye, all_turns) {}

Camera::Camera(const Vector& eye, int turns)
    : projection_(perspective(15.0, 1.365, 100.0, 7500.0)), model_view_(look_at_origin_from(eye)) {
  for (const Turn& step : std::span(resting_turns).first(static_cast<std::size_t>(turns))) {
    turn(step.degrees, step.axis);
  }
}

void Camera::turn(double degrees, const Vector& axis) {
  model_view_ = model_view_ * rotation(degrees, axis);
}

void Camera::turnNearSide(double rightwards, double downwards) {
  const double degrees = std::hypot(rightwards, downwards);
  if (degrees == 0.0) {
    return;
  }
  // The axis lies in the picture; the transposed turn brings it to the chamber's own directions.
  const Vector in_picture{downwards / degrees, rightwards / degrees, 0.0};
  Vector axis{};
  for (std::size_t i = 0; i < axis.size(); ++i) {
    for (std::size_t row = 0; row < axis.size(); ++row) {
      axis[i] += model_view_[row][i] * in_picture[row];
    }
  }
  turn(degrees, axis);
}

Camera Camera::scrolled(double x, double y) const {
  Camera moved = *this;
  moved.scrolled_x_ = scrolled_x_ + x;
  moved.scrolled_y_ = scrolled_y_ + y;
  moved.projection_ = projection_ * translation({-scroll_factor * x, -scroll_factor * y, 0.0});
  return moved;
}

Camera Camera::overlay() const {
  return Camera(overlay_eye, coarse_turns).scrolled(scrolled_x_, scrolled_y_);
}

Vector Camera::eye() const {
  // The model-view matrix turns and moves, so that the inverse of its turn is the transposed one.
  const Matrix& m = model_view_;
  const Vector from_middle{scroll_factor * scrolled_x_ - m[0][3],
                           scroll_factor * scrolled_y_ - m[1][3], -m[2][3]};
  Vector eye{};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    for (std::size_t row = 0; row < 3; ++row) {
      eye[axis] += m[row][axis] * from_middle[row];
    }
  }
  return eye;
}

std::array<double, 2> Camera::pixel(const Vector& place) const {
  const auto clip =
      projection_ * (model_view_ * std::array<double, 4>{place[0], place[1], place[2], 1.0});
  return {(clip[0] / clip[3] + 1.0) / 2.0 * chamber_width,
          (clip[1] / clip[3] + 1.0) / 2.0 * chamber_height};
}

void Camera::load() const {
  glMatrixMode(GL_PROJECTION);
  load_matrix(projection_);
  glMatrixMode(GL_MODELVIEW);
  load_matrix(model_view_);
}

}  // namespace velquon
