#pragma once

namespace velquon {

/// The most characters that `write_decimal` writes.
inline constexpr int decimal_text_size = 32;

/// Writes a number with 17 significant digits, correctly rounded, trailing zeros left out: the text
/// of printf's "%.17g". Coordinates inside the chamber take a short exact way in integers,
/// everything else goes through `std::to_chars`.
/// \param out room for `decimal_text_size` characters, some of which may be overwritten behind the
///            text
/// \return one past the last character of the text; no zero byte is appended
char* write_decimal(char* out, double value);

/// Writes three numbers as `write_decimal` does, a comma behind each.
/// \param out room for three times `decimal_text_size` + 1 characters
char* write_coordinates(char* out, double x, double y, double z);

}  // namespace velquon
