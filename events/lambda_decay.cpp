// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/lambda_decay.h"

#include <cmath>

#include "engine/kinematics.h"
#include "engine/neutral_track.h"
#include "engine/random.h"
#include "engine/track_merging.h"
#include "events/lepton_decays.h"
#include "events/neutral_pion_decay.h"
#include "events/tracking.h"

namespace velquon {

namespace {

/// Two-body kinematics in the Lambda's rest frame, MeV. Rounded from
///   k = sqrt((M^2 - (m1 + m2)^2) (M^2 - (m1 - m2)^2)) / 2M,  E1 = (M^2 + m1^2 - m2^2) / 2M
/// (Particle Data Group, Review of Particle Physics, "Kinematics"); with the masses of this program
/// k would be 100.41 and 103.83, and each energy differs by less than 0.1. The energies of a mode
/// add up to the Lambda's mass. The square is given, not computed.
struct DecayMode {
  double k;
  double k_squared;
  double first_energy;
  double second_energy;
};
constexpr DecayMode charged_mode{100.5, 10100.25, 943.6, 172.0};
constexpr DecayMode neutral_mode{104.0, 10816.0, 945.2, 170.4};

void decay_lambda(const ParticleState& parent, const DecayMode& mode, ParticleState& first,
                  ParticleState& second) {
  const double M = parent.mass;
  const double E = parent.energy;
  const double P = magnitude(parent.momentum);
  const double kz = std::cos(get_proton_angle()) * mode.k;
  const double k_across = std::sqrt(mode.k_squared - kz * kz);
  const double phi = my_rand(0.0, 2.0 * PI);
  const double t1 = std::sin(phi) * k_across;
  const double t2 = std::cos(phi) * k_across;
  to_the_lab(parent.momentum, first.momentum, (t2 * E + P * mode.first_energy) / M, t1, kz);
  first.energy = std::sqrt(dot_product(first.momentum, first.momentum) + first.mass * first.mass);
  to_the_lab(parent.momentum, second.momentum, (P * mode.second_energy - t2 * E) / M, -t1, -kz);
  second.energy =
      std::sqrt(dot_product(second.momentum, second.momentum) + second.mass * second.mass);
}

void track_negative_pion_chain(ParticleState& the_pion, const TrackSettings& settings,
                               TrackBuffer& buffer, const Recorder& recorder, int pion_row) {
  if (track_particle(the_pion, {2, 4, 2, 4}, settings, buffer, recorder, pion_row) ==
      TrackEnd::stopped) {
    return;
  }
  ParticleState the_muon = daughter_at_end(muon, buffer);
  pi_to_mu(the_pion, the_muon);
  const int muon_row = recorder.add_decay(pion_decay, pion_row, the_pion, the_muon);
  if (track_particle(the_muon, {4, 5, 4, 5}, settings, buffer, recorder, muon_row) ==
      TrackEnd::stopped) {
    return;
  }
  ParticleState the_electron = daughter_at_end(electron, buffer);
  mu_to_e(the_muon, the_electron);
  const int electron_row = recorder.add_decay(muon_decay, muon_row, the_muon, the_electron);
  track_particle(the_electron, {5, 5, 5, 5}, settings, buffer, recorder, electron_row);
}

void run_charged_mode(const ParticleState& the_lambda, const ChamberValues& values,
                      TrackBuffer& event, const Recorder& recorder, int lambda_row) {
  ParticleState the_proton = proton;
  ParticleState the_pion = pion;
  the_proton.position = the_lambda.position;
  the_pion.position = the_lambda.position;
  lambda_to_charged(the_lambda, the_proton, the_pion);
  piminus_p_paths(the_pion, the_proton, event.limit(), event.free_slots(), event.count,
                  half_chamber_side, static_cast<double>(values.B_field), drawing_scale(values),
                  track_step, recorder, lambda_row);
}

void run_neutral_mode(const ParticleState& the_lambda, const ChamberValues& values,
                      TrackBuffer& event, const Recorder& recorder, int lambda_row) {
  const double scale = drawing_scale(values);
  ParticleState the_neutron = neutron;
  ParticleState the_pizero = pizero;
  PhotonPair pair1;
  PhotonPair pair2;
  // The neutral pion has no momentum yet, so it decays where it is: where the Lambda did.
  const bool pizero_decays = neutral_path(the_pizero, half_chamber_side, scale);
  the_neutron.position = the_lambda.position;
  the_pizero.position = the_lambda.position;
  lambda_to_neutrals(the_lambda, the_neutron, the_pizero);
  recorder.add(pdg::neutron, lambda_row, the_neutron, Fate::undetected);
  const int pizero_row = recorder.add(pdg::pizero, lambda_row, the_pizero, Fate::escaped);
  if (!pizero_decays) {
    return;
  }
  recorder.vertex(pizero_row, Fate::decayed, the_pizero.position);
  pair1.photon.position = the_pizero.position;
  pair2.photon.position = the_pizero.position;
  pizero_to_2gamma(the_pizero, pair1.photon, pair2.photon);
  // Unlike in a neutral-pion event, the second photon is not tried when the first escapes.
  if (!convert_photon(pair1, scale, recorder, pizero_row)) {
    recorder.add(pdg::photon, pizero_row, pair2.photon, Fate::escaped);
    return;
  }
  if (convert_photon(pair2, scale, recorder, pizero_row)) {
    lay_two_pairs(pair1, pair2, values, event, recorder);
  } else {
    lay_pair(pair1, values, event, recorder);
  }
}

}  // namespace

double get_proton_angle() {
  // Accepted or rejected under the largest weight, 1.7. Pi has the digits with which events are
  // made.
  double y = 0.0;
  double theta = 0.0;
  do {
    y = my_rand(0.0, 1.7);
    theta = my_rand(0.0, 3.14159265);
  } while (!(1.0 + 0.7 * std::cos(theta) > y));
  return theta;
}

void lambda_to_charged(const ParticleState& parent, ParticleState& the_proton,
                       ParticleState& the_pion) {
  decay_lambda(parent, charged_mode, the_proton, the_pion);
}

void lambda_to_neutrals(const ParticleState& parent, ParticleState& the_neutron,
                        ParticleState& the_pizero) {
  decay_lambda(parent, neutral_mode, the_neutron, the_pizero);
}

void piminus_p_paths(ParticleState& the_pion, ParticleState& the_proton, std::int16_t limit,
                     std::span<PlotPoint> out, std::int16_t& count, double half_side, double field,
                     double scale, double step, const Recorder& recorder, int parent) {
  const TrackSettings settings{field, track_limit(half_side), scale, step};
  TrackBuffer pion_tracks(limit);
  TrackBuffer proton_track(limit);
  PointOwners pion_owners;
  PointOwners proton_owner;
  const int proton_row = recorder.add(pdg::proton, parent, the_proton, Fate::left);
  const int pion_row = recorder.add(-pdg::pion, parent, the_pion, Fate::left);
  track_negative_pion_chain(the_pion, settings.for_negative(), pion_tracks,
                            recorder.for_negative().into(pion_owners), pion_row);
  track_particle(the_proton, {3, 3, 3, 6}, settings, proton_track, recorder.into(proton_owner),
                 proton_row);
  combine_paths(pion_tracks.points(), proton_track.points(), out, count, limit);
  recorder.merge(pion_owners, proton_owner, limit);
}

HandOver lambda_chain(const ChamberValues& values, TrackBuffer& event, ParticleRecord* record) {
  const Recorder recorder(record, static_cast<double>(values.sides_cm));
  ParticleState the_lambda = primary_particle(lambda, static_cast<double>(values.kinetic_Mev));
  const int row = recorder.add_primary(pdg::lambda, the_lambda, Fate::escaped);
  if (!neutral_path(the_lambda, half_chamber_side, drawing_scale(values))) {
    return HandOver::yes;
  }
  recorder.vertex(row, Fate::decayed, the_lambda.position);
  if (rand_one() > lambda_charged_branching) {
    run_neutral_mode(the_lambda, values, event, recorder, row);
  } else {
    run_charged_mode(the_lambda, values, event, recorder, row);
  }
  return HandOver::yes;
}

}  // namespace velquon
