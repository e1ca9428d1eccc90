// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/decimal_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace velquon {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

/// The text, checked to stay within its room.
std::string decimal_text(double value) {
  std::array<char, decimal_text_size + 8> room{};
  room.fill('#');
  const char* const end = write_decimal(room.data(), value);
  const auto size = static_cast<std::size_t>(end - room.data());
  EXPECT_LE(size, static_cast<std::size_t>(decimal_text_size));
  EXPECT_TRUE(std::all_of(room.begin() + decimal_text_size, room.end(), [](char byte) {
    return byte == '#';
  })) << "nothing is written beyond the room asked for";
  return {room.data(), size};
}

std::string printf_text(double value) {
  std::array<char, 64> room{};
  const int size = std::snprintf(room.data(), room.size(), "%.17g", value);
  return {room.data(), static_cast<std::size_t>(size)};
}

/// Compares a number and its negative with the C library.
::testing::AssertionResult same_text(double magnitude) {
  for (const double value : {magnitude, -magnitude}) {
    const std::string text = decimal_text(value);
    if (text != printf_text(value)) {
      return ::testing::AssertionFailure() << text << " for " << printf_text(value);
    }
  }
  return ::testing::AssertionSuccess();
}

TEST(WriteDecimal, WritesKnownNumbers) {
  EXPECT_EQ(decimal_text(0.0), "0");
  EXPECT_EQ(decimal_text(-0.0), "-0");
  EXPECT_EQ(decimal_text(1.0), "1");
  EXPECT_EQ(decimal_text(-380.0), "-380");
  EXPECT_EQ(decimal_text(100.0), "100");
  EXPECT_EQ(decimal_text(0.5), "0.5");
  EXPECT_EQ(decimal_text(0.1), "0.10000000000000001");
  EXPECT_EQ(decimal_text(0.001953125), "0.001953125");
  EXPECT_EQ(decimal_text(1e300), "1.0000000000000001e+300");
  EXPECT_EQ(decimal_text(5e-324), "4.9406564584124654e-324");
  EXPECT_EQ(decimal_text(-std::numeric_limits<double>::max()), "-1.7976931348623157e+308");
  EXPECT_EQ(decimal_text(infinite), "inf");
  EXPECT_EQ(decimal_text(-infinite), "-inf");
  EXPECT_EQ(decimal_text(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(WriteDecimal, IsExactAtPowersOfTenAndTheirNeighbours) {
  for (int exponent = -320; exponent <= 308; ++exponent) {
    const double power = std::strtod(("1e" + std::to_string(exponent)).c_str(), nullptr);
    double below = power;
    double above = power;
    ASSERT_TRUE(same_text(power));
    for (int i = 0; i < 20; ++i) {
      below = std::nextafter(below, 0.0);
      above = std::nextafter(above, infinite);
      ASSERT_TRUE(same_text(below));
      ASSERT_TRUE(same_text(above));
    }
  }
}

TEST(WriteDecimal, IsExactAtPowersOfTwoAndTheirNeighbours) {
  for (int exponent = -1074; exponent <= 1023; ++exponent) {
    const double power = std::ldexp(1.0, exponent);
    ASSERT_TRUE(same_text(power));
    ASSERT_TRUE(same_text(std::nextafter(power, 0.0)));
    ASSERT_TRUE(same_text(std::nextafter(power, infinite)));
  }
}

TEST(WriteDecimal, RoundsTiesToTheEvenDigit) {
  // Odd multiples of 2^-k with k = 18 less the digits before the point have one digit more than
  // fit, and that digit is a 5.
  std::mt19937_64 engine(151);
  int ties = 0;
  for (int whole_digits = 1; whole_digits <= 3; ++whole_digits) {
    const int fraction_bits = 18 - whole_digits;
    const double low = std::pow(10.0, whole_digits - 1);
    for (int i = 0; i < 20000; ++i) {
      const auto whole = static_cast<double>(engine() % static_cast<unsigned>(9.0 * low));
      const auto odd = static_cast<double>(2 * (engine() % (1ULL << (fraction_bits - 1))) + 1);
      const double value = low + whole + std::ldexp(odd, -fraction_bits);
      ASSERT_TRUE(same_text(value));
      std::array<char, 64> longer{};
      std::snprintf(longer.data(), longer.size(), "%.30g", value);
      const std::string exact(longer.data());
      ties += exact.size() == 19 && exact.back() == '5' ? 1 : 0;
    }
  }
  EXPECT_EQ(ties, 60000) << "all of these are ties";
}

TEST(WriteDecimal, IsExactForCoordinatesInTheChamber) {
  std::mt19937_64 engine(152);
  std::uniform_real_distribution<double> coordinate(-425.0, 425.0);
  for (int i = 0; i < 200000; ++i) {
    ASSERT_TRUE(same_text(coordinate(engine)));
  }
}

TEST(WriteDecimal, RoundsTiesBelowOneToTheEvenDigit) {
  // Odd multiples of 2^-18 have 18 digits behind the point, and the last is a 5.
  for (int odd = 26215; odd < 1 << 18; odd += 2) {
    ASSERT_TRUE(same_text(std::ldexp(odd, -18)));
  }
}

TEST(WriteDecimal, IsExactBelowOne) {
  std::mt19937_64 engine(155);
  std::uniform_real_distribution<double> coordinate(0.1, 1.0);
  for (int i = 0; i < 200000; ++i) {
    ASSERT_TRUE(same_text(coordinate(engine)));
  }
}

TEST(WriteDecimal, IsExactForMagnitudesAroundThoseOfTheChamber) {
  std::mt19937_64 engine(153);
  std::uniform_real_distribution<double> exponent(-4.0, 4.0);
  for (int i = 0; i < 200000; ++i) {
    ASSERT_TRUE(same_text(std::pow(10.0, exponent(engine))));
  }
}

TEST(WriteDecimal, IsExactForAllPatternsOfBits) {
  std::mt19937_64 engine(154);
  for (int i = 0; i < 200000; ++i) {
    const auto value = std::bit_cast<double>(engine());
    if (!std::isnan(value)) {
      ASSERT_TRUE(same_text(std::fabs(value)));
    }
  }
}

TEST(WriteDecimal, WritesFewDigitsWithoutTrailingZeros) {
  for (int thousandths = 1; thousandths < 1000000; thousandths += 7) {
    ASSERT_TRUE(same_text(thousandths / 1000.0));
    ASSERT_TRUE(same_text(thousandths / 1024.0));
  }
}

}  // namespace
}  // namespace velquon
