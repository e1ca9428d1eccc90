// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/event_file.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "tests/files/hex_bytes.h"

namespace velquon {
namespace {

using Bytes = std::vector<std::byte>;

/// The refusal of a result, or nothing when an event was read.
std::optional<Refusal> refusal_of(const ReadResult& result) {
  const auto* refusal = std::get_if<Refusal>(&result);
  return refusal == nullptr ? std::nullopt : std::optional(*refusal);
}

/// An own file of one point at (1.5, 0, 0) in a chamber of 500 cm.
Bytes own_file() {
  Bytes bytes(123);
  test::put_hex(bytes, 0, "50 0001 3FF8000000000000");
  test::put_hex(bytes, 51, "407F400000000000");
  return bytes;
}

/// A PC file of one point at (1.5, 0, 0) in a chamber of 500 cm.
Bytes pc_file() {
  Bytes bytes(101);
  test::put_hex(bytes, 0, "57");
  test::put_hex(bytes, 9, "0000000000407F40");
  test::put_hex(bytes, 49, "01000000 000000000000F83F");
  return bytes;
}

TEST(EventFile, TheFirstByteChoosesTheLayout) {
  for (const Bytes& file : {own_file(), pc_file()}) {
    const auto result = read_event_file(file);
    ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
    EXPECT_EQ(std::get<StoredEvent>(result).points.at(0).coords[0], 1.5);
    EXPECT_EQ(std::get<StoredEvent>(result).values.sides_cm, 500.0F);
  }
}

TEST(EventFile, AnyOtherFirstByteIsTheWrongFormat) {
  for (unsigned first = 0; first < 256; ++first) {
    for (Bytes file : {own_file(), pc_file(), Bytes(1)}) {
      file[0] = static_cast<std::byte>(first);
      const auto refusal = refusal_of(read_event_file(file));
      const bool known = first == 'P' || first == 'W';
      EXPECT_EQ(refusal == Refusal::wrong_format, !known) << first << " of " << file.size();
    }
  }
}

TEST(EventFile, TheTagIIsTheWrongFormat) {
  Bytes file = own_file();
  file[0] = std::byte{'I'};
  EXPECT_EQ(refusal_of(read_event_file(file)), Refusal::wrong_format);
}

TEST(EventFile, AnEmptyFileIsTheWrongFormat) {
  EXPECT_EQ(refusal_of(read_event_file({})), Refusal::wrong_format);
}

TEST(EventFile, ATagAloneIsBadData) {
  EXPECT_EQ(refusal_of(read_event_file(test::hex_bytes("50"))), Refusal::bad_data);
  EXPECT_EQ(refusal_of(read_event_file(test::hex_bytes("57"))), Refusal::bad_data);
}

TEST(EventFile, AFileCutAnywhereBehindItsTagIsBadData) {
  for (const Bytes& file : {own_file(), pc_file()}) {
    for (std::size_t size = 1; size < file.size(); ++size) {
      EXPECT_EQ(refusal_of(read_event_file(std::span(file).first(size))), Refusal::bad_data);
    }
  }
}

}  // namespace
}  // namespace velquon
