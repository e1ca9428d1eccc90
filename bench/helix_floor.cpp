// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/helix_floor.h"

#include <cmath>
#include <cstdlib>

namespace velquon::bench {

std::size_t store_points(std::span<PlotPoint> out, double angle, double turn, double bound) {
  std::size_t stored = 0;
  for (PlotPoint& point : out) {
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    if (std::fabs(sine) > bound || std::fabs(cosine) > bound || std::fabs(angle) > bound) {
      break;
    }
    point = {{sine, cosine, angle, 1.0}, 0.0, 3};
    ++stored;
    angle += turn;
    // A draw below 0 does not happen; asking for it keeps the draw.
    if (std::rand() < 0) {
      break;
    }
  }
  return stored;
}

}  // namespace velquon::bench
