// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "engine/particles.h"
#include "events/hand_over.h"
#include "events/recorder.h"

namespace velquon {

/// Probability of the charged mode, proton and negative pion; else neutron and neutral pion. The
/// Review of Particle Physics of the Particle Data Group has 0.641 and 0.359.
inline constexpr double lambda_charged_branching = 0.642;

/// An angle in radians drawn with the weight 1 + 0.7 cos theta on a uniform theta in 0 to pi.
///
/// The law for a polarised Lambda is 1 + alpha P cos theta on a uniform cos theta, alpha = 0.75
/// (Particle Data Group, Review of Particle Physics); 0.7 is that of a polarisation P of 0.93, which
/// is this program's choice. The uniform theta is a simplification:
/// without the factor sin theta of the solid angle, angles near 0 and pi are more frequent than in
/// nature.
[[nodiscard]] double get_proton_angle();

/// Decays a Lambda to a proton and a negative pion.
/// \param parent     mass, momentum and energy set
/// \param the_proton receives momentum and energy in the chamber frame, like `the_pion`; both keep
///                   their positions
///
/// The weighted component of the decay momentum goes across the Lambda's flight, so that is where
/// the asymmetry shows: a Lambda of strong production is polarised across its plane of production.
/// Here that plane is the same for every Lambda, and each is polarised.
void lambda_to_charged(const ParticleState& parent, ParticleState& the_proton,
                       ParticleState& the_pion);

/// Decays a Lambda to a neutron and a neutral pion; parameters as for `lambda_to_charged`.
void lambda_to_neutrals(const ParticleState& parent, ParticleState& the_neutron,
                        ParticleState& the_pizero);

/// Tracks a negative pion with its decay chain and a proton, and merges their tracks.
/// \param limit     the most points of each list and of the merged one
/// \param out       receives the merged list; at least `limit` points
/// \param count     receives the number of points written
/// \param half_side half the side of the chamber, drawing units
/// \param field     kG
/// \param scale     drawing units per cm
/// \param step      drawing units
/// \param recorder  is told what became of both and whose points the merged list holds
/// \param parent    row of the Lambda in the record
void piminus_p_paths(ParticleState& the_pion, ParticleState& the_proton, std::int16_t limit,
                     std::span<PlotPoint> out, std::int16_t& count, double half_side, double field,
                     double scale, double step, const Recorder& recorder = {}, int parent = -1);

/// A Lambda that flies unseen and decays in one of its two modes. An event without a visible track
/// has no points.
/// \param event  receives the points
/// \param record receives what happened, unless it is null
HandOver lambda_chain(const ChamberValues& values, TrackBuffer& event,
                      ParticleRecord* record = nullptr);

}  // namespace velquon
