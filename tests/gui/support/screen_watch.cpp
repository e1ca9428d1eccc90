// Looks at a rectangle of the screen again and again and prints, whenever it changes, how many of
// its pixels have a colour. Ends when its standard input does.
//   screen_watch X Y WIDTH HEIGHT RRGGBB

#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <span>

#include "tests/gui/support/screen_pixels.h"

namespace {

bool input_ended() {
  pollfd input{STDIN_FILENO, POLLIN, 0};
  char byte = 0;
  return poll(&input, 1, 1) > 0 && read(STDIN_FILENO, &byte, 1) <= 0;
}

void watch(const velquon::test::ScreenArea& area, unsigned long color) {
  constexpr int nothing_yet = -2;
  int shown = nothing_yet;
  bool is_last = false;
  while (!is_last) {
    // The last look comes after the end was asked for.
    is_last = input_ended();
    const int count = velquon::test::count_screen_pixels(area, color);
    if (count != shown) {
      shown = count;
      std::printf("%d\n", count);
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
        std::strtoul(arguments[5], nullptr, hexadecimal));
  return 0;
}
