// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "engine/particles.h"
#include "events/hand_over.h"
#include "events/particle_record.h"

namespace velquon {

/// Decays a pion to a muon and an unseen neutrino, isotropically in the pion's rest frame.
/// \param parent   mass, momentum and energy set
/// \param daughter mass set; receives momentum and energy in the chamber frame, its position stays
void pi_to_mu(const ParticleState& parent, ParticleState& daughter);

/// Weight of the electron spectrum of muon decay for the energy fraction x in 0 to 1 and the cosine
/// c of the electron's angle to the muon's flight.
[[nodiscard]] double e_dist(double x, double c);

/// Decays a muon to an electron and two unseen neutrinos; parameters as for `pi_to_mu`.
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
