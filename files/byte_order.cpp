// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/byte_order.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace velquon {

namespace {

template <typename Number>
using Bytes = std::array<std::byte, sizeof(Number)>;

/// Reads a number whose bytes stand in the given order.
template <std::endian order, typename Number>
Number number_at(std::span<const std::byte> bytes, std::size_t offset) {
  Bytes<Number> raw{};
  std::ranges::copy(bytes.subspan(offset, sizeof(Number)), raw.begin());
  if constexpr (order != std::endian::native) {
    std::ranges::reverse(raw);
  }
  return std::bit_cast<Number>(raw);
}

template <typename Number>
void put_number_big_endian(std::span<std::byte> bytes, std::size_t offset, Number value) {
  auto raw = std::bit_cast<Bytes<Number>>(value);
  if constexpr (std::endian::native != std::endian::big) {
    std::ranges::reverse(raw);
  }
  std::ranges::copy(raw, bytes.subspan(offset, sizeof(Number)).begin());
}

}  // namespace

std::int16_t big_endian_short(std::span<const std::byte> bytes, std::size_t offset) {
  return number_at<std::endian::big, std::int16_t>(bytes, offset);
}
double big_endian_double(std::span<const std::byte> bytes, std::size_t offset) {
  return number_at<std::endian::big, double>(bytes, offset);
}
std::int32_t little_endian_long(std::span<const std::byte> bytes, std::size_t offset) {
  return number_at<std::endian::little, std::int32_t>(bytes, offset);
}
double little_endian_double(std::span<const std::byte> bytes, std::size_t offset) {
  return number_at<std::endian::little, double>(bytes, offset);
}

void put_big_endian(std::span<std::byte> bytes, std::size_t offset, std::int16_t value) {
  put_number_big_endian(bytes, offset, value);
}
void put_big_endian(std::span<std::byte> bytes, std::size_t offset, double value) {
  put_number_big_endian(bytes, offset, value);
}

}  // namespace velquon
