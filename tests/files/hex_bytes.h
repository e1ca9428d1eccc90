// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velquon::test {

/// The bytes of hexadecimal digits, two to a byte; blanks and line ends between them do not count.
[[nodiscard]] std::vector<std::byte> hex_bytes(std::string_view digits);

/// The hexadecimal digits of bytes, for a readable failure.
[[nodiscard]] std::string hex_text(std::span<const std::byte> bytes);

/// Puts the bytes of hexadecimal digits at an offset.
void put_hex(std::vector<std::byte>& bytes, std::size_t offset, std::string_view digits);

}  // namespace velquon::test
