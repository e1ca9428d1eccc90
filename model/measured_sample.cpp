// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/measured_sample.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velquon {

std::vector<Quantity> quantities_in(const MeasurementTable& rows) {
  std::array<bool, quantity_names.size()> is_there{};
  for (const Measurement& row : rows) {
    is_there[static_cast<std::size_t>(row.quantity)] = true;
  }
  std::vector<Quantity> quantities;
  for (std::size_t i = 0; i < is_there.size(); ++i) {
    if (is_there[i]) {
      quantities.push_back(static_cast<Quantity>(i));
    }
  }
  return quantities;
}

MeasuredSample sample_of(const MeasurementTable& rows, Quantity quantity) {
  MeasuredSample sample;
  for (const Measurement& row : rows) {
    if (row.quantity != quantity) {
      continue;
    }
    const bool left = row.ending == Ending::left;
    // A longest length that is wrong by rounding is none.
    const bool has_longest = std::isfinite(row.longest_cm) && row.longest_cm >= row.value;
    sample.lengths.push_back(
        {.length = row.value,
         .decayed = !left,
         .longest = has_longest ? row.longest_cm : std::numeric_limits<double>::infinity()});
    if (left) {
      ++sample.left;
    } else {
      sample.values.push_back(row.value);
    }
  }
  return sample;
}

}  // namespace velquon
