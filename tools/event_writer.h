// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <system_error>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "events/event_types.h"
#include "events/particle_record.h"
#include "tools/event_format.h"
#include "tools/output_target.h"

namespace velquon {

/// Under what the events of a run are made.
struct RunDescription {
  const EventType* type = nullptr;
  ChamberValues values;
  std::uint32_t seed = 0;
};

/// Writes the events of a run, one after another.
class EventWriter {
 public:
  EventWriter() = default;
  virtual ~EventWriter() = default;
  EventWriter(const EventWriter&) = delete;
  EventWriter& operator=(const EventWriter&) = delete;
  EventWriter(EventWriter&&) = delete;
  EventWriter& operator=(EventWriter&&) = delete;

  /// Adds an event.
  /// \param number from 1
  /// \param points none for an event that was not handed over
  /// \param record what happened; empty for an event that was not handed over
  virtual std::error_code write(std::uint64_t number, std::span<const PlotPoint> points,
                                const ParticleRecord& record) = 0;
  /// Writes what follows the last event.
  virtual std::error_code finish() = 0;
};

/// The writer of a format that puts a whole run into one target.
/// \param target stays alive as long as the writer
[[nodiscard]] std::unique_ptr<EventWriter> make_event_writer(EventFormat format,
                                                             OutputTarget& target,
                                                             const RunDescription& run);

}  // namespace velquon
