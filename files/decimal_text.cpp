// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/decimal_text.h"

#include <charconv>

namespace velquon {

char* write_decimal(char* out, double value) {
  return std::to_chars(out, out + decimal_text_size, value, std::chars_format::general, 17).ptr;
}

}  // namespace velquon
