// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/kinematics.h"

#include <cfloat>
#include <cmath>

namespace velquon {

static_assert(FLT_EVAL_METHOD == 0, "Arithmetic beyond a double's digits gives other events.");

double dot_product(const Vector3& a, const Vector3& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

double magnitude(const Vector3& vector) {
  return std::sqrt(dot_product(vector, vector));
}

double distance(const Vector3& from, const Vector3& to) {
  return magnitude({to[0] - from[0], to[1] - from[1], to[2] - from[2]});
}

double total_energy(double mass, double momentum) {
  return std::sqrt(mass * mass + momentum * momentum);
}

void to_the_lab(const Vector3& direction, Vector3& out, double along, double across_1,
                double across_2) {
  const double theta = std::acos(direction[2] / magnitude(direction));
  const double phi = std::atan2(direction[1], direction[0]);
  const double w = along * std::sin(theta) - across_2 * std::cos(theta);
  out = {w * std::cos(phi) + across_1 * std::sin(phi), w * std::sin(phi) - across_1 * std::cos(phi),
         along * std::cos(theta) + across_2 * std::sin(theta)};
}

}  // namespace velquon
