// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/tracks.h"

#include <cmath>

namespace velquon::bench {

std::vector<PlotPoint> points_on_tracks(int points) {
  constexpr int points_per_track = 70;
  std::vector<PlotPoint> event;
  event.reserve(static_cast<std::size_t>(points));
  for (int i = 0; i < points; ++i) {
    const int track = i / points_per_track;
    const double along = i % points_per_track;
    const double phase = track + 0.1 * along;
    const double radius = 120.0 + 20.0 * (track % 5);
    const double height = -380.0 + std::fmod(37.0 * track, 400.0) + 5.0 * along;
    event.push_back({{150.0 * std::sin(2.0 * track) + radius * std::cos(phase),
                      150.0 * std::cos(3.0 * track) + radius * std::sin(phase), height, 1.0},
                     0.0,
                     static_cast<std::int16_t>(3 + track % 5)});
  }
  return event;
}

}  // namespace velquon::bench
