// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/measurement_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "engine/model_text.h"

namespace velquon {

namespace {

enum Column : std::size_t {
  number,
  event,
  quantity,
  plane,
  value,
  error,
  unit,
  field_kG,
  ending,
  longest_cm,
  note,
  file,
  column_count,
};

constexpr std::array<std::string_view, 4> planes{"", "xy", "xz", "yz"};

/// A number in the fewest digits that give it back; nothing for one that is not known.
std::string text_of(double number) {
  if (std::isnan(number)) {
    return {};
  }
  std::array<char, 32> digits{};
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), end};
}

std::array<std::string, column_count> texts_of(std::size_t row_number, const Measurement& row) {
  return {std::to_string(row_number),
          row.event,
          std::string(name_of(row.quantity).name),
          row.plane,
          text_of(row.value),
          text_of(row.error),
          std::string(name_of(row.quantity).unit),
          text_of(row.field_kG),
          std::string(name_of(row.ending)),
          text_of(row.longest_cm),
          row.note,
          row.file};
}

/// Reads the fields of one record and keeps the first thing that is wrong with them.
class RowReader {
 public:
  explicit RowReader(const CsvRecord& record) : record_(record) {}

  MeasurementFileResult read() {
    if (record_.fields.size() != column_count) {
      return TextError{record_.line,
                       MODEL_TEXT("velquon::Model", "it has %1 fields instead of %2"),
                       {std::to_string(record_.fields.size()), std::to_string(column_count)}};
    }
    Measurement row;
    std::uint64_t row_number = 0;
    if (!parse(Column::number, row_number) || row_number == 0) {
      refuse(MODEL_TEXT("velquon::Model", "the row's number is none: \"%1\""), Column::number);
    }
    row.event = text(Column::event);
    row.quantity =
        nameIn<Quantity>(quantity_names, &QuantityName::name, Column::quantity,
                         MODEL_TEXT("velquon::Model", "no quantity has the name \"%1\""));
    row.plane = text(Column::plane);
    if (std::ranges::find(planes, row.plane) == planes.end()) {
      refuse(MODEL_TEXT("velquon::Model", "no plane has the name \"%1\""), Column::plane);
    }
    row.value = finite(Column::value,
                       MODEL_TEXT("velquon::Model", "the value is no finite number: \"%1\""));
    row.error = unlessEmpty(
        Column::error,
        MODEL_TEXT("velquon::Model", "the error is no finite number above or at 0: \"%1\""),
        [](double read) { return read >= 0.0; });
    if (text(Column::unit) != name_of(row.quantity).unit) {
      refuse(MODEL_TEXT("velquon::Model", "the quantity has another unit than \"%1\""),
             Column::unit);
    }
    row.field_kG = finite(Column::field_kG,
                          MODEL_TEXT("velquon::Model", "the field is no finite number: \"%1\""));
    row.ending =
        nameIn<Ending>(ending_names, std::identity(), Column::ending,
                       MODEL_TEXT("velquon::Model", "no ending of a track has the name \"%1\""));
    row.longest_cm = unlessEmpty(
        Column::longest_cm,
        MODEL_TEXT("velquon::Model", "the longest length is no finite number above 0: \"%1\""),
        [](double read) { return read > 0.0; });
    row.note = text(Column::note);
    row.file = text(Column::file);
    if (error_) {
      return *error_;
    }
    return MeasurementTable{std::move(row)};
  }

 private:
  [[nodiscard]] const std::string& text(Column column) const { return record_.fields[column]; }

  void refuse(std::string_view reason, Column column) {
    constexpr std::size_t most_shown = 40;
    if (error_) {
      return;
    }
    const std::string& field = text(column);
    std::size_t shown = std::min(field.size(), most_shown);
    // Not in the middle of a character.
    while (shown > 0 && !is_utf8(std::string_view{field}.substr(0, shown))) {
      --shown;
    }
    const char* const dots = shown < field.size() ? "…" : "";
    error_ = TextError{record_.line, std::string(reason), {field.substr(0, shown) + dots}};
  }

  template <typename Number>
  bool parse(Column column, Number& number) const {
    const std::string& field = text(column);
    const char* const end = field.data() + field.size();
    const auto [stop, failure] = std::from_chars(field.data(), end, number);
    return failure == std::errc() && stop == end;
  }

  double finite(Column column, std::string_view reason) {
    double number = 0.0;
    if (!parse(column, number) || !std::isfinite(number)) {
      refuse(reason, column);
    }
    return number;
  }

  template <typename Allowed>
  double unlessEmpty(Column column, std::string_view reason, Allowed allowed) {
    if (text(column).empty()) {
      return unknown_number;
    }
    const double number = finite(column, reason);
    if (!allowed(number)) {
      refuse(reason, column);
    }
    return number;
  }

  template <typename Choice, typename Names, typename Projection>
  Choice nameIn(const Names& names, Projection projection, Column column, std::string_view reason) {
    const auto found = std::ranges::find(names, std::string_view{text(column)}, projection);
    if (found == names.end()) {
      refuse(reason, column);
      return Choice{};
    }
    return static_cast<Choice>(found - names.begin());
  }

  const CsvRecord& record_;
  std::optional<TextError> error_;
};

std::string joined(const std::vector<std::string>& fields) {
  std::string line;
  for (const std::string& field : fields) {
    line += line.empty() ? "" : ",";
    line += field;
  }
  return line;
}

}  // namespace

std::string encode_measurements(const MeasurementTable& rows) {
  std::string text(measurement_header);
  text += "\r\n";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    bool first = true;
    for (const std::string& field : texts_of(i + 1, rows[i])) {
      text.append(first ? 0U : 1U, ',');
      append_csv_field(text, field);
      first = false;
    }
    text += "\r\n";
  }
  return text;
}

MeasurementFileResult decode_measurements(std::string_view bytes) {
  CsvResult parsed = read_csv(bytes);
  if (auto* const error = std::get_if<TextError>(&parsed)) {
    return std::move(*error);
  }
  const auto& records = std::get<std::vector<CsvRecord>>(parsed);
  if (records.empty() || records[0].fields.size() != column_count ||
      joined(records[0].fields) != measurement_header) {
    return TextError{
        1, MODEL_TEXT("velquon::Model", "these are not the names of a table of measurements"), {}};
  }
  MeasurementTable rows;
  rows.reserve(records.size() - 1);
  for (std::size_t i = 1; i < records.size(); ++i) {
    MeasurementFileResult row = RowReader(records[i]).read();
    if (auto* const error = std::get_if<TextError>(&row)) {
      return std::move(*error);
    }
    rows.push_back(std::move(std::get<MeasurementTable>(row).front()));
  }
  return rows;
}

}  // namespace velquon
