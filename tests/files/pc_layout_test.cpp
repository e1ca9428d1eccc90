// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/pc_layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "tests/files/hex_bytes.h"
#include "tests/files/refusals.h"
#include "tests/support/case_name.h"

namespace velquon {
namespace {

using test::hex_bytes;
using test::put_hex;
using test::refused;
using Bytes = std::vector<std::byte>;

// A file of two points, written down byte by byte.
constexpr auto two_point_file =
    "57 FFFFFFFFFFFFFFFF"                // 'W', a double that is not read
    "0000000000407F40"                   // side: 500 cm
    "00000000000014C0"                   // field: -5 kG
    "9A9999999999D93F"                   // energy: 0.4 MeV
    "FFFFFFFFFFFFFFFF FFFFFFFFFFFFFFFF"  // not read
    "02000000"                           // two points
    "000000000000F83F"                   // x = 1.5
    "00000000000000C0"                   // y = -2
    "9A9999999999B93F"                   // z = 0.1
    "000000000000F03F"                   // 1
    "000000000000D03F"                   // time = 0.25
    "07000000 FFFFFFFF"                  // code 7, padding
    "0000000000002240"                   // x = 9
    "0000000000000000 0000000000000000"  //
    "000000000000F03F"                   //
    "0000000000000080"                   // time = -0
    "04000000 00000000";                 // code 4

constexpr std::size_t pc_side_offset = 9;
constexpr std::size_t pc_field_offset = 17;
constexpr std::size_t pc_energy_offset = 25;
constexpr std::size_t pc_count_offset = 49;
constexpr std::size_t pc_code_offset = 53 + 40;

TEST(PcLayout, AFileOfTwoPointsIsRead) {
  const auto result = readWinData(1, hex_bytes(two_point_file));
  const auto* event = std::get_if<StoredEvent>(&result);
  ASSERT_NE(event, nullptr);
  const std::vector<PlotPoint> expected{{.coords = {1.5, -2.0, 0.1, 1.0}, .time = 0.25, .code = 2},
                                        {.coords = {9.0, 0.0, 0.0, 1.0}, .time = -0.0, .code = 4}};
  EXPECT_EQ(event->points, expected);
  EXPECT_EQ(event->values.sides_cm, 500.0F);
  EXPECT_EQ(event->values.kinetic_Mev, 0.4F);
}

TEST(PcLayout, ANegativeFieldBecomesItsAbsoluteValueAndIsReported) {
  const auto result = readWinData(1, hex_bytes(two_point_file));
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(std::get<StoredEvent>(result).values.B_field, 5.0F);
  EXPECT_TRUE(std::get<StoredEvent>(result).field_was_negative);
}

struct StoredField {
  const char* name;
  const char* digits;
  float field;
  bool reported;
};

TEST(PcLayout, OnlyAFieldBelow0IsReported) {
  for (const StoredField& row : {StoredField{"5", "0000000000001440", 5.0F, false},
                                 StoredField{"0", "0000000000000000", 0, false},
                                 StoredField{"-0", "0000000000000080", -0.0F, false},
                                 StoredField{"too small for single precision, yet below 0",
                                             "0100000000000080", 0.0F, true}}) {
    SCOPED_TRACE(row.name);
    Bytes file = hex_bytes(two_point_file);
    put_hex(file, pc_field_offset, row.digits);
    const auto result = readWinData(1, file);
    ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
    const auto& event = std::get<StoredEvent>(result);
    EXPECT_EQ(event.values.B_field, row.field);
    EXPECT_EQ(std::signbit(event.values.B_field), std::signbit(row.field));
    EXPECT_EQ(event.field_was_negative, row.reported);
  }
}

TEST(PcLayout, WithoutATagTheHeaderBeginsAtTheFirstByte) {
  const Bytes file = hex_bytes(two_point_file);
  const auto result = readWinData(0, std::span(file).subspan(1));
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(std::get<StoredEvent>(result).points.size(), 2U);
  EXPECT_EQ(std::get<StoredEvent>(result).points[0].coords[0], 1.5);
}

struct CodeCase {
  const char* name;
  const char* digits;
  std::int16_t code;
};

class PcCode : public ::testing::TestWithParam<CodeCase> {};

TEST_P(PcCode, IsMappedAs32BitsBeforeItIsCut) {
  Bytes file = hex_bytes(two_point_file);
  put_hex(file, pc_code_offset, GetParam().digits);
  PlotPoint point{.code = 99};
  pc_to_mac_plot_point(point, std::span(file).subspan(53).first<WP_plot_point_size>());
  EXPECT_EQ(point.code, GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, PcCode,
    ::testing::Values(CodeCase{"SevenBecomesTwo", "07000000", 2},
                      CodeCase{"ZeroStays", "00000000", 0}, CodeCase{"OneStays", "01000000", 1},
                      CodeCase{"TwoStays", "02000000", 2}, CodeCase{"EightStays", "08000000", 8},
                      CodeCase{"LowBitsOf65537AreOne", "01000100", 1},
                      CodeCase{"LowBitsOf65543StaySeven", "07000100", 7},
                      CodeCase{"MinusOneStays", "FFFFFFFF", -1},
                      CodeCase{"LowBitsOf32768AreNegative", "00800000", -32768}),
    test::case_name<CodeCase>);

struct PcCountCase {
  const char* name;
  std::size_t length_for;
  const char* digits;
  bool accepted;
};

class PcCount : public ::testing::TestWithParam<PcCountCase> {};

TEST_P(PcCount, IsAcceptedFrom1To5000) {
  const PcCountCase& row = GetParam();
  Bytes file = hex_bytes(two_point_file);
  file.resize(53 + 48 * row.length_for);
  put_hex(file, pc_count_offset, row.digits);
  const auto result = readWinData(1, file);
  EXPECT_EQ(!refused(result), row.accepted);
  if (row.accepted) {
    EXPECT_EQ(std::get<StoredEvent>(result).points.size(), row.length_for);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Counts, PcCount,
    ::testing::Values(PcCountCase{"One", 1, "01000000", true},
                      PcCountCase{"FiveThousand", 5000, "88130000", true},
                      PcCountCase{"Zero", 5001, "00000000", false},
                      PcCountCase{"FiveThousandAndOne", 5001, "89130000", false},
                      PcCountCase{"MinusOne", 5001, "FFFFFFFF", false},
                      PcCountCase{"OneInItsLow16BitsOnly", 5001, "01000100", false},
                      PcCountCase{"MostNegative", 5001, "00000080", false},
                      PcCountCase{"MostPositive", 5001, "FFFFFF7F", false}),
    test::case_name<PcCountCase>);

TEST(PcLayout, AFileCutAnywhereIsRefused) {
  const Bytes file = hex_bytes(two_point_file);
  ASSERT_EQ(file.size(), 53U + 2 * 48);
  for (std::size_t size = 1; size < file.size(); ++size) {
    EXPECT_TRUE(refused(readWinData(1, std::span(file).first(size)))) << size << " bytes";
  }
  EXPECT_FALSE(refused(readWinData(1, file)));
}

TEST(PcLayout, BytesBeyondTheLastRecordAreIgnored) {
  Bytes file = hex_bytes(two_point_file);
  file.resize(file.size() + 7, std::byte{0xFF});
  EXPECT_FALSE(refused(readWinData(1, file)));
}

struct PcValueCase {
  const char* name;
  std::size_t offset;
  const char* digits;
};

class PcValue : public ::testing::TestWithParam<PcValueCase> {};

TEST_P(PcValue, IsRefusedWhenNoChamberCanHaveIt) {
  Bytes file = hex_bytes(two_point_file);
  put_hex(file, GetParam().offset, GetParam().digits);
  EXPECT_TRUE(refused(readWinData(1, file)));
}

INSTANTIATE_TEST_SUITE_P(
    Values, PcValue,
    ::testing::Values(PcValueCase{"SideOfZero", pc_side_offset, "0000000000000000"},
                      PcValueCase{"NegativeSide", pc_side_offset, "0000000000407FC0"},
                      PcValueCase{"SideNotANumber", pc_side_offset, "000000000000F87F"},
                      PcValueCase{"SideInfinite", pc_side_offset, "000000000000F07F"},
                      PcValueCase{"FieldNotANumber", pc_field_offset, "000000000000F8FF"},
                      PcValueCase{"FieldInfinite", pc_field_offset, "000000000000F0FF"},
                      PcValueCase{"NegativeEnergy", pc_energy_offset, "000000000000F0BF"},
                      PcValueCase{"NegativeEnergyTooSmallForSinglePrecision", pc_energy_offset,
                                  "59F3F8C21F6EA581"},
                      PcValueCase{"EnergyNotANumber", pc_energy_offset, "010000000000F07F"},
                      PcValueCase{"EnergyInfinite", pc_energy_offset, "000000000000F07F"}),
    test::case_name<PcValueCase>);

}  // namespace
}  // namespace velquon
