// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/hepmc3_event.h"

#include <HepMC3/GenParticle.h>
#include <HepMC3/GenVertex.h>

#include <vector>

#include "events/particle_kinds.h"

namespace velquon {

namespace {

constexpr int beam_status = 4;
constexpr int decayed_status = 2;
constexpr int final_status = 1;

HepMC3::FourVector in_cm(const Vector3& place) {
  return {place[0], place[1], place[2], 0.0};
}

}  // namespace

std::shared_ptr<HepMC3::GenRunInfo> run_info_of(const Hepmc3Run& run) {
  auto info = std::make_shared<HepMC3::GenRunInfo>();
  info->set_weight_names({"Default"});
  info->tools().push_back({"velquon-events", run.version, "decays in a detector chamber"});
  info->add_attribute("seed", std::make_shared<HepMC3::UIntAttribute>(run.seed));
  info->add_attribute("type", std::make_shared<HepMC3::StringAttribute>(run.type));
  const auto add_number = [&info](const char* name, float value) {
    info->add_attribute(name,
                        std::make_shared<HepMC3::DoubleAttribute>(static_cast<double>(value)));
  };
  add_number("field_kG", run.values.B_field);
  add_number("side_cm", run.values.sides_cm);
  add_number("energy_MeV", run.values.kinetic_Mev);
  return info;
}

HepMC3::GenEvent gen_event_of(std::uint64_t number, const ParticleRecord& record,
                              const std::shared_ptr<HepMC3::GenRunInfo>& run) {
  HepMC3::GenEvent event(HepMC3::Units::MEV, HepMC3::Units::CM);
  event.set_run_info(run);
  event.set_event_number(static_cast<int>(number));
  event.weights() = {1.0};
  const auto rows = record.particles();
  if (rows.empty()) {
    return event;
  }
  event.shift_position_to(in_cm(rows.front().place_cm));

  std::vector<HepMC3::GenParticlePtr> particles;
  std::vector<HepMC3::GenVertexPtr> ends(rows.size());
  for (const RecordedParticle& row : rows) {
    const HepMC3::FourVector momentum(row.momentum[0], row.momentum[1], row.momentum[2],
                                      row.energy);
    const bool primary = row.parent < 0;
    auto particle = std::make_shared<HepMC3::GenParticle>(momentum, row.pdg,
                                                          primary ? beam_status : final_status);
    if (row.pdg != pdg::both_neutrinos) {
      particle->set_generated_mass(particle_kind(row.pdg).values.mass);
    }
    particles.push_back(particle);
    if (primary) {
      event.add_particle(particle);
      continue;
    }
    const auto parent = static_cast<std::size_t>(row.parent);
    auto& vertex = ends[parent];
    if (!vertex) {
      vertex = std::make_shared<HepMC3::GenVertex>(in_cm(row.place_cm));
      vertex->add_particle_in(particles[parent]);
      if (parent > 0) {
        particles[parent]->set_status(decayed_status);
      }
      event.add_vertex(vertex);
    }
    vertex->add_particle_out(particle);
  }
  return event;
}

}  // namespace velquon
