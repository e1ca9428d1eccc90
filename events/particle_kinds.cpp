// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/particle_kinds.h"

#include <algorithm>
#include <array>

#include "events/particle_record.h"

namespace velquon {

namespace {

// The neutrinos take no part but in the balance: without a mass and without an end.
constexpr ParticleState neutrino{.decay_length = stable_decay_length};

constexpr std::array kinds{
    ParticleKind{pdg::pion, "Positive pion", "π⁺", pion, 1},
    ParticleKind{-pdg::pion, "Negative pion", "π⁻", pion, -1},
    ParticleKind{pdg::pizero, "Neutral pion", "π⁰", pizero, 0},
    ParticleKind{pdg::muon, "Negative muon", "μ⁻", muon, -1},
    ParticleKind{-pdg::muon, "Positive muon", "μ⁺", muon, 1},
    ParticleKind{pdg::electron, "Electron", "e⁻", electron, -1},
    ParticleKind{-pdg::electron, "Positron", "e⁺", positron, 1},
    ParticleKind{pdg::muon_neutrino, "Neutrino", "ν", neutrino, 0},
    ParticleKind{-pdg::muon_neutrino, "Antineutrino", "ν̄", neutrino, 0},
    ParticleKind{pdg::both_neutrinos, "Neutrino and antineutrino", "ν ν̄", neutrino, 0},
    ParticleKind{pdg::photon, "Photon", "γ", photon, 0},
    ParticleKind{pdg::lambda, "Lambda", "Λ", lambda, 0},
    ParticleKind{pdg::proton, "Proton", "p", proton, 1},
    ParticleKind{pdg::neutron, "Neutron", "n", neutron, 0},
};

}  // namespace

const ParticleKind& particle_kind(int pdg) {
  return *std::ranges::find(kinds, pdg, &ParticleKind::pdg);
}

const ParticleKind* find_particle_kind(int pdg) {
  const auto* const kind = std::ranges::find(kinds, pdg, &ParticleKind::pdg);
  return kind == kinds.end() ? nullptr : kind;
}

}  // namespace velquon
