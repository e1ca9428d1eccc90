// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/neutral_track.h"

#include <cmath>

#include "engine/chamber_wall.h"
#include "engine/kinematics.h"
#include "engine/random.h"

namespace velquon {

namespace {

/// Steps a neutral particle along its flight until a draw ends it or it leaves the chamber.
bool walk_to_vertex(ParticleState& particle, double step, double survival, double bound) {
  if (!(survival > 0.0)) {
    return true;
  }
  const auto& [px, py, pz] = particle.momentum;
  const double theta = std::acos(pz / particle.energy);
  const double phi = std::atan2(py, px);
  const Vector3 advance{std::cos(phi) * std::sin(theta) * step,
                        std::sin(phi) * std::sin(theta) * step, std::cos(theta) * step};
  const ChamberWall wall(bound);
  Vector3 position = particle.position;
  double u = 0.0;
  do {
    u = rand_one();
    for (std::size_t axis = 0; axis < 3; ++axis) {
      position[axis] += advance[axis];
    }
    if (wall.outside(position[0]) || wall.outside(position[1]) || wall.outside(position[2])) {
      return false;
    }
  } while (survival > u);
  particle.position = position;
  return true;
}

}  // namespace

bool neutral_path(ParticleState& particle, double bound, double scale) {
  const double p = magnitude(particle.momentum);
  const double mean_length = scale * (p / particle.mass) * particle.decay_length;
  const double step = 0.2 * mean_length;
  return walk_to_vertex(particle, step, std::exp(-step / mean_length), bound);
}

bool gamma_path(ParticleState& particle, double bound, double scale) {
  // The survival is fixed and not derived from the step: the attenuation length is 4/3 of the
  // length scale.
  const double step = scale * particle.decay_length * 0.2;
  const double survival = std::exp(-0.15);
  if (particle.energy < conversion_threshold) {
    return false;
  }
  return walk_to_vertex(particle, step, survival, bound);
}

}  // namespace velquon
