// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/matrices.h"

namespace velquon::test {

QPointF PictureCamera::pixel(const Vector& place) const {
  const auto [x, y] = camera_.pixel(place);
  return {x, chamber_height - y};
}

PictureCamera PictureCamera::turned(double degrees, const Vector& axis) const {
  Camera camera = camera_;
  camera.turn(degrees, axis);
  return PictureCamera(camera);
}

PictureCamera PictureCamera::scrolled(QPointF origin) const {
  return PictureCamera(camera_.scrolled(origin.x(), origin.y()));
}

PictureCamera resting_camera() {
  return PictureCamera(Camera());
}

PictureCamera overlay_camera() {
  return PictureCamera(Camera().overlay());
}

}  // namespace velquon::test
