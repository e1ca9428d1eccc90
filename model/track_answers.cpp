// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_answers.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/charged_track.h"
#include "engine/kinematics.h"
#include "events/particle_kinds.h"
#include "events/tracking.h"

namespace velquon {

namespace {

double transverse(const Vector3& vector) {
  return std::hypot(vector[0], vector[1]);
}

int charge_of(const RecordedParticle& particle) {
  return particle_kind(particle.pdg).charge;
}

/// Radius of a charged particle's circle, cm. None without a field.
std::optional<double> radius_of(const RecordedParticle& particle, double field_kG) {
  if (field_kG == 0.0 || charge_of(particle) == 0) {
    return std::nullopt;
  }
  return helix_radius_cm(transverse(particle.momentum), std::fabs(field_kG));
}

/// Length of a track, cm: each of its points lies one step behind the one before, the first behind
/// the vertex.
double length_of(const RecordedParticle& particle, double side_cm) {
  return particle.points * track_step * side_cm / CHAMBER_SIDE;
}

/// Length of a track in the xy plane, cm.
double paper_length_of(const RecordedParticle& particle, const ChamberValues& values) {
  if (values.B_field == 0.0F) {
    // Not by the momentum: a straight track's polar angle is that of pz / E.
    const Vector3& end = *particle.end_cm;
    return std::hypot(end[0] - particle.place_cm[0], end[1] - particle.place_cm[1]);
  }
  return length_of(particle, static_cast<double>(values.sides_cm)) * transverse(particle.momentum) /
         magnitude(particle.momentum);
}

/// A particle's momentum where it ends. In the field that of a charged one has turned by the angle
/// that its track has on the circle, clockwise for a positive particle and a positive field.
Vector3 momentum_at_end(const RecordedParticle& particle, const ChamberValues& values) {
  const auto field_kG = static_cast<double>(values.B_field);
  const auto radius_cm = radius_of(particle, field_kG);
  Vector3 momentum = particle.momentum;
  if (radius_cm && *radius_cm > 0.0) {
    const double turn = paper_length_of(particle, values) / *radius_cm;
    rotate_p(momentum, std::copysign(turn, charge_of(particle) * field_kG));
  }
  return momentum;
}

std::optional<double> angle_between(const Vector3& a, const Vector3& b) {
  const double lengths = magnitude(a) * magnitude(b);
  if (!(lengths > 0.0)) {
    return std::nullopt;
  }
  constexpr double degrees = 180.0 / std::numbers::pi;
  return std::acos(std::clamp(dot_product(a, b) / lengths, -1.0, 1.0)) * degrees;
}

std::optional<double> paper_angle_between(const Vector3& a, const Vector3& b) {
  return angle_between({a[0], a[1], 0.0}, {b[0], b[1], 0.0});
}

TrackAnswer answer_of(const RecordedParticle& particle, const RecordedParticle* parent,
                      const ChamberValues& values) {
  TrackAnswer answer{.pdg = particle.pdg,
                     .momentum = magnitude(particle.momentum),
                     .transverse_momentum = transverse(particle.momentum),
                     .radius_cm = radius_of(particle, static_cast<double>(values.B_field)),
                     .length_cm = length_of(particle, static_cast<double>(values.sides_cm)),
                     .paper_length_cm = paper_length_of(particle, values),
                     .fate = particle.fate};
  if (parent != nullptr) {
    const Vector3 direction = momentum_at_end(*parent, values);
    answer.parent_pdg = parent->pdg;
    answer.angle_deg = angle_between(particle.momentum, direction);
    answer.paper_angle_deg = paper_angle_between(particle.momentum, direction);
  }
  return answer;
}

}  // namespace

std::vector<TrackAnswer> answers_of(const ParticleRecord& record, const ChamberValues& values) {
  const auto particles = record.particles();
  std::vector<TrackAnswer> answers;
  for (const RecordedParticle& particle : particles) {
    if (charge_of(particle) != 0 && particle.points > 0) {
      const auto* parent =
          particle.parent < 0 ? nullptr : &particles[static_cast<std::size_t>(particle.parent)];
      answers.push_back(answer_of(particle, parent, values));
    }
  }
  return answers;
}

}  // namespace velquon
