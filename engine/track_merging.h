// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>

#include "engine/event_record.h"

namespace velquon {

/// Merges two tracks by alternation, so that both grow side by side in a replay. The list with
/// fewer points leads (`first` on equal counts); what is left of the longer one follows.
/// \param out   receives the merged list; at least the points written
/// \param count receives the number of points written
/// \param limit the most points that may be written
void combine_paths(std::span<const PlotPoint> first, std::span<const PlotPoint> second,
                   std::span<PlotPoint> out, std::int16_t& count, std::int16_t limit);

}  // namespace velquon
