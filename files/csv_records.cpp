// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/csv_records.h"

#include <array>
#include <optional>
#include <utility>

#include "engine/model_text.h"

namespace velquon {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

/// A length of a byte sequence, the range of its first byte and that of its second one.
struct Utf8Form {
  unsigned first_low;
  unsigned first_high;
  unsigned second_low;
  unsigned second_high;
  std::size_t length;
};
constexpr std::array<Utf8Form, 9> utf8_forms{{{0x00, 0x7F, 0, 0, 1},
                                              {0xC2, 0xDF, 0x80, 0xBF, 2},
                                              {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                              {0xE1, 0xEC, 0x80, 0xBF, 3},
                                              {0xED, 0xED, 0x80, 0x9F, 3},
                                              {0xEE, 0xEF, 0x80, 0xBF, 3},
                                              {0xF0, 0xF0, 0x90, 0xBF, 4},
                                              {0xF1, 0xF3, 0x80, 0xBF, 4},
                                              {0xF4, 0xF4, 0x80, 0x8F, 4}}};

bool is_within(char byte, unsigned low, unsigned high) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= low && value <= high;
}

/// How many bytes the character at the beginning has; 0 when there is none.
std::size_t character_length(std::string_view bytes) {
  for (const Utf8Form& form : utf8_forms) {
    if (!is_within(bytes[0], form.first_low, form.first_high)) {
      continue;
    }
    if (bytes.size() < form.length ||
        (form.length > 1 && !is_within(bytes[1], form.second_low, form.second_high))) {
      return 0;
    }
    for (std::size_t i = 2; i < form.length; ++i) {
      if (!is_within(bytes[i], 0x80, 0xBF)) {
        return 0;
      }
    }
    return form.length;
  }
  return 0;
}

/// Reads record after record.
class CsvParser {
 public:
  CsvParser(std::string_view bytes, const CsvLimits& limits) : rest_(bytes), limits_(limits) {}

  CsvResult run() {
    while (!rest_.empty()) {
      CsvRecord record{.line = line_, .fields = {}};
      const std::size_t before = rest_.size();
      if (const char* const reason = readRecord(record)) {
        return TextError{line_, reason, {}};
      }
      if (before - rest_.size() > limits_.record_bytes) {
        return TextError{record.line, MODEL_TEXT("velquon::Model", "the line is too long"), {}};
      }
      if (records_.size() == limits_.records) {
        return TextError{record.line, MODEL_TEXT("velquon::Model", "there are too many lines"), {}};
      }
      records_.push_back(std::move(record));
    }
    while (!records_.empty() && records_.back().fields == std::vector<std::string>{{}}) {
      records_.pop_back();
    }
    return std::move(records_);
  }

 private:
  /// \return what is wrong, or null
  const char* readRecord(CsvRecord& record) {
    for (;;) {
      std::string field;
      if (const char* const reason = readField(field)) {
        return reason;
      }
      record.fields.push_back(std::move(field));
      if (record.fields.size() > limits_.fields) {
        return MODEL_TEXT("velquon::Model", "there are too many fields");
      }
      if (rest_.empty() || takeLineEnd()) {
        return nullptr;
      }
      if (!take(',')) {
        return rest_[0] == '\r'
                   ? MODEL_TEXT("velquon::Model", "a carriage return stands alone")
                   : MODEL_TEXT("velquon::Model", "something follows a closing quotation mark");
      }
    }
  }

  const char* readField(std::string& field) {
    return take('"') ? readQuoted(field) : readPlain(field);
  }

  const char* readPlain(std::string& field) {
    const std::size_t end = rest_.find_first_of("\",\r\n");
    field = rest_.substr(0, end);
    rest_.remove_prefix(field.size());
    return !rest_.empty() && rest_[0] == '"'
               ? MODEL_TEXT("velquon::Model", "a quotation mark stands inside a field")
               : nullptr;
  }

  const char* readQuoted(std::string& field) {
    const std::size_t opened = line_;
    for (;;) {
      const std::size_t end = rest_.find_first_of("\"\n");
      if (end == std::string_view::npos) {
        line_ = opened;
        return MODEL_TEXT("velquon::Model", "a quotation mark is not closed");
      }
      field += rest_.substr(0, end);
      if (field.size() > limits_.record_bytes) {
        return MODEL_TEXT("velquon::Model", "the line is too long");
      }
      const char found = rest_[end];
      rest_.remove_prefix(end + 1);
      if (found == '\n') {
        field += '\n';
        ++line_;
      } else if (!take('"')) {
        return nullptr;
      } else {
        field += '"';
      }
    }
  }

  bool take(char wanted) {
    if (rest_.empty() || rest_[0] != wanted) {
      return false;
    }
    rest_.remove_prefix(1);
    return true;
  }

  bool takeLineEnd() {
    if (rest_.starts_with("\r\n")) {
      rest_.remove_prefix(1);
    }
    if (!take('\n')) {
      return false;
    }
    ++line_;
    return true;
  }

  std::string_view rest_;
  const CsvLimits& limits_;
  std::size_t line_ = 1;
  std::vector<CsvRecord> records_;
};

/// The first line that holds a byte which no text has.
std::optional<TextError> find_bad_bytes(std::string_view bytes) {
  std::size_t line = 1;
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t length = character_length(bytes.substr(i));
    if (length == 0) {
      return TextError{line, MODEL_TEXT("velquon::Model", "it is not text in UTF-8"), {}};
    }
    if (bytes[i] == '\0') {
      return TextError{line, MODEL_TEXT("velquon::Model", "it holds a zero byte"), {}};
    }
    line += bytes[i] == '\n' ? 1U : 0U;
    i += length;
  }
  return std::nullopt;
}

}  // namespace

CsvResult read_csv(std::string_view bytes, const CsvLimits& limits) {
  if (bytes.size() > limits.bytes) {
    return TextError{0, MODEL_TEXT("velquon::Model", "the file is too large"), {}};
  }
  if (auto error = find_bad_bytes(bytes)) {
    return *std::move(error);
  }
  if (bytes.starts_with(byte_order_mark)) {
    bytes.remove_prefix(byte_order_mark.size());
  }
  return CsvParser(bytes, limits).run();
}

void append_csv_field(std::string& line, std::string_view text) {
  if (text.find_first_of("\",\r\n") == std::string_view::npos) {
    line += text;
    return;
  }
  line += '"';
  for (const char character : text) {
    line.append(character == '"' ? 2U : 1U, character);
  }
  line += '"';
}

bool is_utf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = character_length(bytes);
    if (length == 0) {
      return false;
    }
    bytes.remove_prefix(length);
  }
  return true;
}

}  // namespace velquon
