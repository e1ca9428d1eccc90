// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <variant>
#include <vector>

#include "engine/chamber_values.h"
#include "engine/event_record.h"

namespace velquon {

/// The most points that an event read from a file holds.
inline constexpr std::int16_t file_point_limit = 5000;

/// Size of one point record in every event file, bytes.
inline constexpr std::size_t WP_plot_point_size = 48;

/// An event as it is kept in a file, with the chamber values under which it was made.
struct StoredEvent {
  std::vector<PlotPoint> points;
  ChamberValues values;
  /// The file held a negative field and `values` its absolute value; the PC layout alone does so.
  bool field_was_negative = false;
};

/// Why a file is refused.
enum class Refusal : std::uint8_t {
  wrong_format,  ///< not an event file
  bad_data,      ///< an event file that cannot be read
};

/// What a reader makes of any bytes.
using ReadResult = std::variant<StoredEvent, Refusal>;

/// Reads an event file of any layout; the first byte says which. Reads nothing beyond the bytes and
/// ignores what follows the last field.
[[nodiscard]] ReadResult read_event_file(std::span<const std::byte> bytes);

/// The bytes of an event file in this program's own layout: 48 n + 75 for n points.
[[nodiscard]] std::vector<std::byte> encode_event(std::span<const PlotPoint> points,
                                                  const ChamberValues& values);

}  // namespace velquon
