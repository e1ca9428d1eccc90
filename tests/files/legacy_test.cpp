// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/legacy.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

#include "tests/files/hex_bytes.h"

namespace velquon {
namespace {

template <std::size_t size>
std::array<std::byte, size> counting_bytes() {
  std::array<std::byte, size> bytes{};
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = static_cast<std::byte>(i + 1);
  }
  return bytes;
}

template <std::size_t size>
void expect_reversal(void (*swap)(std::span<std::byte, size>), const char* reversed) {
  auto bytes = counting_bytes<size>();
  swap(bytes);
  EXPECT_EQ(test::hex_text(bytes), reversed);
  swap(bytes);
  EXPECT_EQ(bytes, counting_bytes<size>()) << "twice restores the input";
}

TEST(PcToMac, ShortSwapsItsTwoBytes) {
  expect_reversal(pc_to_mac_short, "0201");
}
TEST(PcToMac, LongReversesFourBytes) {
  expect_reversal(pc_to_mac_long, "04030201");
}
TEST(PcToMac, FloatReversesFourBytes) {
  expect_reversal(pc_to_mac_float, "04030201");
}
TEST(PcToMac, DoubleReversesEightBytes) {
  expect_reversal(pc_to_mac_double, "0807060504030201");
}

TEST(Fix2X, DividesTheSigned32BitValueBy65536) {
  EXPECT_EQ(Fix2X(0x00018000), 1.5);
  EXPECT_EQ(Fix2X(static_cast<std::int32_t>(0xFFFF0000U)), -1.0);
  EXPECT_EQ(Fix2X(0), 0.0);
  EXPECT_EQ(Fix2X(1), 1.0 / 65536.0);
  EXPECT_EQ(Fix2X(std::numeric_limits<std::int32_t>::max()), 32768.0 - 1.0 / 65536.0);
  EXPECT_EQ(Fix2X(std::numeric_limits<std::int32_t>::min()), -32768.0);
}

constexpr FixedPlotPoint record{
    .coords = {0x00018000, -0x00010000, 0x01900000, 0x00010000}, .unused = {9, 9}, .code = -5};

TEST(TranslatePlotPoints, TakesCoordinatesAndCodeAndLeavesTheTime) {
  const std::array source{record, record};
  std::vector<PlotPoint> destination(2, PlotPoint{.time = 12.5, .code = 99});
  EXPECT_EQ(TranslatePlotPoints(source, destination, 2), 2);
  const PlotPoint expected{.coords = {1.5, -1.0, 400.0, 1.0}, .time = 12.5, .code = -5};
  EXPECT_EQ(destination, (std::vector<PlotPoint>{expected, expected}));
}

TEST(TranslatePlotPoints, ConvertsNoMoreThanTheCount) {
  const std::array source{record, record};
  std::vector<PlotPoint> destination(2);
  EXPECT_EQ(TranslatePlotPoints(source, destination, 1), 1);
  EXPECT_EQ(destination[1], PlotPoint{});
}

TEST(TranslatePlotPoints, ReturnsACountBelow1UnchangedAndConvertsNothing) {
  const std::array source{record};
  for (const std::int16_t count : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{-32768}}) {
    std::vector<PlotPoint> destination(1);
    EXPECT_EQ(TranslatePlotPoints(source, destination, count), count);
    EXPECT_EQ(destination[0], PlotPoint{});
  }
}

}  // namespace
}  // namespace velquon
