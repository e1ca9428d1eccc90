// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/chamber_values.h"
#include "events/event_types.h"
#include "model/shown_event.h"

namespace velquon {

/// Makes the first events of a seed, the same as those of `velquon-events` and of a program that is
/// started with this seed. The process-wide random stream is afterwards as it was before: what is
/// made next from it does not depend on this.
/// \param values as the controls hold them
/// \return `count` events in order; one that its chain does not hand over has neither points nor
///         particles
[[nodiscard]] std::vector<EventTracks> seeded_events(const EventType& type,
                                                     const ChamberValues& values,
                                                     std::uint32_t seed, std::size_t count);

}  // namespace velquon
