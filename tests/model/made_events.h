// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

#include "events/event_types.h"
#include "model/shown_event.h"
#include "tests/support/type_places.h"

namespace velquon::test {

inline constexpr ChamberValues usual{.B_field = 3.0F, .sides_cm = 500.0F, .kinetic_Mev = 60.0F};
inline constexpr ChamberValues without_field{
    .B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 60.0F};

/// The first event of a seed with the record of its particles; one that is not handed over fails the
/// test.
[[nodiscard]] inline EventTracks made(std::size_t type, const ChamberValues& values,
                                      unsigned seed) {
  std::srand(seed);
  TrackBuffer buffer;
  EventTracks tracks;
  ParticleRecord record;
  EXPECT_EQ(make_event(event_types()[type], values, buffer, &record), HandOver::yes);
  tracks.points.assign(buffer.points().begin(), buffer.points().end());
  tracks.type = type;
  tracks.values = values;
  tracks.record = std::move(record);
  return tracks;
}

}  // namespace velquon::test
