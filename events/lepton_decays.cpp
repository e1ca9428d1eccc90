// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/lepton_decays.h"

#include <cmath>

#include "engine/kinematics.h"
#include "engine/random.h"
#include "events/tracking.h"

namespace velquon {

namespace {

TrackSettings settings_of(const ChamberValues& values) {
  return {static_cast<double>(values.B_field), track_limit(half_chamber_side),
          drawing_scale(values), track_step};
}

}  // namespace

void pi_to_mu(const ParticleState& parent, ParticleState& daughter) {
  const double M = parent.mass;
  const double m = daughter.mass;
  const double P = magnitude(parent.momentum);
  const double k = (M * M - m * m) * 0.5 / M;
  const double rest_energy = 0.5 * (M * M + m * m) / M;
  const double k_along = my_rand(-k, k);
  const double k_across = std::sqrt(k * k - k_along * k_along);
  const double phi = my_rand(0.0, 2.0 * PI);
  to_the_lab(parent.momentum, daughter.momentum, (k_along * parent.energy + P * rest_energy) / M,
             k_across * std::sin(phi), k_across * std::cos(phi));
  daughter.energy = std::sqrt(dot_product(daughter.momentum, daughter.momentum) + m * m);
}

double e_dist(double x, double c) {
  return x * x * (3.0 - 2.0 * x + (1.0 - 2.0 * x) * c);
}

void mu_to_e(const ParticleState& parent, ParticleState& daughter) {
  const double M = parent.mass;
  const double m = daughter.mass;
  const double P = magnitude(parent.momentum);
  double x = 0.0;
  double c = 0.0;
  double u = 0.0;
  // The weight reaches 2 and u only 1, so the spectrum is cut there: that is the spectrum shown
  // (docs/physics.md, "Pion and muon").
  do {
    x = rand_one();
    c = my_rand(-1.0, 1.0);
    u = rand_one();
  } while (u > e_dist(x, c));
  const double phi = my_rand(0.0, 2.0 * PI);
  const double q = M * (x * 0.5);
  const double q_across = std::sin(std::acos(c)) * q;
  to_the_lab(parent.momentum, daughter.momentum,
             (c * q * parent.energy + std::sqrt(q * q + m * m) * P) / M, q_across * std::sin(phi),
             q_across * std::cos(phi));
  daughter.energy = std::sqrt(dot_product(daughter.momentum, daughter.momentum) + m * m);
}

HandOver pion_chain(const ChamberValues& values, TrackBuffer& event, ParticleRecord* record) {
  const TrackSettings settings = settings_of(values);
  const Recorder recorder(record, static_cast<double>(values.sides_cm));
  ParticleState the_pion = primary_particle(pion, static_cast<double>(values.kinetic_Mev));
  const int pion_row = recorder.add_primary(pdg::pion, the_pion, Fate::left);
  if (track_particle(the_pion, {3, 4, 3, 4}, settings, event, recorder, pion_row) ==
      TrackEnd::stopped) {
    return HandOver::yes;
  }
  ParticleState the_muon = daughter_at_end(muon, event);
  pi_to_mu(the_pion, the_muon);
  const int muon_row = recorder.add_decay(pion_decay, pion_row, the_pion, the_muon);
  if (track_particle(the_muon, {4, 5, 4, 5}, settings, event, recorder, muon_row) ==
      TrackEnd::stopped) {
    return HandOver::yes;
  }
  ParticleState the_electron = daughter_at_end(electron, event);
  mu_to_e(the_muon, the_electron);
  const int electron_row = recorder.add_decay(muon_decay, muon_row, the_muon, the_electron);
  const TrackEnd end =
      track_particle(the_electron, {5, 6, 5, 6}, settings, event, recorder, electron_row);
  return end == TrackEnd::stopped ? HandOver::yes : HandOver::no;
}

HandOver muon_chain(const ChamberValues& values, TrackBuffer& event, ParticleRecord* record) {
  const TrackSettings settings = settings_of(values);
  const Recorder recorder(record, static_cast<double>(values.sides_cm));
  ParticleState the_muon = primary_particle(muon, static_cast<double>(values.kinetic_Mev));
  const int muon_row = recorder.add_primary(-pdg::muon, the_muon, Fate::left);
  if (track_particle(the_muon, {3, 4, 3, 4}, settings, event, recorder, muon_row) ==
      TrackEnd::stopped) {
    return HandOver::yes;
  }
  ParticleState the_electron = daughter_at_end(electron, event);
  mu_to_e(the_muon, the_electron);
  const int electron_row = recorder.add_decay(muon_decay, muon_row, the_muon, the_electron);
  // The end codes differ between helix and line on purpose.
  const TrackEnd end =
      track_particle(the_electron, {4, 6, 4, 5}, settings, event, recorder, electron_row);
  return end == TrackEnd::stopped ? HandOver::yes : HandOver::no;
}

}  // namespace velquon
