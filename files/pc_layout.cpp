// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/pc_layout.h"

#include <cmath>

#include "files/byte_order.h"

namespace velquon {

namespace {

// Offsets from the end of the tag; the header's other fields are not read.
constexpr std::size_t pc_side_offset = 8;
constexpr std::size_t pc_field_offset = 16;
constexpr std::size_t pc_energy_offset = 24;
constexpr std::size_t pc_count_offset = 48;
constexpr std::size_t pc_points_offset = 52;

constexpr std::size_t pc_time_offset = 32;
constexpr std::size_t pc_code_offset = 40;

constexpr std::int32_t pc_end_code = 7;
constexpr std::int16_t end_code = 2;

}  // namespace

void pc_to_mac_plot_point(PlotPoint& destination,
                          std::span<const std::byte, WP_plot_point_size> source) {
  for (std::size_t i = 0; i < destination.coords.size(); ++i) {
    destination.coords[i] = little_endian_double(source, i * sizeof(double));
  }
  destination.time = little_endian_double(source, pc_time_offset);
  const std::int32_t code = little_endian_long(source, pc_code_offset);
  destination.code = code == pc_end_code ? end_code : static_cast<std::int16_t>(code & 0xFFFF);
}

ReadResult readWinData(std::size_t tag_length, std::span<const std::byte> bytes) {
  if (bytes.size() < tag_length + pc_points_offset) {
    return Refusal::bad_data;
  }
  const auto body = bytes.subspan(tag_length);
  const std::int32_t count = little_endian_long(body, pc_count_offset);
  if (count < 1 || count > file_point_limit) {
    return Refusal::bad_data;
  }
  const auto records = body.subspan(pc_points_offset);
  const auto points = static_cast<std::size_t>(count);
  if (records.size() < points * WP_plot_point_size) {
    return Refusal::bad_data;
  }
  const double field = little_endian_double(body, pc_field_offset);
  const double energy = little_endian_double(body, pc_energy_offset);
  StoredEvent event;
  event.field_was_negative = field < 0.0;
  event.values = {
      .B_field = static_cast<float>(event.field_was_negative ? std::fabs(field) : field),
      .sides_cm = static_cast<float>(little_endian_double(body, pc_side_offset)),
      .kinetic_Mev = static_cast<float>(energy)};
  // A tiny negative energy is a zero in single precision.
  if (energy < 0.0 || !is_chamber_possible(event.values)) {
    return Refusal::bad_data;
  }
  event.points.resize(points);
  for (std::size_t k = 0; k < points; ++k) {
    pc_to_mac_plot_point(event.points[k],
                         records.subspan(k * WP_plot_point_size).first<WP_plot_point_size>());
  }
  return event;
}

}  // namespace velquon
