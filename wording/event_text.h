// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "model/event_words.h"
#include "wording/legend_text.h"

namespace velquon {

/// What a line about the shown event needs beside the event.
struct StatusFacts {
  std::uint64_t number = 0;             ///< of the event in this run
  std::optional<std::uint32_t> seed{};  ///< where one was given
  bool answers_shown = true;            ///< whether the kind of the event may be told
};

/// The line that tells of a shown event: kind or name, number, seed, points and tracks, or why there
/// are none.
[[nodiscard]] QString status_text(const ShownEvent& event, const EventInWords& words,
                                  const StatusFacts& facts);

/// The shown event for a person who cannot see it: its tracks, their lengths and which way they turn
/// on the xy plane.
/// \param coloring whether the picture tells the tracks by colours
[[nodiscard]] QString spoken_event(const EventInWords& words, TrackColoring coloring);

}  // namespace velquon
