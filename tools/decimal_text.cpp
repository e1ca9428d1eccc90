#include "tools/decimal_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace velquon {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int digit_count = 17;
constexpr std::uint64_t smallest_digits = 10'000'000'000'000'000U;  // 17 digits: 10^16 and more

// The numbers of the short way: their digits, times a power of ten below 2^64, stay within 128
// bits.
constexpr double short_way_begin = 0.001;
constexpr double short_way_end = 1000.0;

constexpr std::array<std::uint64_t, 20> powers_of_ten = [] {
  std::array<std::uint64_t, 20> powers{};
  std::uint64_t power = 1;
  for (std::uint64_t& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

constexpr std::array<char, 200> digit_pairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

int decimal_exponent(double magnitude) {
  constexpr std::array limits{0.01, 0.1, 1.0, 10.0, 100.0};
  return static_cast<int>(
             std::ranges::count_if(limits, [&](double limit) { return magnitude >= limit; })) -
         3;
}

/// magnitude * 10^power to the nearest integer, ties to the even one.
std::uint64_t scaled_digits(double magnitude, int power) {
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const std::uint64_t mantissa = (bits & 0x000F'FFFF'FFFF'FFFFU) | 0x0010'0000'0000'0000U;
  const int shift = 1075 - static_cast<int>(bits >> 52U);
  const Wide product = Wide{mantissa} * powers_of_ten[static_cast<std::size_t>(power)];
  const auto quotient = static_cast<std::uint64_t>(product >> shift);
  const Wide rest = product & ((Wide{1} << shift) - 1U);
  const Wide half = Wide{1} << (shift - 1);
  const bool up = rest > half || (rest == half && (quotient & 1U) != 0U);
  return quotient + (up ? 1U : 0U);
}

std::array<char, digit_count> digits_of(std::uint64_t number) {
  std::array<char, digit_count> digits{};
  for (std::size_t end = digit_count; end > 1; end -= 2) {
    std::memcpy(&digits[end - 2], &digit_pairs[2 * (number % 100)], 2);
    number /= 100;
  }
  digits[0] = static_cast<char>('0' + number);
  return digits;
}

char* write_short_way(char* out, double value) {
  const double magnitude = std::fabs(value);
  int exponent = decimal_exponent(magnitude);
  std::uint64_t number = scaled_digits(magnitude, digit_count - 1 - exponent);
  if (number == 10 * smallest_digits) {
    number = smallest_digits;
    ++exponent;
  }
  const auto digits = digits_of(number);
  std::ptrdiff_t used = digit_count;
  while (digits[static_cast<std::size_t>(used - 1)] == '0') {
    --used;
  }
  if (value < 0.0) {
    *out++ = '-';
  }
  if (exponent < 0) {
    constexpr std::array<char, 4> zeros{'0', '.', '0', '0'};
    out = std::copy_n(zeros.begin(), 1 - exponent, out);
    return std::copy_n(digits.begin(), used, out);
  }
  const std::ptrdiff_t whole = exponent + 1;
  out = std::copy_n(digits.begin(), whole, out);
  if (used > whole) {
    *out++ = '.';
    out = std::copy(digits.begin() + whole, digits.begin() + used, out);
  }
  return out;
}

}  // namespace

char* write_decimal(char* out, double value) {
  const double magnitude = std::fabs(value);
  if (magnitude >= short_way_begin && magnitude < short_way_end) {
    return write_short_way(out, value);
  }
  return std::to_chars(out, out + decimal_text_size, value, std::chars_format::general, digit_count)
      .ptr;
}

}  // namespace velquon
