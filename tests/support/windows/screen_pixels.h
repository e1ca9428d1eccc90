// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

namespace velquon::test {

/// A rectangle of the X screen, in its pixels.
struct ScreenArea {
  int x = 0;
  int y = 0;
  unsigned width = 0;
  unsigned height = 0;
};

/// The inside of an X window on the screen.
ScreenArea area_of_window(unsigned long window);

/// The pixels of an area, 0xRRGGBB each, row by row from the top, asked for over a connection of
/// its own; empty when there is no such area.
std::vector<std::uint32_t> read_screen(const ScreenArea& area);

/// What an area of the screen shows at one moment.
struct ScreenLook {
  int count = -1;            ///< pixels of the colour that was asked for; -1: there is no such area
  std::uint64_t digest = 0;  ///< equal for equal pictures, and different for all that differ

  bool operator==(const ScreenLook&) const = default;
};

/// \param color 0xRRGGBB
ScreenLook look_at_screen(const ScreenArea& area, std::uint32_t color);

/// How many pixels of the screen have a colour; -1 when there is no such area.
/// \param color 0xRRGGBB
int count_screen_pixels(const ScreenArea& area, std::uint32_t color);

}  // namespace velquon::test
