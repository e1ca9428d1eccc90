// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "engine/particles.h"

namespace velquon {

/// Energy in MeV below which a photon never converts. In nature it is two electron masses, 1.022
/// MeV; just above that conversions are rare.
inline constexpr double conversion_threshold = 2.0;

/// Walks a massive neutral particle, unseen, to where it decays: five steps to a mean decay length,
/// one draw a step, at least one step.
/// \param particle on success its position becomes the decay point; momentum and energy stay
/// \param bound    limit of the coordinates, drawing units (see ChamberWall)
/// \param scale    drawing units per cm
/// \return true when it decayed inside the chamber, false when it left first
///
/// The mean decay length is beta gamma c tau with beta gamma = p / m; a step is survived with
/// exp(-0.2). Decays lie only at the ends of steps, which makes the mean flight 0.2 / (1 -
/// exp(-0.2)) = 1.103 times the mean decay length. The direction takes its polar angle as acos(pz /
/// E), like that of a straight charged track.
///
/// A particle whose survival is not a number, one without momentum for instance, decays where it
/// is.
[[nodiscard]] bool neutral_path(ParticleState& particle, double bound, double scale);

/// The same for a photon and its conversion to a pair; false too when its energy is below the
/// conversion threshold, and then without a draw.
///
/// A step is a fifth of the photon's length scale, 40 cm, and is survived with exp(-0.15): a mean
/// of 40 cm / (1 - exp(-0.15)) = 287 cm at every energy. It is this program's choice and stands for
/// the material of a chamber; in nature the length depends on the material, and on the energy until
/// far above the threshold (Rossi, High-Energy Particles).
[[nodiscard]] bool gamma_path(ParticleState& particle, double bound, double scale);

}  // namespace velquon
