// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "events/particle_record.h"

namespace velquon {

/// What there is to tell of one particle of an event.
struct EventRow {
  std::string_view name;             ///< of its kind
  std::string_view symbol;           ///< UTF-8
  std::string_view fate;             ///< in words
  int parent = -1;                   ///< row of the particle that it comes from, -1 for the primary
  double momentum = 0.0;             ///< MeV/c, at creation as all that follows
  double transverse_momentum = 0.0;  ///< MeV/c, across the field
  double kinetic_energy = 0.0;       ///< MeV
  std::optional<double> radius_cm;   ///< of the track; none for a straight one or without a charge
  /// From its creation to its end, along the track; none when the end is not known.
  std::optional<double> flight_cm;
  /// Mean length of flight before the decay, (p / m) c tau; none for what does not decay.
  std::optional<double> decay_length_cm;
  std::vector<std::size_t> points;  ///< indices of its points in the event, rising
};

/// What happened in an event, a row a particle in the order of the record.
/// \param values under which the event was made
[[nodiscard]] std::vector<EventRow> event_rows(const ParticleRecord& record,
                                               const ChamberValues& values);

/// The colour in which a track code is drawn, in words: "Red", "Yellow" and so on.
[[nodiscard]] std::string_view color_name(std::int16_t code);

/// What is seen of an event: the points of one track code.
struct VisibleTrack {
  std::int16_t code = 0;
  std::string_view color;           ///< in which it is drawn, in words
  std::vector<std::size_t> points;  ///< indices in the event, rising
};

/// The points of an event by their codes, in the order in which the codes first occur.
[[nodiscard]] std::vector<VisibleTrack> visible_tracks(std::span<const PlotPoint> points);

/// Whether a particle carries a charge; nothing for a number that no particle of an event has.
[[nodiscard]] std::optional<bool> is_charged(int pdg);

/// The length of a particle's flight along its track, cm; nothing when its end is not known.
[[nodiscard]] std::optional<double> flight_cm(const RecordedParticle& particle, bool charged,
                                              const ChamberValues& values);

}  // namespace velquon
