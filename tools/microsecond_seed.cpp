// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/microsecond_seed.h"

#include <chrono>

namespace velquon {

std::uint32_t microsecond_seed() {
  using std::chrono::duration_cast;
  using std::chrono::microseconds;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(duration_cast<microseconds>(now).count());
}

}  // namespace velquon
