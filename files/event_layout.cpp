// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/event_layout.h"

#include <cstdint>

#include "files/byte_order.h"

namespace velquon {

namespace {

// Tag and count; then the point records; then nine slots of settings, of which four are written.
constexpr std::size_t count_offset = 1;
constexpr std::size_t points_offset = 3;
constexpr std::size_t slot_size = 8;
constexpr std::size_t trailer_size = 9 * slot_size;
constexpr std::size_t side_slot = 0 * slot_size;
constexpr std::size_t scale_slot = 1 * slot_size;
constexpr std::size_t field_slot = 4 * slot_size;
constexpr std::size_t energy_slot = 8 * slot_size;

constexpr std::size_t time_offset = 32;
constexpr std::size_t code_offset = 40;

constexpr std::size_t trailer_offset(std::size_t points) {
  return points_offset + WP_plot_point_size * points;
}

PlotPoint read_point(std::span<const std::byte> record) {
  PlotPoint point;
  for (std::size_t i = 0; i < point.coords.size(); ++i) {
    point.coords[i] = big_endian_double(record, i * sizeof(double));
  }
  // The time is left alone: not every writer stored one.
  point.code = big_endian_short(record, code_offset);
  return point;
}

void write_point(std::span<std::byte> record, const PlotPoint& point) {
  for (std::size_t i = 0; i < point.coords.size(); ++i) {
    put_big_endian(record, i * sizeof(double), point.coords[i]);
  }
  put_big_endian(record, time_offset, point.time);
  put_big_endian(record, code_offset, point.code);
}

}  // namespace

ReadResult read_event_layout(std::span<const std::byte> bytes) {
  if (bytes.size() < points_offset) {
    return Refusal::bad_data;
  }
  // In 16 bits a count of 0 wraps round and is refused like one that is too large or negative.
  const auto count = static_cast<std::uint16_t>(big_endian_short(bytes, count_offset));
  if (static_cast<std::uint16_t>(count - 1U) >= file_point_limit ||
      bytes.size() < trailer_offset(count) + trailer_size) {
    return Refusal::bad_data;
  }
  const auto trailer = bytes.subspan(trailer_offset(count), trailer_size);
  const double energy = big_endian_double(trailer, energy_slot);
  StoredEvent event;
  event.values = {.B_field = static_cast<float>(big_endian_double(trailer, field_slot)),
                  .sides_cm = static_cast<float>(big_endian_double(trailer, side_slot)),
                  .kinetic_Mev = static_cast<float>(energy)};
  // A tiny negative energy is a zero in single precision.
  if (energy < 0.0 || !is_chamber_possible(event.values)) {
    return Refusal::bad_data;
  }
  event.points.reserve(count);
  for (std::size_t k = 0; k < count; ++k) {
    event.points.push_back(read_point(bytes.subspan(trailer_offset(k), WP_plot_point_size)));
  }
  return event;
}

std::vector<std::byte> encode_event(std::span<const PlotPoint> points,
                                    const ChamberValues& values) {
  std::vector<std::byte> file(trailer_offset(points.size()) + trailer_size);
  const std::span<std::byte> bytes(file);
  file[0] = event_tag;
  put_big_endian(bytes, count_offset, static_cast<std::int16_t>(points.size()));
  for (std::size_t k = 0; k < points.size(); ++k) {
    write_point(bytes.subspan(trailer_offset(k), WP_plot_point_size), points[k]);
  }
  const auto trailer = bytes.subspan(trailer_offset(points.size()));
  const auto side = static_cast<double>(values.sides_cm);
  put_big_endian(trailer, side_slot, side);
  put_big_endian(trailer, scale_slot, CHAMBER_SIDE / side);
  put_big_endian(trailer, field_slot, static_cast<double>(values.B_field));
  put_big_endian(trailer, energy_slot, static_cast<double>(values.kinetic_Mev));
  return file;
}

}  // namespace velquon
