#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace velquon {

/// The digits of a number below 10^16, leading zeros included. Eight digits are split by halves, to
/// two numbers of four, four of two and eight of one, each step for all parts of a word at once. On
/// a PC both words of eight digits share a register.
class SixteenDigits {
 public:
  explicit SixteenDigits(std::uint64_t number);

  /// Digits up to the last that is not 0.
  [[nodiscard]] std::ptrdiff_t used() const;
  /// Writes all sixteen characters.
  void write(char* out) const;

 private:
#ifdef __SSE2__
  __m128i digits_;
#else
  std::uint64_t first_;  // a digit a byte, the first in the lowest
  std::uint64_t last_;
#endif
};

#ifdef __SSE2__

inline SixteenDigits::SixteenDigits(std::uint64_t number) {
  const std::uint64_t upper = number / 100'000'000;
  const __m128i eights =
      _mm_unpacklo_epi64(_mm_cvtsi64_si128(static_cast<long long>(upper)),
                         _mm_cvtsi64_si128(static_cast<long long>(number - upper * 100'000'000)));
  // Quotients by a multiplication with 2^n / divisor, exact for the numbers that occur.
  const __m128i thousands = _mm_srli_epi64(_mm_mul_epu32(eights, _mm_set1_epi64x(109'951'163)), 40);
  const __m128i units = _mm_sub_epi64(eights, _mm_mul_epu32(thousands, _mm_set1_epi64x(10'000)));
  const __m128i fours = _mm_or_si128(thousands, _mm_slli_epi64(units, 32));
  const __m128i hundreds = _mm_srli_epi16(_mm_mulhi_epu16(fours, _mm_set1_epi16(10'486)), 4);
  // A multiplication that compilers do not take apart into a chain of shifts and sums.
  const __m128i below_hundred = _mm_sub_epi16(fours, _mm_madd_epi16(hundreds, _mm_set1_epi16(100)));
  const __m128i twos = _mm_or_si128(hundreds, _mm_slli_epi32(below_hundred, 16));
  const __m128i tens = _mm_mulhi_epu16(twos, _mm_set1_epi16(6'554));
  // The rest and its place in one step: tens + (twos - tens * 10) * 2^8.
  digits_ = _mm_sub_epi16(_mm_slli_epi16(twos, 8), _mm_mullo_epi16(tens, _mm_set1_epi16(2'559)));
}

inline std::ptrdiff_t SixteenDigits::used() const {
  const int zeros = _mm_movemask_epi8(_mm_cmpeq_epi8(digits_, _mm_setzero_si128()));
  return std::bit_width(static_cast<unsigned>(zeros) ^ 0xFFFFU);
}

inline void SixteenDigits::write(char* out) const {
  const __m128i text = _mm_or_si128(digits_, _mm_set1_epi8('0'));
  std::memcpy(out, &text, sizeof text);
}

#else

namespace detail {

constexpr std::uint64_t eight_digits(std::uint64_t number) {
  const std::uint64_t thousands = number / 10'000;
  const std::uint64_t fours = thousands | (number - thousands * 10'000) << 32U;
  const std::uint64_t hundreds = ((fours * 10'486) >> 20U) & 0x0000'007F'0000'007FU;
  const std::uint64_t twos = hundreds | (fours - hundreds * 100) << 16U;
  const std::uint64_t tens = ((twos * 103) >> 10U) & 0x000F'000F'000F'000FU;
  return tens | (twos - tens * 10) << 8U;
}
static_assert(eight_digits(12'345'678) == 0x0807'0605'0403'0201U);

}  // namespace detail

inline SixteenDigits::SixteenDigits(std::uint64_t number)
    : first_(detail::eight_digits(number / 100'000'000)),
      last_(detail::eight_digits(number % 100'000'000)) {}

inline std::ptrdiff_t SixteenDigits::used() const {
  const auto bytes = [](std::uint64_t word) { return (std::bit_width(word) + 7) / 8; };
  return last_ != 0 ? 8 + bytes(last_) : bytes(first_);
}

inline void SixteenDigits::write(char* out) const {
  for (std::uint64_t word : {first_, last_}) {
    word |= 0x3030'3030'3030'3030U;
    if constexpr (std::endian::native == std::endian::big) {
      word = __builtin_bswap64(word);
    }
    std::memcpy(out, &word, sizeof word);
    out += sizeof word;
  }
}

#endif

}  // namespace velquon
