// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/particle_kinds.h"

#include <algorithm>
#include <array>

#include "engine/model_text.h"
#include "events/particle_record.h"

namespace velquon {

namespace {

// The neutrinos take no part but in the balance: without a mass and without an end.
constexpr ParticleState neutrino{.decay_length = stable_decay_length};

constexpr std::array kinds{
    ParticleKind{pdg::pion, MODEL_TEXT("velquon::Model", "Positive pion"), "π⁺", pion, 1},
    ParticleKind{-pdg::pion, MODEL_TEXT("velquon::Model", "Negative pion"), "π⁻", pion, -1},
    ParticleKind{pdg::pizero, MODEL_TEXT("velquon::Model", "Neutral pion"), "π⁰", pizero, 0},
    ParticleKind{pdg::muon, MODEL_TEXT("velquon::Model", "Negative muon"), "μ⁻", muon, -1},
    ParticleKind{-pdg::muon, MODEL_TEXT("velquon::Model", "Positive muon"), "μ⁺", muon, 1},
    ParticleKind{pdg::electron, MODEL_TEXT("velquon::Model", "Electron"), "e⁻", electron, -1},
    ParticleKind{-pdg::electron, MODEL_TEXT("velquon::Model", "Positron"), "e⁺", positron, 1},
    ParticleKind{pdg::muon_neutrino, MODEL_TEXT("velquon::Model", "Neutrino"), "ν", neutrino, 0},
    ParticleKind{-pdg::muon_neutrino, MODEL_TEXT("velquon::Model", "Antineutrino"), "ν̄", neutrino,
                 0},
    ParticleKind{pdg::both_neutrinos, MODEL_TEXT("velquon::Model", "Neutrino and antineutrino"),
                 "ν ν̄", neutrino, 0},
    ParticleKind{pdg::photon, MODEL_TEXT("velquon::Model", "Photon"), "γ", photon, 0},
    ParticleKind{pdg::lambda, MODEL_TEXT("velquon::Model", "Lambda"), "Λ", lambda, 0},
    ParticleKind{pdg::proton, MODEL_TEXT("velquon::Model", "Proton"), "p", proton, 1},
    ParticleKind{pdg::neutron, MODEL_TEXT("velquon::Model", "Neutron"), "n", neutron, 0},
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
