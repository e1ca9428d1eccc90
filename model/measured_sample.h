// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

#include "model/decay_fit.h"
#include "model/measurement.h"

namespace velquon {

/// The quantities that a table holds, each once, in the order of Quantity.
[[nodiscard]] std::vector<Quantity> quantities_in(const MeasurementTable& rows);

/// The rows of one quantity, for a histogram and a fit.
struct MeasuredSample {
  std::vector<double> values;              ///< all but those of tracks that left the chamber
  std::vector<LengthObservation> lengths;  ///< all
  std::size_t left = 0;                    ///< tracks that left
};
[[nodiscard]] MeasuredSample sample_of(const MeasurementTable& rows, Quantity quantity);

}  // namespace velquon
