// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

#include "model/legend.h"
#include "widgets/legend.h"

namespace velquon {

/// Whether a picture shows the tracks in the colours of their codes or all in white.
enum class TrackColoring : bool { white, by_code };

/// The legend of an event in the user's language. Beside a white picture it has no colours, and no
/// lines that would tell nothing but a colour.
[[nodiscard]] std::vector<LegendLine> legend_lines(const std::vector<LegendEntry>& entries,
                                                   TrackColoring coloring);

/// The same as a sentence for who cannot see it: "Red: π⁻ Negative pion; Yellow: …"; empty for none.
[[nodiscard]] QString spoken_legend(const std::vector<LegendEntry>& entries,
                                    TrackColoring coloring);

}  // namespace velquon
