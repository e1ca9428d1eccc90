// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/byte_order.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/files/hex_bytes.h"

namespace velquon {
namespace {

using test::hex_bytes;
using test::hex_text;

TEST(NumbersInFiles, BigEndianOnesHaveTheirHighByteFirst) {
  const auto bytes = hex_bytes("FF 0102 FFFE 8000 3FF8000000000000 C000000000000000");
  EXPECT_EQ(big_endian_short(bytes, 1), 258);
  EXPECT_EQ(big_endian_short(bytes, 3), -2);
  EXPECT_EQ(big_endian_short(bytes, 5), -32768);
  EXPECT_EQ(big_endian_double(bytes, 7), 1.5);
  EXPECT_EQ(big_endian_double(bytes, 15), -2.0);
}

TEST(NumbersInFiles, LittleEndianOnesHaveTheirLowByteFirst) {
  const auto bytes = hex_bytes("FF 01000100 FEFFFFFF 000000000000F83F");
  EXPECT_EQ(little_endian_long(bytes, 1), 65537);
  EXPECT_EQ(little_endian_long(bytes, 5), -2);
  EXPECT_EQ(little_endian_double(bytes, 9), 1.5);
}

TEST(NumbersInFiles, AreStoredBigEndian) {
  std::vector<std::byte> bytes(12, std::byte{0xEE});
  put_big_endian(bytes, 1, std::int16_t{-2});
  put_big_endian(bytes, 3, 1.5);
  EXPECT_EQ(hex_text(bytes), "EEFFFE3FF8000000000000EE");
}

}  // namespace
}  // namespace velquon
