// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/event_making.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <stdexcept>

namespace velquon::test {

const EventType& event_type(std::string_view key) {
  const auto types = event_types();
  const auto found = std::ranges::find(types, key, &EventType::key);
  if (found == types.end()) {
    throw std::invalid_argument("no such kind of event");
  }
  return *found;
}

std::vector<PlotPoint> seeded_event(std::string_view key, const ChamberValues& values,
                                    unsigned seed) {
  std::srand(seed);
  TrackBuffer buffer;
  if (make_event(event_type(key), values, buffer) == HandOver::no) {
    return {};
  }
  return {buffer.points().begin(), buffer.points().end()};
}

std::vector<std::int16_t> codes_of(std::span<const PlotPoint> points) {
  std::vector<std::int16_t> codes;
  std::ranges::transform(points, std::back_inserter(codes), &PlotPoint::code);
  return codes;
}

Vector3 position_of(const PlotPoint& point) {
  return {point.coords[0], point.coords[1], point.coords[2]};
}

Vector3 sum(const Vector3& a, const Vector3& b) {
  return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

Vector3 difference(const Vector3& a, const Vector3& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double length(const Vector3& a) {
  return std::hypot(a[0], a[1], a[2]);
}

double scalar(const Vector3& a, const Vector3& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector3 cross(const Vector3& a, const Vector3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double RestFrameMomentum::size() const {
  return std::hypot(along, across);
}

RestFrameMomentum boosted_back(const ParticleState& parent, const ParticleState& daughter) {
  const double P = length(parent.momentum);
  const double along = scalar(daughter.momentum, parent.momentum) / P;
  return {(parent.energy * along - P * daughter.energy) / parent.mass,
          length(cross(daughter.momentum, parent.momentum)) / P};
}

ParticleState moving(const ParticleState& particle_template, const Vector3& momentum,
                     const Vector3& position) {
  ParticleState particle = particle_template;
  particle.momentum = momentum;
  particle.energy = std::hypot(length(momentum), particle.mass);
  particle.position = position;
  return particle;
}

}  // namespace velquon::test
