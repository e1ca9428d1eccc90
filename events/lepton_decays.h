// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "engine/particles.h"
#include "events/hand_over.h"
#include "events/particle_record.h"

namespace velquon {

/// Decays a pion to a muon and an unseen neutrino, isotropically in the pion's rest frame: the
/// component of the momentum along the flight is uniform between -k and k, and the azimuth uniform.
/// For a massless neutrino the momentum there is k = (M^2 - m^2) / 2M and the muon's energy (M^2 +
/// m^2) / 2M (Particle Data Group, Review of Particle Physics, "Kinematics": two-body decay). A
/// Lorentz transformation along the flight follows.
/// \param parent   mass, momentum and energy set
/// \param daughter mass set; receives momentum and energy in the chamber frame, its position stays
void pi_to_mu(const ParticleState& parent, ParticleState& daughter);

/// Weight of the electron spectrum of muon decay for the energy fraction x in 0 to 1 and the cosine
/// c of the electron's angle to the muon's flight: x^2 (3 - 2x + (1 - 2x) c), from 0 to 2.
///
/// The spectrum of a muon that is polarised along its flight as one from a pion's decay is, without
/// the electron's mass (Michel, Proc. Phys. Soc. A 63, 514 (1950); Kinoshita and Sirlin, Phys. Rev.
/// 108, 844 (1957); Particle Data Group, "Muon decay parameters": rho = delta = 3/4, xi = 1).
[[nodiscard]] double e_dist(double x, double c);

/// Decays a muon to an electron and two unseen neutrinos; parameters as for `pi_to_mu`. The
/// electron's energy fraction and angle in the muon's rest frame are drawn from `e_dist` cut off at
/// 1, which departs from nature: fast electrons that go backwards are rarer. The momentum there is
/// x M / 2, as without a mass; the energy that is transformed has the electron's mass.
void mu_to_e(const ParticleState& parent, ParticleState& daughter);

/// pi+ to mu+ to e+, from a pion that enters with the values' energy. A negative field makes the
/// tracks curve as those of the negative chain.
/// \param event  receives the points
/// \param record receives what happened, unless it is null
HandOver pion_chain(const ChamberValues& values, TrackBuffer& event,
                    ParticleRecord* record = nullptr);

/// mu+ to e+, likewise.
HandOver muon_chain(const ChamberValues& values, TrackBuffer& event,
                    ParticleRecord* record = nullptr);

}  // namespace velquon
