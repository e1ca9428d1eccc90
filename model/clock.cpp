// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/clock.h"

#include <chrono>

namespace velquon {

namespace {

std::uint32_t high_word(std::uint64_t time) {
  constexpr int word_bits = 32;
  return static_cast<std::uint32_t>(time >> word_bits);
}

}  // namespace

std::uint64_t Microseconds() {
  using std::chrono::duration_cast;
  using std::chrono::microseconds;
  const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(duration_cast<microseconds>(since_start).count());
}

void pause_for_microseconds(std::int32_t microseconds, const Clock& clock) {
  std::uint64_t start = clock();
  std::int32_t elapsed = 0;
  do {
    const std::uint64_t now = clock();
    if (high_word(now) != high_word(start)) {
      start = clock();
    }
    elapsed = static_cast<std::int32_t>(static_cast<std::uint32_t>(now) -
                                        static_cast<std::uint32_t>(start));
  } while (elapsed <= microseconds);
}

}  // namespace velquon
