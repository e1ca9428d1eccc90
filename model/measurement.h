// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "model/reading.h"

namespace velquon {

/// How the track ended whose length was measured.
enum class Ending : std::uint8_t {
  unknown,  ///< nothing is noted; its length counts as one to a decay
  decayed,
  left,  ///< the chamber, or was cut: it would have been longer
};

/// The word for an ending in tables and files, empty for an unknown one; in the order of Ending.
inline constexpr std::array<std::string_view, 3> ending_names{"", "decayed", "left"};

constexpr std::string_view name_of(Ending ending) {
  return ending_names[static_cast<std::size_t>(ending)];
}

/// A number that is not known.
inline constexpr double unknown_number = std::numeric_limits<double>::quiet_NaN();

/// One row of the table of measurements. Texts are UTF-8.
struct Measurement {
  std::string event;  ///< in which event it was measured
  Quantity quantity = Quantity::length;
  std::string plane;              ///< "xy", "xz" or "yz"; empty for none
  double value = 0.0;             ///< in the quantity's unit, finite
  double error = unknown_number;  ///< one standard deviation, or NaN
  double field_kG = 0.0;
  Ending ending = Ending::unknown;
  double longest_cm = unknown_number;  ///< the longest length that could have been seen, or NaN
  std::string note;                    ///< the user's own words
  std::string file;                    ///< name of the file that it was added from; empty for own
};

/// Whether two rows hold the same; an unknown number is like another one.
[[nodiscard]] bool are_alike(const Measurement& left, const Measurement& right);

using MeasurementTable = std::vector<Measurement>;

}  // namespace velquon
