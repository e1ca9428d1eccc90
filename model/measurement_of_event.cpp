// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/measurement_of_event.h"

namespace velquon {

namespace {

const char* name_of(ProjectionPlane plane) {
  switch (plane) {
    case ProjectionPlane::xy:
      return "xy";
    case ProjectionPlane::xz:
      return "xz";
    case ProjectionPlane::yz:
      return "yz";
  }
  return "";
}

}  // namespace

MeasurementTable rows_of_readings(std::span<const Reading> readings, ProjectionPlane plane,
                                  const ShownEvent& shown, const std::string& event) {
  MeasurementTable rows;
  for (const Reading& reading : readings) {
    const bool is_length =
        reading.quantity == Quantity::length || reading.quantity == Quantity::decay_length;
    rows.push_back(
        {.event = event,
         .quantity = reading.quantity,
         .plane = name_of(plane),
         .value = reading.value,
         .error = reading.error,
         .field_kG = static_cast<double>(shown.values.B_field),
         .ending = Ending::unknown,
         .longest_cm = is_length ? static_cast<double>(shown.values.sides_cm) : unknown_number,
         .note = {},
         .file = {}});
  }
  return rows;
}

}  // namespace velquon
