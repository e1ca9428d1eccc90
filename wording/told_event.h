// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

#include "wording/event_text.h"

namespace velquon {

/// All that a window tells of the shown event beside its picture.
struct ToldEvent {
  std::vector<LegendLine> legend;
  QString spoken_legend;
  QString status;
  QString spoken;  ///< the picture in words
};

/// What a window tells of an event.
/// \param coloring of the window's picture
[[nodiscard]] ToldEvent told_event(const ShownEvent& event, const StatusFacts& facts,
                                   TrackColoring coloring);

// What a window gives room for: more is shown without names or read in the tool tip.

/// The legend of a chain of three particles.
[[nodiscard]] std::vector<LegendLine> usual_legend(TrackColoring coloring);
/// A status text with as much to tell as there is of one event.
/// \param seed of the run, where it is told
[[nodiscard]] QString long_status(std::optional<std::uint32_t> seed = std::nullopt);

}  // namespace velquon
