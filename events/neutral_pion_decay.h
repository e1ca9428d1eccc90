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

/// A photon and the leptons that it becomes.
struct PhotonPair {
  ParticleState photon = velquon::photon;
  ParticleState electron = velquon::electron;
  ParticleState positron = velquon::positron;
  int electron_row = -1;  ///< of the leptons in the record, once the photon has converted
  int positron_row = -1;
};

/// Decays a neutral pion to two photons, back to back and isotropic in its rest frame, of half its
/// mass each. Fills their momentum and energy in the chamber frame; positions stay. The decay to a
/// photon and a pair, 1.2 per cent in nature (Particle Data Group, Review of Particle Physics), is
/// left out.
void pizero_to_2gamma(const ParticleState& parent, ParticleState& photon1, ParticleState& photon2);

/// Converts a photon at its position to an electron and a positron: sets their positions and
/// momenta, not their energies. The electron takes 20 to 80 per cent of the photon's energy and
/// leaves at 0.7 to 1.3 times m/p to the photon's line; the positron takes the rest along the line
/// and the opposite transverse momentum.
///
/// The typical opening angle of a pair is of the order m/E (Rossi, High-Energy Particles, "pair
/// production"); the two uniform draws about it are a simplification, without the long tails of the
/// real distributions. Momentum balances; energy does not, by the pair's rest energy and transverse
/// momentum.
void gamma_to_pair(const ParticleState& parent, ParticleState& the_electron,
                   ParticleState& the_positron);

/// Tracks the two leptons of a pair and merges their tracks.
/// \param limit     the most points of each track and of the merged list
/// \param out       receives the merged list; at least `limit` points
/// \param count     receives the number of points written
/// \param half_side half the side of the chamber, drawing units
/// \param field     kG
/// \param scale     drawing units per cm
/// \param step      drawing units
/// \param recorder  is told whose points the merged list holds
void pair_paths(PhotonPair& pair, std::int16_t limit, std::span<PlotPoint> out, std::int16_t& count,
                double half_side, double field, double scale, double step,
                const Recorder& recorder = {});

/// Tracks two pairs and merges them; parameters as for `pair_paths`.
void two_pairs(PhotonPair& pair1, PhotonPair& pair2, std::int16_t limit, std::span<PlotPoint> out,
               std::int16_t& count, double half_side, double field, double scale, double step,
               const Recorder& recorder = {});

/// Walks a photon and lets it convert if it does so in the chamber.
/// \param parent row of the photon's parent in the record
/// \param scale  drawing units per cm
/// \return true when it converted; its leptons then have their positions and momenta
[[nodiscard]] bool convert_photon(PhotonPair& pair, double scale, const Recorder& recorder,
                                  int parent);

/// Lays the pairs of an event's photons into it; `pair_paths` or `two_pairs` with the event's
/// values.
void lay_pair(PhotonPair& pair, const ChamberValues& values, TrackBuffer& event,
              const Recorder& recorder);
void lay_two_pairs(PhotonPair& pair1, PhotonPair& pair2, const ChamberValues& values,
                   TrackBuffer& event, const Recorder& recorder);

/// pi0 to two photons, each of which may convert in the chamber. An event in which none does has no
/// points.
/// \param event  receives the points
/// \param record receives what happened, unless it is null
HandOver pizero_chain(const ChamberValues& values, TrackBuffer& event,
                      ParticleRecord* record = nullptr);

}  // namespace velquon
