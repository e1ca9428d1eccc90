// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/legacy.h"

#include <algorithm>

namespace velquon {

void pc_to_mac_short(std::span<std::byte, 2> bytes) {
  std::ranges::reverse(bytes);
}
void pc_to_mac_long(std::span<std::byte, 4> bytes) {
  std::ranges::reverse(bytes);
}
void pc_to_mac_float(std::span<std::byte, 4> bytes) {
  std::ranges::reverse(bytes);
}
void pc_to_mac_double(std::span<std::byte, 8> bytes) {
  std::ranges::reverse(bytes);
}

double Fix2X(std::int32_t fixed) {
  return fixed / 65536.0;
}

std::int16_t TranslatePlotPoints(std::span<const FixedPlotPoint> source,
                                 std::span<PlotPoint> destination, std::int16_t count) {
  for (std::int16_t i = 0; i < count; ++i) {
    const auto k = static_cast<std::size_t>(i);
    std::ranges::transform(source[k].coords, destination[k].coords.begin(), Fix2X);
    destination[k].code = source[k].code;
  }
  return count;
}

}  // namespace velquon
