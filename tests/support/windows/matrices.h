// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <array>

#include "render/camera.h"

namespace velquon::test {

/// The chamber's camera, which has tests of its own against OpenGL's matrices, with pixels counted as
/// pictures count them.
class PictureCamera {
 public:
  explicit PictureCamera(const Camera& camera) : camera_(camera) {}

  /// A place in the picture of 682 by 500 pixels, from its top left corner.
  [[nodiscard]] QPointF pixel(const Vector& place) const;
  /// The same camera with the model turned further.
  [[nodiscard]] PictureCamera turned(double degrees, const Vector& axis) const;
  /// The same camera with the picture scrolled.
  [[nodiscard]] PictureCamera scrolled(QPointF origin) const;

  [[nodiscard]] const Matrix& modelView() const { return camera_.modelView(); }

 private:
  Camera camera_;
};

/// The viewpoint at rest.
PictureCamera resting_camera();
/// The viewpoint of the values overlay.
PictureCamera overlay_camera();

}  // namespace velquon::test
