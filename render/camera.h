// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>

namespace velquon {

/// Four rows of four, applied to columns.
using Matrix = std::array<std::array<double, 4>, 4>;

/// A place or a direction in space.
using Vector = std::array<double, 3>;

inline constexpr Vector along_x{1.0, 0.0, 0.0};
inline constexpr Vector along_y{0.0, 1.0, 0.0};
inline constexpr Vector along_z{0.0, 0.0, 1.0};

/// Size of the chamber's picture in view units. The perspective is made for it.
inline constexpr int chamber_width = 682;
inline constexpr int chamber_height = 500;

/// Where the chamber is seen from. Places are drawing units of the chamber, which has its middle at
/// the origin.
class Camera {
 public:
  /// The viewpoint at rest: the perspective, the eye, and the small turns that set the chamber right.
  Camera();

  /// Turns the chamber about one of its own axes, counterclockwise as seen from the axis's tip.
  /// \param axis of length 1
  void turn(double degrees, const Vector& axis);

  /// Turns the chamber about its middle as a hand that drags its near side.
  /// \param rightwards degrees by which the near side goes to the right of the picture
  /// \param downwards  degrees by which it goes down
  void turnNearSide(double rightwards, double downwards);

  /// The same camera with the picture moved, for a view that shows the part of the picture whose
  /// lower left corner is at x, y of it (view units).
  [[nodiscard]] Camera scrolled(double x, double y) const;

  /// The viewpoint of the values overlay, which takes only the coarse turns at rest and stands still
  /// while the chamber turns; scrolled as this one.
  [[nodiscard]] Camera overlay() const;

  /// From drawing units to what the eye sees, the eye at the origin and looking along -z.
  [[nodiscard]] const Matrix& modelView() const { return model_view_; }
  [[nodiscard]] const Matrix& projection() const { return projection_; }

  /// Where the eye is.
  [[nodiscard]] Vector eye() const;

  /// A place's pixel in a picture of the chamber's size, from its lower left corner.
  [[nodiscard]] std::array<double, 2> pixel(const Vector& place) const;

  /// Makes the matrices those of the current OpenGL context.
  void load() const;

 private:
  Camera(const Vector& eye, int turns);

  Matrix projection_;
  Matrix model_view_;
  double scrolled_x_ = 0.0;
  double scrolled_y_ = 0.0;
};

}  // namespace velquon
