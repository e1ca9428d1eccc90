// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/csv_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "files/decimal_text.h"

namespace velquon {

namespace {

constexpr std::string_view header = "event,point,x,y,z,code\n";

// The buffer is handed on when the next line might not fit: two numbers of up to 20 digits, three
// coordinates, a code of up to six characters, five commas and the line's end.
constexpr std::size_t longest_csv_line = 2 * 20 + 3 * decimal_text_size + 6 + 5 + 1;
constexpr std::size_t buffer_size = 1U << 16U;

template <typename Integer>
char* write_integer(char* out, Integer value) {
  return std::to_chars(out, out + 20, value).ptr;
}

}  // namespace

CsvWriter::CsvWriter(ByteOutput output)
    : output_(std::move(output)), buffer_(buffer_size), used_(header.size()) {
  std::ranges::copy(header, buffer_.begin());
}

std::error_code CsvWriter::write(std::uint64_t event, std::span<const PlotPoint> points) {
  std::array<char, 20> number{};
  const std::string_view number_text(number.data(), write_integer(number.data(), event));

  for (std::size_t i = 0; i < points.size(); ++i) {
    if (buffer_size - used_ < longest_csv_line) {
      if (const std::error_code error = flush()) {
        return error;
      }
    }
    char* out = std::ranges::copy(number_text, buffer_.data() + used_).out;
    *out++ = ',';
    out = write_integer(out, i);
    const auto& [x, y, z, w] = points[i].coords;
    for (const double coordinate : {x, y, z}) {
      *out++ = ',';
      out = write_decimal(out, coordinate);
    }
    *out++ = ',';
    out = write_integer(out, points[i].code);
    *out++ = '\n';
    used_ = static_cast<std::size_t>(out - buffer_.data());
  }
  return {};
}

std::error_code CsvWriter::finish() {
  return flush();
}

std::error_code CsvWriter::flush() {
  const std::size_t size = std::exchange(used_, 0);
  return output_(std::as_bytes(std::span(buffer_.data(), size)));
}

}  // namespace velquon
