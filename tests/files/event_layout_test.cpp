// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/event_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/files/hex_bytes.h"
#include "tests/files/refusals.h"
#include "tests/support/case_name.h"

namespace velquon {
namespace {

using test::hex_bytes;
using test::hex_text;
using test::put_hex;
using test::refused;
using Bytes = std::vector<std::byte>;

// A file of one point, written down byte by byte.
constexpr auto one_point_file =
    "50 0001"            // 'P', one point
    "3FF8000000000000"   // x = 1.5
    "C000000000000000"   // y = -2
    "3FB999999999999A"   // z = 0.1
    "3FF0000000000000"   // 1
    "3FD0000000000000"   // time = 0.25
    "0003 000000000000"  // code 3, padding
    "407F400000000000"   // side: 500 cm
    "3FF999999999999A"   // 800 / 500
    "0000000000000000"
    "0000000000000000"
    "3FE3333340000000"  // field: the 32-bit 0.6 kG
    "0000000000000000"
    "0000000000000000"
    "0000000000000000"
    "3FD99999A0000000";  // energy: the 32-bit 0.4 MeV

constexpr std::size_t time_offset = 35;
constexpr std::size_t side_offset = 51;
constexpr std::size_t scale_offset = 59;
constexpr std::size_t field_offset = 83;
constexpr std::size_t energy_offset = 115;

const PlotPoint the_point{.coords = {1.5, -2.0, 0.1, 1.0}, .time = 0.25, .code = 3};
constexpr ChamberValues the_values{.B_field = 0.6F, .sides_cm = 500.0F, .kinetic_Mev = 0.4F};

/// A file of n points that is as long as n says.
Bytes file_of(std::size_t n, std::string_view count_digits) {
  Bytes bytes(48 * n + 75);
  put_hex(bytes, 0, "50");
  put_hex(bytes, 1, count_digits);
  put_hex(bytes, 3 + 48 * n, "407F400000000000");
  return bytes;
}

TEST(EventLayout, AFileOfOnePointIsWrittenByteForByte) {
  const Bytes written = encode_event(std::vector{the_point}, the_values);
  EXPECT_EQ(hex_text(written), hex_text(hex_bytes(one_point_file)));
  EXPECT_EQ(written.size(), 123U);
}

TEST(EventLayout, AFileOfOnePointIsRead) {
  const auto result = read_event_layout(hex_bytes(one_point_file));
  const auto* event = std::get_if<StoredEvent>(&result);
  ASSERT_NE(event, nullptr);
  ASSERT_EQ(event->points.size(), 1U);
  EXPECT_EQ(event->points[0].coords, the_point.coords);
  EXPECT_EQ(event->points[0].code, 3);
  EXPECT_EQ(event->points[0].time, 0.0) << "no reader may rely on the time";
  EXPECT_EQ(event->values.sides_cm, 500.0F);
  EXPECT_EQ(event->values.B_field, 0.6F);
  EXPECT_EQ(event->values.kinetic_Mev, 0.4F);
  EXPECT_FALSE(event->field_was_negative);
}

TEST(EventLayout, NPointsTake48NPlus75Bytes) {
  for (const std::size_t n : {0U, 1U, 2U, 350U, 5000U}) {
    const Bytes file = encode_event(std::vector<PlotPoint>(n), the_values);
    EXPECT_EQ(file.size(), 48 * n + 75);
    EXPECT_EQ(file[0], std::byte{'P'});
  }
}

TEST(EventLayout, TheSecondRecordFollowsTheFirstWithoutAGap) {
  const std::vector<PlotPoint> points{the_point, {.coords = {9.0}, .code = -2}};
  const Bytes file = encode_event(points, the_values);
  EXPECT_EQ(hex_text(std::span(file).subspan(1, 2)), "0002");
  EXPECT_EQ(hex_text(std::span(file).subspan(3 + 48, 8)), "4022000000000000");
  EXPECT_EQ(hex_text(std::span(file).subspan(3 + 48 + 40, 8)), "FFFE000000000000");
  const auto result = read_event_layout(file);
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(std::get<StoredEvent>(result).points[1], points[1]);
}

TEST(EventLayout, ANegativeFieldIsKeptAsItStands) {
  Bytes file = hex_bytes(one_point_file);
  put_hex(file, field_offset, "C014000000000000");
  const auto result = read_event_layout(file);
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(std::get<StoredEvent>(result).values.B_field, -5.0F);
  EXPECT_FALSE(std::get<StoredEvent>(result).field_was_negative);
}

TEST(EventLayout, TheValuesAreRoundedToSinglePrecision) {
  Bytes file = hex_bytes(one_point_file);
  put_hex(file, field_offset, "3FE3333333333333");  // the 64-bit 0.6
  const auto result = read_event_layout(file);
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(std::get<StoredEvent>(result).values.B_field, 0.6F);
}

TEST(EventLayout, WhatIsNotReadDoesNotMatter) {
  Bytes file = hex_bytes(one_point_file);
  put_hex(file, time_offset, "FFFFFFFFFFFFFFFF");
  put_hex(file, time_offset + 10, "FFFFFFFFFFFF");
  put_hex(file, scale_offset, "FFFFFFFFFFFFFFFF FFFFFFFFFFFFFFFF FFFFFFFFFFFFFFFF");
  put_hex(file, field_offset + 8, "FFFFFFFFFFFFFFFF FFFFFFFFFFFFFFFF FFFFFFFFFFFFFFFF");
  file.resize(file.size() + 1000, std::byte{0xFF});
  const auto result = read_event_layout(file);
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(std::get<StoredEvent>(result).points[0].coords, the_point.coords);
  EXPECT_EQ(std::get<StoredEvent>(result).points[0].time, 0.0);
  EXPECT_EQ(std::get<StoredEvent>(result).values.kinetic_Mev, 0.4F);
}

TEST(EventLayout, AFileCutAnywhereIsRefused) {
  const Bytes file = hex_bytes(one_point_file);
  for (std::size_t size = 1; size < file.size(); ++size) {
    EXPECT_TRUE(refused(read_event_layout(std::span(file).first(size)))) << size << " bytes";
  }
  EXPECT_FALSE(refused(read_event_layout(file)));
}

struct CountCase {
  const char* name;
  std::size_t length_for;  // the file is as long as this count wants
  const char* digits;
  bool accepted;
};

class EventCount : public ::testing::TestWithParam<CountCase> {};

TEST_P(EventCount, IsAcceptedFrom1To5000) {
  const CountCase& row = GetParam();
  const auto result = read_event_layout(file_of(row.length_for, row.digits));
  EXPECT_EQ(!refused(result), row.accepted);
  if (row.accepted) {
    EXPECT_EQ(std::get<StoredEvent>(result).points.size(), row.length_for);
  }
}

INSTANTIATE_TEST_SUITE_P(Counts, EventCount,
                         ::testing::Values(CountCase{"One", 1, "0001", true},
                                           CountCase{"FiveThousand", 5000, "1388", true},
                                           CountCase{"Zero", 5001, "0000", false},
                                           CountCase{"FiveThousandAndOne", 5001, "1389", false},
                                           CountCase{"MinusOne", 5001, "FFFF", false},
                                           CountCase{"MostNegative", 5001, "8000", false},
                                           CountCase{"MostPositive", 5001, "7FFF", false}),
                         test::case_name<CountCase>);

struct ValueCase {
  const char* name;
  std::size_t offset;
  const char* digits;
  bool accepted;
};

class EventValues : public ::testing::TestWithParam<ValueCase> {};

TEST_P(EventValues, AreAcceptedWhenAChamberCanHaveThem) {
  Bytes file = hex_bytes(one_point_file);
  put_hex(file, GetParam().offset, GetParam().digits);
  EXPECT_EQ(!refused(read_event_layout(file)), GetParam().accepted);
}

INSTANTIATE_TEST_SUITE_P(
    Sides, EventValues,
    ::testing::Values(ValueCase{"Zero", side_offset, "0000000000000000", false},
                      ValueCase{"NegativeZero", side_offset, "8000000000000000", false},
                      ValueCase{"Negative", side_offset, "C07F400000000000", false},
                      ValueCase{"NotANumber", side_offset, "7FF8000000000000", false},
                      ValueCase{"Infinite", side_offset, "7FF0000000000000", false},
                      ValueCase{"BeyondSinglePrecision", side_offset, "7E37E43C8800759C", false},
                      ValueCase{"VanishesInSinglePrecision", side_offset, "01A56E1FC2F8F359",
                                false},
                      ValueCase{"OutsideTheSlider", side_offset, "40F86A0000000000", true}),
    test::case_name<ValueCase>);

INSTANTIATE_TEST_SUITE_P(
    Fields, EventValues,
    ::testing::Values(ValueCase{"Zero", field_offset, "0000000000000000", true},
                      ValueCase{"NegativeZero", field_offset, "8000000000000000", true},
                      ValueCase{"NotANumber", field_offset, "FFF8000000000001", false},
                      ValueCase{"Infinite", field_offset, "FFF0000000000000", false},
                      ValueCase{"BeyondSinglePrecision", field_offset, "FE37E43C8800759C", false},
                      ValueCase{"Denormal", field_offset, "0000000000000001", true}),
    test::case_name<ValueCase>);

INSTANTIATE_TEST_SUITE_P(
    Energies, EventValues,
    ::testing::Values(ValueCase{"Zero", energy_offset, "0000000000000000", true},
                      ValueCase{"Negative", energy_offset, "BFF0000000000000", false},
                      ValueCase{"NegativeAndTooSmallForSinglePrecision", energy_offset,
                                "81A56E1FC2F8F359", false},
                      ValueCase{"NotANumber", energy_offset, "7FF0000000000001", false},
                      ValueCase{"Infinite", energy_offset, "7FF0000000000000", false},
                      ValueCase{"BeyondSinglePrecision", energy_offset, "7E37E43C8800759C", false}),
    test::case_name<ValueCase>);

}  // namespace
}  // namespace velquon
