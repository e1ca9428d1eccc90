// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <array>

#include "render/camera.h"

namespace velquon::test {

using Place = std::array<double, 3>;

inline constexpr Place along_x = velquon::along_x;
inline constexpr Place along_y = velquon::along_y;
inline constexpr Place along_z = velquon::along_z;

/// The chamber's camera, which has tests of its own against OpenGL's matrices, with pixels counted as
/// pictures count them.
class Camera {
 public:
  explicit Camera(const velquon::Camera& camera) : camera_(camera) {}

  /// A place in the picture of 682 by 500 pixels, from its top left corner.
  [[nodiscard]] QPointF pixel(const Place& place) const;
  /// The same camera with the model turned further.
  [[nodiscard]] Camera turned(double degrees, const Place& axis) const;
  /// The same camera with the picture scrolled.
  [[nodiscard]] Camera scrolled(QPointF origin) const;

  [[nodiscard]] const Matrix& modelView() const { return camera_.modelView(); }

 private:
  velquon::Camera camera_;
};

/// The viewpoint at rest.
Camera resting_camera();
/// The viewpoint of the values overlay.
Camera overlay_camera();

}  // namespace velquon::test
