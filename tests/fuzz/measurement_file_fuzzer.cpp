// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A fuzzer of the reader of measurements: any bytes are either refused with a line and a reason, or
// read as rows that can be written down and are the same when they are read again.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <variant>

#include "model/measurement_file.h"

namespace {

using velquon::MeasurementTable;
using velquon::TextError;

void require(bool holds, const char* what) {
  if (!holds) {
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
  }
}

void check_rows(const MeasurementTable& rows) {
  for (const velquon::Measurement& row : rows) {
    require(std::isfinite(row.value) && std::isfinite(row.field_kG), "values are finite");
    require(std::isnan(row.error) || (std::isfinite(row.error) && row.error >= 0.0),
            "an error is finite and not negative");
    require(std::isnan(row.longest_cm) || (std::isfinite(row.longest_cm) && row.longest_cm > 0.0),
            "a longest length is finite and above 0");
  }
  const std::string written = velquon::encode_measurements(rows);
  const auto again = velquon::decode_measurements(written);
  const auto* const read = std::get_if<MeasurementTable>(&again);
  require(read != nullptr && read->size() == rows.size(), "what is written can be read");
  for (std::size_t i = 0; i < rows.size(); ++i) {
    require(velquon::are_alike(rows[i], (*read)[i]), "what is read back is the same row");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto result = velquon::decode_measurements(bytes);
  if (const auto* const error = std::get_if<TextError>(&result)) {
    require(!error->reason.empty(), "a refusal has a reason");
  } else {
    check_rows(std::get<MeasurementTable>(result));
  }
  return 0;
}
