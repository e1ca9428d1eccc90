// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/charged_track.h"

#include <cmath>

#include "engine/chamber_wall.h"
#include "engine/kinematics.h"
#include "engine/random.h"

namespace velquon {

namespace {

void finish_point(PlotPoint& point, std::int16_t code) {
  point.coords[3] = 1.0;
  point.code = code;
}

}  // namespace

void set_up_path(ParticleState& particle, HelixPath& path, double& survival, double field,
                 double scale, double step) {
  const auto& [px, py, pz] = particle.momentum;
  const double p = magnitude(particle.momentum);
  particle.energy = total_energy(particle.mass, p);
  path.dz = (pz / p) * step;
  particle.position[2] += path.dz;
  path.z = particle.position[2];

  // A circle in the x-y plane, along which a step covers the part pt / p of its length.
  const double pt = std::sqrt(p * p - pz * pz);
  path.radius = helix_radius_cm(pt, field) * scale;
  path.dphi = (step * pt / p) / (-path.radius);
  const double phi_start = std::atan2(py, px);
  path.centre_x = particle.position[0] + path.radius * std::sin(phi_start);
  path.centre_y = particle.position[1] - path.radius * std::cos(phi_start);
  path.phi = phi_start + path.dphi;
  survival = std::exp(-step / (scale * (p / particle.mass) * particle.decay_length));
}

TrackEnd path_calculation(std::int16_t limit, std::int16_t& count, std::span<PlotPoint> out,
                          HelixPath& path, std::int16_t end_code, double bound, double survival) {
  if (count >= limit) {
    return TrackEnd::stopped;
  }
  const ChamberWall wall(bound);
  const double phi_start = path.phi;
  double phi = phi_start;
  double z = path.z;
  PlotPoint* slot = out.data();
  if (survival > 0.0) {
    double u = 0.0;
    do {
      const double sine = std::sin(phi);
      const double cosine = std::cos(phi);
      slot->coords[0] = path.centre_x - sine * path.radius;
      slot->coords[1] = cosine * path.radius + path.centre_y;
      slot->coords[2] = z;
      if (wall.outside(slot->coords[0]) || wall.outside(slot->coords[1]) || wall.outside(z)) {
        return TrackEnd::stopped;
      }
      finish_point(*slot, path.code);
      ++slot;
      ++count;
      phi += path.dphi;
      u = rand_one();
      z += path.dz;
    } while (count < limit && survival > u);
    if (count == limit) {
      return TrackEnd::stopped;
    }
  }
  slot->coords[0] = path.centre_x - path.radius * std::sin(phi);
  slot->coords[1] = path.centre_y + path.radius * std::cos(phi);
  slot->coords[2] = z;
  finish_point(*slot, end_code);
  ++count;
  path.phi = phi - phi_start;
  return TrackEnd::decayed;
}

TrackEnd straight_path_calculation(ParticleState& particle, std::int16_t limit, std::int16_t& count,
                                   std::int16_t code, std::int16_t end_code,
                                   std::span<PlotPoint> out, double bound, double scale,
                                   double step) {
  const auto& [px, py, pz] = particle.momentum;
  const double p = magnitude(particle.momentum);
  const double lab_decay_length = (p / particle.mass) * particle.decay_length;
  const double theta = std::acos(pz / particle.energy);
  const double phi = std::atan2(py, px);
  const Vector3 advance{std::cos(phi) * (std::sin(theta) * step),
                        std::sin(phi) * (std::sin(theta) * step), std::cos(theta) * step};
  particle.energy = total_energy(particle.mass, p);
  const double survival = std::exp(-step / (scale * lab_decay_length));

  const ChamberWall wall(bound);
  Vector3 position = particle.position;
  PlotPoint* slot = out.data();
  const auto step_into_slot = [&] {
    for (std::size_t axis = 0; axis < 3; ++axis) {
      position[axis] += advance[axis];
      slot->coords[axis] = position[axis];
    }
  };
  if (count < limit && survival > 0.0) {
    double u = 0.0;
    do {
      step_into_slot();
      if (wall.outside(position[0]) || wall.outside(position[1]) || wall.outside(position[2])) {
        return TrackEnd::stopped;
      }
      finish_point(*slot, code);
      ++slot;
      ++count;
      u = rand_one();
    } while (survival > u && count < limit);
  }
  if (count >= limit) {
    return TrackEnd::stopped;
  }
  step_into_slot();
  finish_point(*slot, end_code);
  ++count;
  return TrackEnd::decayed;
}

}  // namespace velquon
