// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/one_line.h"

#include <cstddef>

namespace velquon {

namespace {

constexpr char replacement = '?';

bool is_ascii_control(char c) {
  return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

/// Whether a control character beyond ASCII, U+0080 to U+009F, begins at an index.
bool is_wide_control(const std::string& text, std::size_t index) {
  return text[index] == '\xC2' && index + 1 < text.size() &&
         static_cast<unsigned char>(text[index + 1]) >= 0x80 &&
         static_cast<unsigned char>(text[index + 1]) <= 0x9F;
}

}  // namespace

std::string as_one_line(std::string text) {
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (is_wide_control(text, index)) {
      text.replace(index, 2, 1, replacement);
    } else if (is_ascii_control(text[index])) {
      text[index] = replacement;
    }
  }
  return text;
}

}  // namespace velquon
