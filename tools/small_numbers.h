#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace velquon {

/// The text of a number below 1000.
struct SmallNumber {
  std::array<char, 3> text;
  std::uint8_t size;
};

inline constexpr std::size_t small_numbers_end = 1000;

inline constexpr auto small_numbers = [] {
  std::array<SmallNumber, small_numbers_end> all{};
  for (std::size_t number = 0; number < all.size(); ++number) {
    auto& [text, size] = all[number];
    for (const std::size_t unit : {std::size_t{100}, std::size_t{10}, std::size_t{1}}) {
      if (number >= unit || unit == 1) {
        text[size++] = static_cast<char>('0' + number / unit % 10);
      }
    }
  }
  return all;
}();

/// \param out room for four characters, though the text is shorter
/// \return one past the last character of the text
inline char* write_small_number(char* out, const SmallNumber& number) {
  std::memcpy(out, &number, sizeof number);
  return out + number.size;
}

}  // namespace velquon
