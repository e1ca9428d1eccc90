// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

#include "engine/particles.h"

namespace velquon {

/// A kind of particle that an event's record can hold.
struct ParticleKind {
  int pdg;
  std::string_view name;        ///< for people
  std::string_view symbol;      ///< UTF-8
  const ParticleState& values;  ///< its mass and its decay length
  int charge;                   ///< in units of e
};

/// \param pdg a number from a record made here
[[nodiscard]] const ParticleKind& particle_kind(int pdg);

/// \return null for a number that no particle of an event has
[[nodiscard]] const ParticleKind* find_particle_kind(int pdg);

}  // namespace velquon
