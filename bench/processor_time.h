// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <ctime>

namespace velquon::bench {

/// Seconds of processor time of this process, all its threads: the renderer's too. Other programs
/// on the machine change it far less than the time on the clock.
inline double processor_seconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

}  // namespace velquon::bench
