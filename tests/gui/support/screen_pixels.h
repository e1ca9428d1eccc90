#pragma once

namespace velquon::test {

/// A rectangle of the X screen.
struct ScreenArea {
  int x = 0;
  int y = 0;
  unsigned width = 0;
  unsigned height = 0;
};

/// How many pixels of the screen have a colour, asked for over a connection of its own; -1 when
/// there is no such area.
/// \param color 0xRRGGBB
int count_screen_pixels(const ScreenArea& area, unsigned long color);

}  // namespace velquon::test
