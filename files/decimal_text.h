// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon {

/// The most characters that `write_decimal` writes: sign, point, 17 digits and an exponent.
inline constexpr int decimal_text_size = 24;

/// Writes a number with 17 significant digits, correctly rounded, trailing zeros left out: the text
/// of printf's "%.17g".
/// \param out room for `decimal_text_size` characters
/// \return one past the last character of the text; no zero byte is appended
char* write_decimal(char* out, double value);

}  // namespace velquon
