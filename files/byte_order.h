// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace velquon {

/// Numbers at an offset of a file's bytes; the bytes must reach that far.
[[nodiscard]] std::int16_t big_endian_short(std::span<const std::byte> bytes, std::size_t offset);
[[nodiscard]] double big_endian_double(std::span<const std::byte> bytes, std::size_t offset);
[[nodiscard]] std::int32_t little_endian_long(std::span<const std::byte> bytes, std::size_t offset);
[[nodiscard]] double little_endian_double(std::span<const std::byte> bytes, std::size_t offset);

/// Stores a number at an offset; the bytes must reach that far.
void put_big_endian(std::span<std::byte> bytes, std::size_t offset, std::int16_t value);
void put_big_endian(std::span<std::byte> bytes, std::size_t offset, double value);

}  // namespace velquon
