// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

#include "engine/event_record.h"

namespace velquon::test {

// Event files put together byte by byte, by rules of their own.

/// Bytes written in hexadecimal digits; blanks are for the reader.
QByteArray hex(const char* digits);

QByteArray big_endian(double value);
QByteArray little_endian(double value);
QByteArray big_endian(std::int16_t value);
QByteArray little_endian(std::int32_t value);

/// Settings of a file, in the widths that files have.
struct FileSettings {
  double field_kG = 2.0;
  double side_cm = 400.0;
  double energy_MeV = 0.5;
};

/// A whole file of this program: tag, count, records and trailer.
/// \param count what the file says; the points that follow may be more or fewer
QByteArray event_file(std::int16_t count, const std::vector<PlotPoint>& points,
                      const FileSettings& settings = {});
QByteArray event_file(const std::vector<PlotPoint>& points, const FileSettings& settings = {});

/// A whole file of the PC edition.
QByteArray pc_file(std::int32_t count, const std::vector<PlotPoint>& points,
                   const FileSettings& settings = {});
QByteArray pc_file(const std::vector<PlotPoint>& points, const FileSettings& settings = {});

/// Points on a spiral through the chamber, with all the codes that have a colour.
std::vector<PlotPoint> spiral(int count);

}  // namespace velquon::test
