// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Operations that nothing of the program calls: reversals of bytes, which the readers make while they read, and
// the conversion of a point record that no file holds any more. Kept because others may know and call them.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "engine/event_record.h"

namespace velquon {

/// Unconditional byte reversals in place, whatever the byte order of the machine.
void pc_to_mac_short(std::span<std::byte, 2> bytes);
void pc_to_mac_long(std::span<std::byte, 4> bytes);
void pc_to_mac_float(std::span<std::byte, 4> bytes);
void pc_to_mac_double(std::span<std::byte, 8> bytes);

/// An older point record, with coordinates as signed 16.16 fixed-point numbers.
struct FixedPlotPoint {
  std::array<std::int32_t, 4> coords{};
  std::array<std::int16_t, 5> unused{};
  std::int16_t code = 0;
};
static_assert(sizeof(FixedPlotPoint) == 28);

/// A signed 16.16 fixed-point number as a floating-point one.
[[nodiscard]] double Fix2X(std::int32_t fixed);

/// Converts older point records; the destination's times are not written.
/// \param count records to convert, both spans hold at least as many; below 1 converts none
/// \return `count`
std::int16_t TranslatePlotPoints(std::span<const FixedPlotPoint> source,
                                 std::span<PlotPoint> destination, std::int16_t count);

}  // namespace velquon
