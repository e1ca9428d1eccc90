// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include "events/event_types.h"
#include "events/particle_record.h"

namespace velquon::test {

/// An event with what happened in it.
struct RecordedEvent {
  const EventType* type = nullptr;
  ChamberValues values;
  std::vector<PlotPoint> points;
  ParticleRecord record;
  HandOver handed_over = HandOver::yes;
};

/// The next event of the random stream.
[[nodiscard]] RecordedEvent next_recorded_event(const EventType& type, const ChamberValues& values);

/// The mass of a particle and its charge in units of that of the proton.
[[nodiscard]] double mass_of(int pdg_number);
[[nodiscard]] int charge_of(int pdg_number);

/// Whose points an event's are, found from the particles alone: a particle's points are followed by
/// the lists of its daughters, two such lists in turns.
[[nodiscard]] std::vector<std::uint8_t> owners_from_rows(const RecordedEvent& event);

/// The indices of a particle's points in the event.
[[nodiscard]] std::vector<std::size_t> points_of(const RecordedEvent& event, std::size_t row);

/// What is wrong with a record, judged by the laws of the decays and by the points; nothing when it
/// is empty.
[[nodiscard]] std::string problem_in(const RecordedEvent& event);

/// How many tracks the radius could be measured on well enough for a billionth, and how many not.
struct CircleCount {
  std::uint64_t exact = 0;
  std::uint64_t flat = 0;
};
/// Compares the radius and the sense of every track with those that follow from the record.
[[nodiscard]] std::string problem_in_circles(const RecordedEvent& event, CircleCount& count);

}  // namespace velquon::test
