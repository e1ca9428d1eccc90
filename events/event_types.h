// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <span>
#include <string_view>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "events/hand_over.h"
#include "events/particle_record.h"

namespace velquon {

/// A chain of decays that lays its event into an empty buffer and, unless it is null, what happened
/// into an empty record.
using DecayChain = HandOver (*)(const ChamberValues& values, TrackBuffer& event,
                                ParticleRecord* record);

/// One kind of event. Its index in `event_types` is the event type, 0 to 5.
struct EventType {
  std::string_view key;   ///< name on a command line
  std::string_view name;  ///< name for people
  /// A negative particle is the positive chain in the opposite field.
  bool flips_field;
  DecayChain chain;
};

/// All kinds of events, in the order of their types.
[[nodiscard]] std::span<const EventType> event_types();

/// Runs a chain into an emptied buffer. An energy that is not above 0 or not finite makes an event
/// without points, which is handed over.
/// \param values the field is that of the chain, already flipped for a negative particle
/// \param record receives what happened, unless it is null; its `negative` is as the caller set it.
///               Empty for an event that is not handed over
HandOver run_chain(DecayChain chain, const ChamberValues& values, TrackBuffer& event,
                   ParticleRecord* record = nullptr);

/// Makes an event of a type under a person's values: `run_chain` with the field flipped if the type
/// wants it.
/// \param record receives what happened, unless it is null
HandOver make_event(const EventType& type, const ChamberValues& values, TrackBuffer& event,
                    ParticleRecord* record = nullptr);

}  // namespace velquon
