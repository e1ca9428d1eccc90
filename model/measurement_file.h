// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "files/csv_records.h"
#include "model/measurement.h"

namespace velquon {

/// The first line of a file of measurements.
inline constexpr std::string_view measurement_header =
    "number,event,quantity,plane,value,error,unit,field_kG,ending,longest_cm,note,file";

/// Writes rows as comma-separated values (RFC 4180, lines ended by CRLF), numbered from 1. A number
/// is as short as it can be and is read back as the same one. Texts are kept as they are, a note
/// that begins like a formula of a spreadsheet too.
[[nodiscard]] std::string encode_measurements(const MeasurementTable& rows);

using MeasurementFileResult = std::variant<MeasurementTable, TextError>;

/// Reads what `encode_measurements` writes. Everything is checked: names, units, numbers, which are
/// finite. The numbers of the rows are checked to be ones and not kept.
[[nodiscard]] MeasurementFileResult decode_measurements(std::string_view bytes);

}  // namespace velquon
