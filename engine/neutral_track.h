// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "engine/particles.h"

namespace velquon {

/// Energy in MeV below which a photon never converts.
inline constexpr double conversion_threshold = 2.0;

/// Walks a massive neutral particle, unseen, to where it decays: five steps to a mean decay length,
/// one draw a step, at least one step.
/// \param particle on success its position becomes the decay point; momentum and energy stay
/// \param bound    limit of the coordinates, drawing units (see ChamberWall)
/// \param scale    drawing units per cm
/// \return true when it decayed inside the chamber, false when it left first
///
/// A particle whose survival is not a number, one without momentum for instance, decays where it
/// is.
[[nodiscard]] bool neutral_path(ParticleState& particle, double bound, double scale);

/// The same for a photon and its conversion to a pair; false too when its energy is below the
/// conversion threshold, and then without a draw.
[[nodiscard]] bool gamma_path(ParticleState& particle, double bound, double scale);

}  // namespace velquon
