#include "tools/decimal_text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "tools/sixteen_digits.h"
#include "tools/small_numbers.h"

namespace velquon {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int digit_count = 17;

// The short way is for numbers from 1 to below 1000: nearly all coordinates in the chamber. None of
// them rounds up to a whole number: the one below a whole number is further away from it than half
// a unit of the 17th digit.
constexpr double short_way_begin = 1.0;
constexpr double short_way_end = 1000.0;
constexpr double below_one_begin = 0.1;

constexpr unsigned mantissa_bits = 52;

/// A fraction behind 0 to 3 digits: 10 to the number of its digits, and to what 16 digits have
/// more.
struct FractionScale {
  std::uint64_t digits;
  std::uint64_t missing_digits;
};
constexpr std::array<FractionScale, 4> fraction_scales{{
    {0, 0},
    {10'000'000'000'000'000U, 1},
    {1'000'000'000'000'000U, 10},
    {100'000'000'000'000U, 100},
}};

/// \param bits of `value`, whose magnitude is `magnitude`
char* write_short_way(char* out, std::uint64_t bits, double magnitude) {
  const SmallNumber& whole = small_numbers[static_cast<std::size_t>(magnitude)];
  const FractionScale& scale = fraction_scales[whole.size];

  // The binary places of the fraction, moved to the upper end of a word: from 1 to below 2, where
  // the exponent is 1023, they are the lower 52 bits, and one less with each exponent on.
  const std::uint64_t places = bits << (((bits >> mantissa_bits) - 1023 + 12) & 63U);
  const Wide product = Wide{places} * scale.digits;
  auto fraction = static_cast<std::uint64_t>(product >> 64U);
  // To the nearest, ties to the even one. The lowest bit of the rest is 0, so adding 1 is safe.
  const auto rest = static_cast<std::uint64_t>(product);
  fraction += rest + (fraction & 1U) > std::uint64_t{1} << 63U ? 1U : 0U;

  *out = '-';
  out = write_small_number(out + (bits >> 63U), whole);
  *out = '.';
  const SixteenDigits digits(fraction * scale.missing_digits);
  digits.write(out + 1);
  const std::ptrdiff_t used = digits.used();
  return used == 0 ? out : out + 1 + used;
}

/// For a magnitude from 0.1 to below 1, whose 17 digits are all behind the point; none of them
/// rounds up to 1 either.
char* write_below_one(char* out, std::uint64_t bits) {
  constexpr std::uint64_t ten_to_17 = 100'000'000'000'000'000U;
  constexpr std::uint64_t ten_to_16 = ten_to_17 / 10;
  constexpr std::uint64_t leading_bit = std::uint64_t{1} << mantissa_bits;
  const std::uint64_t exponent = (bits >> mantissa_bits) & 0x7FFU;
  const std::uint64_t places = mantissa_bits + 1023 - exponent;
  const Wide product = Wide{(bits & (leading_bit - 1)) | leading_bit} * ten_to_17;
  auto number = static_cast<std::uint64_t>(product >> places);
  const auto rest = static_cast<std::uint64_t>(product) & ((std::uint64_t{1} << places) - 1);
  number += rest + (number & 1U) > std::uint64_t{1} << (places - 1) ? 1U : 0U;

  *out = '-';
  out += bits >> 63U;
  const std::uint64_t first = number / ten_to_16;
  *out++ = '0';
  *out++ = '.';
  *out++ = static_cast<char>('0' + first);
  const SixteenDigits digits(number - first * ten_to_16);
  digits.write(out);
  return out + digits.used();
}

/// Kept out of the loop over coordinates, which is tight without it.
[[gnu::noinline]] char* write_long_way(char* out, std::uint64_t bits, double value) {
  const double magnitude = std::fabs(value);
  if (magnitude >= below_one_begin && magnitude < short_way_begin) {
    return write_below_one(out, bits);
  }
  if (magnitude == 0.0) {
    *out = '-';
    out += bits >> 63U;
    *out = '0';
    return out + 1;
  }
  return std::to_chars(out, out + decimal_text_size, value, std::chars_format::general, digit_count)
      .ptr;
}

char* write_number(char* out, double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const double magnitude = std::fabs(value);
  if (magnitude >= short_way_begin && magnitude < short_way_end) [[likely]] {
    return write_short_way(out, bits, magnitude);
  }
  return write_long_way(out, bits, value);
}

}  // namespace

char* write_decimal(char* out, double value) {
  return write_number(out, value);
}

char* write_coordinates(char* out, double x, double y, double z) {
  for (const double coordinate : {x, y, z}) {
    out = write_number(out, coordinate);
    *out++ = ',';
  }
  return out;
}

}  // namespace velquon
