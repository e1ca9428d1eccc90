// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/npy_writer.h"

#include <bit>
#include <cstring>
#include <string>

namespace velquon {

namespace {

static_assert(std::endian::native == std::endian::little, "the header says little-endian");

constexpr std::size_t written_at_once = 1U << 16U;
constexpr std::size_t row_size = 8 + 4 + 3 * 8 + 2;
constexpr std::size_t header_size = 192;  // a multiple of 64, as NumPy pads its own

template <typename Number>
std::byte* put(std::byte* out, Number number) {
  std::memcpy(out, &number, sizeof number);
  return out + sizeof number;
}

std::vector<std::byte> header_of(std::uint64_t rows) {
  std::string text =
      "{'descr': [('event', '<i8'), ('point', '<i4'), ('x', '<f8'), ('y', '<f8'), ('z', '<f8'), "
      "('code', '<i2')], 'fortran_order': False, 'shape': (" +
      std::to_string(rows) + ",), }";
  constexpr std::size_t text_size = header_size - 10;
  text.resize(text_size - 1, ' ');
  text += '\n';
  std::string header("\x93NUMPY\x01\x00", 8);
  header += static_cast<char>(text_size % 256);
  header += static_cast<char>(text_size / 256);
  header += text;
  const auto bytes = std::as_bytes(std::span(header));
  return {bytes.begin(), bytes.end()};
}

}  // namespace

NpyWriter::NpyWriter(OutputTarget& target) : target_(target), bytes_(header_of(0)) {}

std::error_code NpyWriter::write(std::uint64_t number, std::span<const PlotPoint> points,
                                 const ParticleRecord& /*record*/) {
  const std::size_t before = bytes_.size();
  bytes_.resize(before + points.size() * row_size);
  std::byte* out = bytes_.data() + before;
  for (std::size_t i = 0; i < points.size(); ++i) {
    out = put(out, static_cast<std::int64_t>(number));
    out = put(out, static_cast<std::int32_t>(i));
    for (std::size_t axis = 0; axis < 3; ++axis) {
      out = put(out, points[i].coords[axis]);
    }
    out = put(out, points[i].code);
  }
  rows_ += points.size();
  return bytes_.size() < written_at_once ? std::error_code() : flush();
}

std::error_code NpyWriter::finish() {
  if (const std::error_code error = flush()) {
    return error;
  }
  return target_.overwrite(0, header_of(rows_));
}

std::error_code NpyWriter::flush() {
  const std::error_code error = target_.bytes()(bytes_);
  bytes_.clear();
  return error;
}

}  // namespace velquon
