// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/legacy.h"

#include "engine/alternation.h"
#include "engine/kinematics.h"

namespace velquon {

void combine_paths_timed(std::span<const PlotPoint> first, std::span<const PlotPoint> second,
                         std::span<PlotPoint> out, std::int16_t& count, std::int16_t limit) {
  const bool second_leads =
      first.empty() || (!second.empty() && compare_times(second.front(), first.front()) == 0);
  const auto leading = second_leads ? second : first;
  auto other = second_leads ? first : second;
  LimitedWriter<PlotPoint> writer(out, limit);
  for (std::size_t i = 0; i < leading.size(); ++i) {
    writer.write(leading[i]);
    while (!other.empty() && i + 1 < leading.size() &&
           compare_times(leading[i + 1], other.front()) == 1) {
      writer.write(other.front());
      other = other.subspan(1);
    }
  }
  writer.write(other);
  count = writer.written();
}

int compare_times(const PlotPoint& a, const PlotPoint& b) {
  return a.time > b.time ? 1 : 0;
}

int get_quadrant(double angle) {
  if (angle > 0.0) {
    return angle > PI / 2 ? 2 : 1;
  }
  return angle < -PI / 2 ? 4 : 3;
}

}  // namespace velquon
