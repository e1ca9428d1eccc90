// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_sample.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/kinematics.h"
#include "model/event_rows.h"

namespace velquon {

namespace {

/// How far a straight flight goes from a place inside the chamber to its wall, cm.
double length_to_wall(const RecordedParticle& particle, double side_cm) {
  const double momentum = magnitude(particle.momentum);
  double shortest = std::numeric_limits<double>::infinity();
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const double direction = particle.momentum[axis] / momentum;
    if (direction != 0.0) {
      const double wall = std::copysign(side_cm / 2.0, direction);
      shortest = std::min(shortest, (wall - particle.place_cm[axis]) / direction);
    }
  }
  return std::max(shortest, 0.0);
}

std::optional<Measurement> decay_length_of(const RecordedParticle& primary, bool charged,
                                           const ChamberValues& values) {
  std::optional<double> length = flight_cm(primary, charged, values);
  if (primary.fate == Fate::escaped) {
    length = length_to_wall(primary, static_cast<double>(values.sides_cm));
  }
  if (!length || !std::isfinite(*length)) {
    return std::nullopt;
  }
  Measurement measurement;
  measurement.quantity = Quantity::decay_length;
  measurement.value = *length;
  measurement.ending = primary.fate == Fate::decayed ? Ending::decayed : Ending::left;
  return measurement;
}

Measurement count_of_tracks(std::span<const RecordedParticle> particles) {
  Measurement measurement;
  measurement.quantity = Quantity::tracks;
  measurement.value = static_cast<double>(
      std::ranges::count_if(particles, [](const auto& particle) { return particle.points > 0; }));
  return measurement;
}

Measurement momentum_of(const RecordedParticle& particle, bool transverse) {
  Measurement measurement;
  measurement.quantity = transverse ? Quantity::transverse_momentum : Quantity::momentum;
  measurement.value = transverse ? std::hypot(particle.momentum[0], particle.momentum[1])
                                 : magnitude(particle.momentum);
  return measurement;
}

std::optional<Measurement> product_momentum(std::span<const RecordedParticle> particles,
                                            bool transverse) {
  const auto products = particles.subspan(1);
  const auto product = std::ranges::find_if(
      products, [](const auto& particle) { return is_charged(particle.pdg).value_or(false); });
  return product == products.end() ? std::nullopt
                                   : std::optional(momentum_of(*product, transverse));
}

std::optional<Measurement> noted_of(SampledQuantity sampled,
                                    std::span<const RecordedParticle> particles,
                                    const ChamberValues& values) {
  const RecordedParticle& primary = particles.front();
  switch (sampled) {
    case SampledQuantity::decay_length:
      return decay_length_of(primary, *is_charged(primary.pdg), values);
    case SampledQuantity::primary_momentum:
    case SampledQuantity::primary_transverse_momentum:
      return momentum_of(primary, sampled == SampledQuantity::primary_transverse_momentum);
    case SampledQuantity::product_momentum:
    case SampledQuantity::product_transverse_momentum:
      return product_momentum(particles, sampled == SampledQuantity::product_transverse_momentum);
    case SampledQuantity::tracks:
      return count_of_tracks(particles);
  }
  return std::nullopt;
}

}  // namespace

std::optional<Measurement> measurement_of(SampledQuantity sampled,
                                          std::span<const RecordedParticle> particles,
                                          const ChamberValues& values) {
  const bool are_known = std::ranges::all_of(
      particles, [](const auto& particle) { return is_charged(particle.pdg).has_value(); });
  if (particles.empty() || !are_known) {
    return std::nullopt;
  }
  auto measurement = noted_of(sampled, particles, values);
  if (measurement) {
    measurement->field_kG = static_cast<double>(values.B_field);
  }
  return measurement;
}

}  // namespace velquon
