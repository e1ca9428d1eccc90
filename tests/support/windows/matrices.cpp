// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/matrices.h"

namespace velquon::test {

QPointF Camera::pixel(const Place& place) const {
  const auto [x, y] = camera_.pixel(place);
  return {x, chamber_height - y};
}

Camera Camera::turned(double degrees, const Place& axis) const {
  velquon::Camera camera = camera_;
  camera.turn(degrees, axis);
  return Camera(camera);
}

Camera Camera::scrolled(QPointF origin) const {
  return Camera(camera_.scrolled(origin.x(), origin.y()));
}

Camera resting_camera() {
  return Camera(velquon::Camera());
}

Camera overlay_camera() {
  return Camera(velquon::Camera().overlay());
}

}  // namespace velquon::test
