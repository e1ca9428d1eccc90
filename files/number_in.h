// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <charconv>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>

namespace velquon {

/// The whole text as a number, if it is one. A whole number must fit; a double that is too small is
/// 0, one that is too large infinite.
template <typename Number>
[[nodiscard]] std::optional<Number> number_in(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) {
    text.remove_prefix(1);
  }
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if constexpr (std::is_same_v<Number, double>) {
    if (error == std::errc::result_out_of_range && end == text.data() + text.size()) {
      return std::strtod(std::string(text).c_str(), nullptr);
    }
  }
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return number;
}

}  // namespace velquon
