// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/event_bytes.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "tests/support/windows/application_fixture.h"

namespace velquon::test {

namespace {

/// The low bytes of a number, the least first.
QByteArray low_bytes_first(std::uint64_t number, int count) {
  QByteArray bytes;
  for (int i = 0; i < count; ++i) {
    bytes.append(static_cast<char>(number >> (8 * i) & 0xFFU));
  }
  return bytes;
}

QByteArray reversed(QByteArray bytes) {
  std::ranges::reverse(bytes);
  return bytes;
}

QByteArray zeros(int count) {
  return {count, '\0'};
}

QByteArray event_record(const PlotPoint& point) {
  QByteArray record;
  for (const double coordinate : point.coords) {
    record += big_endian(coordinate);
  }
  return record + big_endian(point.time) + big_endian(point.code) + zeros(6);
}

QByteArray pc_record(const PlotPoint& point) {
  QByteArray record;
  for (const double coordinate : point.coords) {
    record += little_endian(coordinate);
  }
  return record + little_endian(point.time) + little_endian(std::int32_t{point.code}) + zeros(4);
}

}  // namespace

QByteArray hex(const char* digits) {
  return QByteArray::fromHex(digits);
}

QByteArray little_endian(double value) {
  return low_bytes_first(std::bit_cast<std::uint64_t>(value), 8);
}

QByteArray big_endian(double value) {
  return reversed(little_endian(value));
}

QByteArray big_endian(std::int16_t value) {
  return reversed(low_bytes_first(static_cast<std::uint16_t>(value), 2));
}

QByteArray little_endian(std::int32_t value) {
  return low_bytes_first(static_cast<std::uint32_t>(value), 4);
}

QByteArray event_file(std::int16_t count, const std::vector<PlotPoint>& points,
                      const FileSettings& settings) {
  QByteArray file = "P" + big_endian(count);
  for (const PlotPoint& point : points) {
    file += event_record(point);
  }
  return file + big_endian(settings.side_cm) + big_endian(800.0 / settings.side_cm) + zeros(16) +
         big_endian(settings.field_kG) + zeros(24) + big_endian(settings.energy_MeV);
}

QByteArray event_file(const std::vector<PlotPoint>& points, const FileSettings& settings) {
  return event_file(static_cast<std::int16_t>(points.size()), points, settings);
}

QByteArray pc_file(std::int32_t count, const std::vector<PlotPoint>& points,
                   const FileSettings& settings) {
  QByteArray file = "W" + zeros(8) + little_endian(settings.side_cm) +
                    little_endian(settings.field_kG) + little_endian(settings.energy_MeV) +
                    zeros(16) + little_endian(count);
  for (const PlotPoint& point : points) {
    file += pc_record(point);
  }
  return file;
}

QByteArray pc_file(const std::vector<PlotPoint>& points, const FileSettings& settings) {
  return pc_file(static_cast<std::int32_t>(points.size()), points, settings);
}

std::vector<PlotPoint> spiral(int count) {
  std::vector<PlotPoint> points;
  for (int i = 0; i < count; ++i) {
    const double part = static_cast<double>(i) / count;
    const double angle = 20.0 * part;
    points.push_back(point_at(300.0 * part * std::cos(angle), 300.0 * part * std::sin(angle),
                              600.0 * part - 300.0, static_cast<std::int16_t>(3 + i % 5)));
  }
  return points;
}

}  // namespace velquon::test
