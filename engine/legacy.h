// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Operations that nothing of the program calls: a merge of tracks by the times of their points, which the
// tracks here do not have, and a numbering of angles. Kept because others may know and call them.

#pragma once

#include <cstdint>
#include <span>

#include "engine/event_record.h"

namespace velquon {

/// Merges two tracks by the time of their points; on equal times `second` leads at the start and
/// the leading list afterwards. Arguments as for `combine_paths`.
void combine_paths_timed(std::span<const PlotPoint> first, std::span<const PlotPoint> second,
                         std::span<PlotPoint> out, std::int16_t& count, std::int16_t limit);

/// 1 when the time of a is greater than that of b, else 0.
[[nodiscard]] int compare_times(const PlotPoint& a, const PlotPoint& b);

/// Quadrant of an angle in radians, in this program's own numbering: 1 up to pi/2, 2 above it, 3
/// from 0 down to -pi/2, 4 below it.
[[nodiscard]] int get_quadrant(double angle);

}  // namespace velquon
