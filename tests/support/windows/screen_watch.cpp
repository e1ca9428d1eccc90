// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Looks at a rectangle of the screen again and again and prints, whenever it changes, how many of
// its pixels have a colour, and a digest of the picture. Ends when its standard input does.
//   screen_watch X Y WIDTH HEIGHT RRGGBB

#include <poll.h>
#include <unistd.h>

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>

#include "tests/support/windows/screen_pixels.h"

namespace {

using velquon::test::ScreenLook;

bool input_ended() {
  pollfd input{STDIN_FILENO, POLLIN, 0};
  char byte = 0;
  return poll(&input, 1, 1) > 0 && read(STDIN_FILENO, &byte, 1) <= 0;
}

void watch(const velquon::test::ScreenArea& area, std::uint32_t color) {
  std::optional<ScreenLook> shown;
  bool is_last = false;
  while (!is_last) {
    // The last look comes after the end was asked for.
    is_last = input_ended();
    const ScreenLook look = velquon::test::look_at_screen(area, color);
    if (look != shown) {
      shown = look;
      std::printf("%d %" PRIu64 "\n", look.count, look.digest);
      std::fflush(stdout);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  constexpr int decimal = 10;
  constexpr int hexadecimal = 16;
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  if (arguments.size() != 6) {
    std::fputs("usage: screen_watch X Y WIDTH HEIGHT RRGGBB\n", stderr);
    return 2;
  }
  const auto number = [&](std::size_t i) {
    return static_cast<int>(std::strtol(arguments[i], nullptr, decimal));
  };
  watch({number(1), number(2), static_cast<unsigned>(number(3)), static_cast<unsigned>(number(4))},
        static_cast<std::uint32_t>(std::strtoul(arguments[5], nullptr, hexadecimal)));
  return 0;
}
