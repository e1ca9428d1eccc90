// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>

namespace velquon {

/// A vector of three components in the chamber frame.
using Vector3 = std::array<double, 3>;

/// The state of one particle.
struct ParticleState {
  double mass = 0.0;          ///< rest mass, MeV/c^2
  double decay_length = 0.0;  ///< c*tau, cm; for the photon the scale of its conversion length
  Vector3 momentum{};         ///< MeV/c
  double energy = 0.0;        ///< total energy, MeV
  Vector3 position{};         ///< drawing units: the start of the track, or where it decayed
};

/// The parameters of a charged track in the field. A point at phase phi lies at
/// (centre_x - radius sin phi, centre_y + radius cos phi, z).
struct HelixPath {
  double dz = 0.0;        ///< advance in z per step, drawing units
  double dphi = 0.0;      ///< change of the phase per step, radians
  double radius = 0.0;    ///< signed radius in the x-y plane, drawing units
  double centre_x = 0.0;  ///< centre of the circle, drawing units
  double centre_y = 0.0;
  double z = 0.0;         ///< z of the next point, drawing units
  double phi = 0.0;       ///< phase of the next point; after a decay the total angle turned
  std::int16_t code = 0;  ///< code of the track's points
};

/// Decay length, in cm, that stands for a particle that does not decay. That of the neutron, 2.6e13
/// cm in nature, is taken for it too.
inline constexpr double stable_decay_length = 1.0e10;

/// Templates of the particles: rest mass in MeV/c^2 and decay length in cm, all else zero. Masses
/// and lifetimes are rounded from the tables of the Particle Data Group, Review of Particle
/// Physics; docs/physics.md sets both side by side. The rounded values are part of what an event
/// is. The photon's length is no measured value but stands for the material of the chamber.
inline constexpr ParticleState pion{.mass = 139.6, .decay_length = 780.0};
inline constexpr ParticleState pizero{.mass = 135.0, .decay_length = 2.5e-6};
inline constexpr ParticleState muon{.mass = 105.7, .decay_length = 65868.0};
inline constexpr ParticleState electron{.mass = 0.51, .decay_length = stable_decay_length};
inline constexpr ParticleState positron{.mass = 0.51, .decay_length = stable_decay_length};
inline constexpr ParticleState photon{.mass = 0.0, .decay_length = 200.0};
inline constexpr ParticleState lambda{.mass = 1115.6, .decay_length = 7.89};
inline constexpr ParticleState proton{.mass = 938.28, .decay_length = stable_decay_length};
inline constexpr ParticleState neutron{.mass = 939.57, .decay_length = stable_decay_length};

}  // namespace velquon
