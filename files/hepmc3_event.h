// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <HepMC3/GenEvent.h>
#include <HepMC3/GenRunInfo.h>

#include <cstdint>
#include <memory>

#include "events/particle_record.h"
#include "files/hepmc3_writer.h"

namespace velquon {

/// The description of a run: the attributes seed, type, field_kG, side_cm and energy_MeV, the name
/// of the one weight, and this program.
[[nodiscard]] std::shared_ptr<HepMC3::GenRunInfo> run_info_of(const Hepmc3Run& run);

/// A record as HepMC3 has it, in MeV and cm: the primary with status 4, what has daughters with 2,
/// the rest with 1, and a vertex where a particle decays or converts. The event lies where the
/// primary begins. Times are not known and 0.
/// \param number of the event
[[nodiscard]] HepMC3::GenEvent gen_event_of(std::uint64_t number, const ParticleRecord& record,
                                            const std::shared_ptr<HepMC3::GenRunInfo>& run);

}  // namespace velquon
