// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velquon {

/// What is wrong with a text file, and in which line, from 1; 0 for the file as a whole.
struct TextError {
  std::size_t line = 0;
  std::string reason;               ///< %1 and %2 in it stand for the values
  std::vector<std::string> values;  ///< of the file, or expected in it

  friend bool operator==(const TextError&, const TextError&) = default;
};

/// The fields between two line ends of a table, quotes taken off.
struct CsvRecord {
  std::size_t line = 0;  ///< where it begins, from 1
  std::vector<std::string> fields;
};

/// How much of a table is taken, against files that would fill the memory.
struct CsvLimits {
  std::size_t bytes = std::size_t{64} * 1024 * 1024;
  std::size_t records = 500'001;
  std::size_t record_bytes = std::size_t{64} * 1024;
  std::size_t fields = 64;
};

using CsvResult = std::variant<std::vector<CsvRecord>, TextError>;

/// Reads a table of comma-separated values (RFC 4180) in UTF-8. A byte order mark before it, lines
/// that end with LF alone, a last line without an end and empty lines at the end are accepted.
[[nodiscard]] CsvResult read_csv(std::string_view bytes, const CsvLimits& limits = {});

/// Appends a field, in quotes where it needs them. The text stays what it is: what a spreadsheet
/// would take for a formula is not changed.
void append_csv_field(std::string& line, std::string_view text);

/// Whether bytes are well-formed UTF-8 (The Unicode Standard 15.0, table 3-7).
[[nodiscard]] bool is_utf8(std::string_view bytes);

}  // namespace velquon
