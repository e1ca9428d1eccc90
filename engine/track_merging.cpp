// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/track_merging.h"

#include "engine/alternation.h"

namespace velquon {

void combine_paths(std::span<const PlotPoint> first, std::span<const PlotPoint> second,
                   std::span<PlotPoint> out, std::int16_t& count, std::int16_t limit) {
  count = alternate(first, second, out, limit);
}

}  // namespace velquon
