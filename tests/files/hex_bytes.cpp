// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/files/hex_bytes.h"

#include <algorithm>
#include <stdexcept>

namespace velquon::test {

namespace {

constexpr std::string_view hex_digits = "0123456789ABCDEF";

unsigned value_of(char digit) {
  const auto value = hex_digits.find(digit);
  if (value == std::string_view::npos) {
    throw std::invalid_argument("not an upper-case hexadecimal digit");
  }
  return static_cast<unsigned>(value);
}

}  // namespace

std::vector<std::byte> hex_bytes(std::string_view digits) {
  std::string compact(digits);
  std::erase_if(compact, [](char c) { return c == ' ' || c == '\n'; });
  if (compact.size() % 2 != 0) {
    throw std::invalid_argument("half a byte");
  }
  std::vector<std::byte> bytes;
  for (std::size_t i = 0; i < compact.size(); i += 2) {
    bytes.push_back(static_cast<std::byte>(value_of(compact[i]) * 16U + value_of(compact[i + 1])));
  }
  return bytes;
}

std::string hex_text(std::span<const std::byte> bytes) {
  std::string text;
  for (const std::byte byte : bytes) {
    text += hex_digits[std::to_integer<unsigned>(byte) / 16U];
    text += hex_digits[std::to_integer<unsigned>(byte) % 16U];
  }
  return text;
}

void put_hex(std::vector<std::byte>& bytes, std::size_t offset, std::string_view digits) {
  const auto piece = hex_bytes(digits);
  if (offset + piece.size() > bytes.size()) {
    throw std::out_of_range("beyond the bytes");
  }
  std::ranges::copy(piece, bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

}  // namespace velquon::test
