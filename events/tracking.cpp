// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/tracking.h"

#include <cmath>

namespace velquon {

void rotate_p(Vector3& momentum, double angle) {
  const auto [px, py, pz] = momentum;
  momentum = {px * std::cos(angle) + py * std::sin(angle),
              py * std::cos(angle) - px * std::sin(angle), pz};
}

namespace {

TrackEnd lay_track(ParticleState& particle, const TrackCodes& codes, const TrackSettings& settings,
                   TrackBuffer& buffer) {
  if (settings.straight()) {
    return straight_path_calculation(particle, buffer.limit(), buffer.count, codes.straight,
                                     codes.straight_end, buffer.free_slots(), settings.bound,
                                     settings.scale, settings.step);
  }
  HelixPath path;
  double survival = 0.0;
  set_up_path(particle, path, survival, settings.field, settings.scale, settings.step);
  path.code = codes.curved;
  const TrackEnd end = path_calculation(buffer.limit(), buffer.count, buffer.free_slots(), path,
                                        codes.curved_end, settings.bound, survival);
  if (end == TrackEnd::decayed) {
    rotate_p(particle.momentum, -path.phi);
  }
  return end;
}

}  // namespace

TrackEnd track_particle(ParticleState& particle, const TrackCodes& codes,
                        const TrackSettings& settings, TrackBuffer& buffer,
                        const Recorder& recorder, int row) {
  const auto first = static_cast<std::size_t>(buffer.count);
  const TrackEnd end = lay_track(particle, codes, settings, buffer);
  recorder.track(row, settings.straight() ? codes.straight : codes.curved,
                 buffer.points().subspan(first), end, buffer.count == buffer.limit());
  return end;
}

ParticleState daughter_at_end(const ParticleState& particle_template, const TrackBuffer& buffer) {
  const auto& [x, y, z, w] = buffer.last().coords;
  ParticleState daughter = particle_template;
  daughter.position = {x, y, z};
  return daughter;
}

ParticleState primary_particle(const ParticleState& particle_template, double kinetic_energy) {
  ParticleState primary = particle_template;
  primary.momentum = {0.0, kinetic_energy * std::sqrt(2.0 * primary.mass / kinetic_energy + 1.0),
                      0.0};
  primary.energy = kinetic_energy + primary.mass;
  primary.position = {0.0, -half_chamber_side, 0.0};
  return primary;
}

}  // namespace velquon
