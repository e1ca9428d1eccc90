// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <array>

namespace velquon::test {

/// Four rows of four, applied to columns.
using Matrix = std::array<std::array<double, 4>, 4>;
using Place = std::array<double, 3>;

Matrix operator*(const Matrix& left, const Matrix& right);

Matrix translation(const Place& by);
/// A turn about an axis of length 1.
Matrix rotation(double degrees, const Place& axis);
Matrix perspective(double degrees_up, double aspect, double near_plane, double far_plane);
Matrix look_at(const Place& eye, const Place& centre, const Place& up);

inline constexpr Place along_x{1.0, 0.0, 0.0};
inline constexpr Place along_y{0.0, 1.0, 0.0};
inline constexpr Place along_z{0.0, 0.0, 1.0};

/// The chamber view's projection and viewpoint, built up from the numbers they are made of.
struct Camera {
  Matrix projection;
  Matrix model_view;

  /// A place in the picture of 682 by 500 pixels, from its top left corner.
  [[nodiscard]] QPointF pixel(const Place& place) const;
  /// The same camera with the model turned further.
  [[nodiscard]] Camera turned(double degrees, const Place& axis) const;
  /// The same camera with the picture scrolled.
  [[nodiscard]] Camera scrolled(QPointF origin) const;
};

/// The viewpoint at rest.
Camera resting_camera();
/// The viewpoint of the values overlay.
Camera overlay_camera();

}  // namespace velquon::test
