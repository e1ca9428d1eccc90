// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "events/event_types.h"
#include "events/particle_record.h"

namespace velquon {

/// The tracks of an event, and what is known of where they come from.
struct EventTracks {
  std::vector<PlotPoint> points;
  std::optional<std::size_t> type;       ///< of a simulated event
  ChamberValues values;                  ///< under which a simulated event was made
  std::optional<ParticleRecord> record;  ///< what happened, of a simulated event
};

/// Tracks that were not made here, of which nothing but the points is known.
[[nodiscard]] std::shared_ptr<EventTracks> tracks_of(std::span<const PlotPoint> points);

/// Runs the decay chain of a kind of event.
/// \return null when the event is not handed over
[[nodiscard]] std::shared_ptr<const EventTracks> made_tracks(const EventType& type,
                                                             const ChamberValues& values);

/// The event that the windows show. It never changes: with another event, another value or another
/// name another one takes its place.
struct ShownEvent {
  std::shared_ptr<const EventTracks> tracks = std::make_shared<const EventTracks>();
  /// Chamber values that the windows tell, the field without the sign of a negative particle.
  ChamberValues values;
  std::string name;        ///< in the titles of the windows, UTF-8
  bool has_event = false;  ///< false before the first event of the program's run

  [[nodiscard]] std::span<const PlotPoint> points() const { return tracks->points; }
};

/// The line that tells an event's values, such as "B = 10 kG, T = 100 MeV, L = 5 m".
[[nodiscard]] std::string values_text(const ChamberValues& values);

/// Centimetres of the chamber per view unit of the projection at zoom 1.
[[nodiscard]] double projection_scaler(const ChamberValues& values);

}  // namespace velquon
