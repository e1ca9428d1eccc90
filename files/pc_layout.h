// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/event_file.h"

namespace velquon {

/// First byte of an event file of the PC edition, which is little-endian.
inline constexpr std::byte pc_tag{'W'};

/// Reads an event file of the PC edition.
/// \param tag_length bytes ahead of the header; 0 for the same layout without a tag
[[nodiscard]] ReadResult readWinData(std::size_t tag_length, std::span<const std::byte> bytes);

/// Converts one point record of the PC edition, 48 bytes. Its code 7 becomes 2; of every other code
/// the low 16 bits are taken.
void pc_to_mac_plot_point(PlotPoint& destination,
                          std::span<const std::byte, WP_plot_point_size> source);

}  // namespace velquon
