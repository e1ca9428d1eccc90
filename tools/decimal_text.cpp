#include "tools/decimal_text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace velquon {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int digit_count = 17;

// The numbers of the short way, 0.001 up to 1000, have these exponents in a double's bits. In that
// range no number rounds up to the next power of ten: the one below a power is further away from
// it than half a unit of the 17th digit.
constexpr double short_way_begin = 0.001;
constexpr double short_way_end = 1000.0;
constexpr unsigned mantissa_bits = 52;
constexpr std::uint64_t first_exponent =
    std::bit_cast<std::uint64_t>(short_way_begin) >> mantissa_bits;
constexpr std::uint64_t last_exponent = std::bit_cast<std::uint64_t>(short_way_end) >> mantissa_bits;

// Text in a word: the first character in the lowest byte.
constexpr std::uint64_t zeros = 0x3030'3030'3030'3030U;
constexpr unsigned bits_per_digit = 8;

/// How the numbers with one binary and one decimal exponent are scaled to 17 digits: with the
/// mantissa's 53 bits at the upper end of a word, the upper word of its product with `factor` is
/// the digits, the lower one the rest.
struct Scaling {
  std::uint64_t factor;
  std::uint64_t before_point;  ///< mask of the text before the point; 0 for a number below 1
  std::uint64_t point;         ///< the point in its place
  std::ptrdiff_t whole;        ///< digits before the point; -n for n zeros behind it
};

/// The numbers with one binary exponent.
struct Binade {
  std::uint64_t limit;              ///< bits of the power of ten among them
  std::array<Scaling, 2> scalings;  ///< below the limit and from it on
};

constexpr auto binades = [] {
  constexpr std::array limits{short_way_begin, 0.01, 0.1, 1.0, 10.0, 100.0, short_way_end};
  constexpr int first_decimal_exponent = -3;
  std::array<std::uint64_t, 20> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) {
    powers[i] = 10 * powers[i - 1];
  }
  std::array<Binade, last_exponent - first_exponent + 1> all{};
  for (std::uint64_t i = 0; i < all.size(); ++i) {
    const std::uint64_t first_bits = (first_exponent + i) << mantissa_bits;
    const std::uint64_t end_bits = first_bits + (std::uint64_t{1} << mantissa_bits);
    const auto scaling = [&](int exponent) {
      // A number is its mantissa times 2^-shift.
      const int shift = 1075 - static_cast<int>(first_exponent + i);
      const std::uint64_t power = powers[static_cast<std::size_t>(digit_count - 1 - exponent)];
      const std::ptrdiff_t whole = exponent + 1;
      const std::uint64_t point_unit = whole > 0 ? std::uint64_t{1} << (whole * bits_per_digit) : 1;
      return Scaling{shift <= 53 ? power << (53 - shift) : power >> (shift - 53), point_unit - 1,
                     point_unit * std::uint64_t{'.'}, whole};
    };
    int exponent = first_decimal_exponent;
    std::uint64_t limit = end_bits;
    for (std::size_t j = 1; j < limits.size(); ++j) {
      const auto bits = std::bit_cast<std::uint64_t>(limits[j]);
      if (bits <= first_bits) {
        ++exponent;
      } else if (bits < end_bits) {
        limit = bits;
      }
    }
    all[i] = {limit, {scaling(exponent), scaling(limit < end_bits ? exponent + 1 : exponent)}};
  }
  return all;
}();

/// Splits each part of a word in two parts of half the width, the quotient and the rest of a
/// division; the quotient becomes the lower one. One multiplication does both the rest and its
/// place: quotient + (parts - quotient * divisor) * 2^width.
constexpr std::uint64_t split(std::uint64_t parts, std::uint64_t quotients, std::uint64_t divisor,
                              unsigned width) {
  return (parts << width) - quotients * ((divisor << width) - 1U);
}

/// The eight digits of a number below 10^8 as values 0 to 9, by halves: two numbers of four digits,
/// four of two, eight of one.
constexpr std::uint64_t eight_digits(std::uint64_t number) {
  const std::uint64_t fours = split(number, (number * 109'951'163) >> 40U, 10'000, 32);
  const std::uint64_t hundreds = ((fours * 10'486) >> 20U) & 0x0000'007F'0000'007FU;
  const std::uint64_t twos = split(fours, hundreds, 100, 16);
  const std::uint64_t tens = ((twos * 103) >> 10U) & 0x000F'000F'000F'000FU;
  return split(twos, tens, 10, bits_per_digit);
}
static_assert(eight_digits(12'345'678) == 0x0807'0605'0403'0201U);

void put(char* out, std::uint64_t eight_characters) {
  if constexpr (std::endian::native == std::endian::big) {
    eight_characters = __builtin_bswap64(eight_characters);
  }
  std::memcpy(out, &eight_characters, sizeof eight_characters);
}

/// Digits up to the last that is not 0, of a word whose last digits are the highest bytes.
std::ptrdiff_t digits_in_use(std::uint64_t digits) {
  return 8 - std::countl_zero(digits) / static_cast<int>(bits_per_digit);
}

/// \param bits of a number of the short way
char* write_short_way(char* out, std::uint64_t bits) {
  const std::uint64_t mantissa = (bits << 11U) | std::uint64_t{1} << 63U;
  const std::uint64_t magnitude = bits & ~(std::uint64_t{1} << 63U);
  const Binade& binade = binades[(magnitude >> mantissa_bits) - first_exponent];
  const Scaling& scaling = binade.scalings[magnitude >= binade.limit ? 1 : 0];
  const Wide product = Wide{mantissa} * scaling.factor;
  auto number = static_cast<std::uint64_t>(product >> 64U);
  // To the nearest, ties to the even one. The rest is a multiple of 2^11, so adding 1 is safe.
  const auto rest = static_cast<std::uint64_t>(product);
  number += rest + (number & 1U) > std::uint64_t{1} << 63U ? 1U : 0U;

  const std::uint64_t upper = number / 100'000'000;
  const std::uint64_t first = upper / 100'000'000;
  const std::uint64_t middle = eight_digits(upper - first * 100'000'000);
  const std::uint64_t last = eight_digits(number - upper * 100'000'000);
  const std::ptrdiff_t used = last != 0 ? 9 + digits_in_use(last) : 1 + digits_in_use(middle);

  *out = '-';
  out += bits >> 63U;
  const std::uint64_t digits = zeros | first | middle << bits_per_digit;
  if (scaling.before_point == 0) {
    put(out, zeros ^ 0x1E00U);  // "0.000000"
    out += 2 - scaling.whole;
    put(out, digits);
    put(out + 1, middle | zeros);
    put(out + 9, last | zeros);
    return out + used;
  }
  // The digits behind the point go where they belong, then the first eight characters over them.
  put(out + 2, middle | zeros);
  put(out + 10, last | zeros);
  const std::uint64_t before = digits & scaling.before_point;
  put(out, before | scaling.point | (digits ^ before) << bits_per_digit);
  return out + (used > scaling.whole ? used + 1 : scaling.whole);
}

char* write_number(char* out, double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const std::uint64_t magnitude = bits & ~(std::uint64_t{1} << 63U);
  if (magnitude - std::bit_cast<std::uint64_t>(short_way_begin) <
      std::bit_cast<std::uint64_t>(short_way_end) -
          std::bit_cast<std::uint64_t>(short_way_begin)) {
    return write_short_way(out, bits);
  }
  if (magnitude == 0) {
    *out = '-';
    out += bits >> 63U;
    *out = '0';
    return out + 1;
  }
  return std::to_chars(out, out + decimal_text_size, value, std::chars_format::general, digit_count)
      .ptr;
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
