// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "engine/event_record.h"

namespace velquon {

/// Red, green and blue, 0 to 1.
using Color = std::array<float, 3>;

/// Colours of the track codes 3 to 7.
inline constexpr std::array<Color, 5> track_colors{{
    {1.0F, 0.0F, 0.0F},
    {1.0F, 1.0F, 0.2F},
    {0.0F, 0.737F, 0.0F},
    {0.0F, 0.0F, 1.0F},
    {0.2F, 0.8F, 1.0F},
}};

/// Colour of a track code; codes outside 3 to 7 share the last one.
[[nodiscard]] constexpr const Color& track_color(std::int16_t code) {
  return track_colors[track_color_row(code)];
}

}  // namespace velquon
