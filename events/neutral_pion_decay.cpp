// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/neutral_pion_decay.h"

#include <cmath>

#include "engine/kinematics.h"
#include "engine/neutral_track.h"
#include "engine/random.h"
#include "engine/track_merging.h"
#include "events/tracking.h"

namespace velquon {

namespace {

// On a straight line the leptons exchange their track codes.
constexpr TrackCodes electron_codes{3, 4, 4, 6};
constexpr TrackCodes positron_codes{4, 3, 3, 6};

/// A pair's lepton carries no energy yet, and the straight walk takes its polar angle from it.
void track_lepton(ParticleState& lepton, const TrackCodes& codes, const TrackSettings& settings,
                  TrackBuffer& buffer, const Recorder& recorder, int row) {
  if (settings.straight()) {
    lepton.energy = total_energy(lepton.mass, magnitude(lepton.momentum));
  }
  track_particle(lepton, codes, settings, buffer, recorder, row);
}

}  // namespace

void pizero_to_2gamma(const ParticleState& parent, ParticleState& photon1, ParticleState& photon2) {
  const double M = parent.mass;
  const double E = parent.energy;
  const double P = magnitude(parent.momentum);
  const double k = M * 0.5;
  const double k_along = my_rand(-k, k);
  const double k_across = std::sqrt(k * k - k_along * k_along);
  const double phi = my_rand(0.0, 2.0 * PI);
  const double t1 = std::sin(phi) * k_across;
  const double t2 = std::cos(phi) * k_across;
  to_the_lab(parent.momentum, photon1.momentum, (k_along * E + P * k) / M, t1, t2);
  photon1.energy = magnitude(photon1.momentum);
  to_the_lab(parent.momentum, photon2.momentum, (P * k - k_along * E) / M, -t1, -t2);
  photon2.energy = magnitude(photon2.momentum);
}

void gamma_to_pair(const ParticleState& parent, ParticleState& the_electron,
                   ParticleState& the_positron) {
  the_electron.position = parent.position;
  the_positron.position = parent.position;
  const double p1 = my_rand(0.2 * parent.energy, 0.8 * parent.energy);
  const double typical_angle = the_electron.mass / p1;
  const double theta = my_rand(0.7 * typical_angle, 1.3 * typical_angle);
  const double phi = my_rand(0.0, 2.0 * PI);
  const double along = std::cos(theta) * p1;
  const double across = std::sin(theta) * p1;
  to_the_lab(parent.momentum, the_electron.momentum, along, std::sin(phi) * across,
             across * std::cos(phi));
  to_the_lab(parent.momentum, the_positron.momentum, parent.energy - along,
             -(std::sin(phi) * across), -(across * std::cos(phi)));
}

void pair_paths(PhotonPair& pair, std::int16_t limit, std::span<PlotPoint> out, std::int16_t& count,
                double half_side, double field, double scale, double step,
                const Recorder& recorder) {
  const TrackSettings settings{field, track_limit(half_side), scale, step};
  TrackBuffer electron_track(limit);
  TrackBuffer positron_track(limit);
  PointOwners electron_owner;
  PointOwners positron_owner;
  track_lepton(pair.electron, electron_codes, settings.for_negative(), electron_track,
               recorder.into(electron_owner), pair.electron_row);
  track_lepton(pair.positron, positron_codes, settings, positron_track,
               recorder.into(positron_owner), pair.positron_row);
  combine_paths(electron_track.points(), positron_track.points(), out, count, limit);
  recorder.merge(electron_owner, positron_owner, limit);
}

void two_pairs(PhotonPair& pair1, PhotonPair& pair2, std::int16_t limit, std::span<PlotPoint> out,
               std::int16_t& count, double half_side, double field, double scale, double step,
               const Recorder& recorder) {
  TrackBuffer tracks1(limit);
  TrackBuffer tracks2(limit);
  PointOwners owners1;
  PointOwners owners2;
  pair_paths(pair1, limit, tracks1.free_slots(), tracks1.count, half_side, field, scale, step,
             recorder.into(owners1));
  pair_paths(pair2, limit, tracks2.free_slots(), tracks2.count, half_side, field, scale, step,
             recorder.into(owners2));
  combine_paths(tracks1.points(), tracks2.points(), out, count, limit);
  recorder.merge(owners1, owners2, limit);
}

bool convert_photon(PhotonPair& pair, double scale, const Recorder& recorder, int parent) {
  const int row = recorder.add(pdg::photon, parent, pair.photon, Fate::escaped);
  if (!gamma_path(pair.photon, half_chamber_side, scale)) {
    return false;
  }
  recorder.vertex(row, Fate::converted, pair.photon.position);
  gamma_to_pair(pair.photon, pair.electron, pair.positron);
  pair.electron_row = recorder.add_without_energy(pdg::electron, row, pair.electron);
  pair.positron_row = recorder.add_without_energy(-pdg::electron, row, pair.positron);
  return true;
}

void lay_pair(PhotonPair& pair, const ChamberValues& values, TrackBuffer& event,
              const Recorder& recorder) {
  pair_paths(pair, event.limit(), event.free_slots(), event.count, half_chamber_side,
             static_cast<double>(values.B_field), drawing_scale(values), track_step, recorder);
}

void lay_two_pairs(PhotonPair& pair1, PhotonPair& pair2, const ChamberValues& values,
                   TrackBuffer& event, const Recorder& recorder) {
  two_pairs(pair1, pair2, event.limit(), event.free_slots(), event.count, half_chamber_side,
            static_cast<double>(values.B_field), drawing_scale(values), track_step, recorder);
}

HandOver pizero_chain(const ChamberValues& values, TrackBuffer& event, ParticleRecord* record) {
  const double scale = drawing_scale(values);
  const Recorder recorder(record, static_cast<double>(values.sides_cm));
  ParticleState the_pizero = primary_particle(pizero, static_cast<double>(values.kinetic_Mev));
  const int row = recorder.add_primary(pdg::pizero, the_pizero, Fate::escaped);
  if (!neutral_path(the_pizero, half_chamber_side, scale)) {
    return HandOver::yes;
  }
  recorder.vertex(row, Fate::decayed, the_pizero.position);
  PhotonPair pair1;
  PhotonPair pair2;
  pair1.photon.position = the_pizero.position;
  pair2.photon.position = the_pizero.position;
  pizero_to_2gamma(the_pizero, pair1.photon, pair2.photon);

  // The first pair's draws come before the second photon's walk.
  const bool first = convert_photon(pair1, scale, recorder, row);
  const bool second = convert_photon(pair2, scale, recorder, row);
  if (first && second) {
    lay_two_pairs(pair1, pair2, values, event, recorder);
  } else if (first || second) {
    lay_pair(first ? pair1 : pair2, values, event, recorder);
  }
  return HandOver::yes;
}

}  // namespace velquon
