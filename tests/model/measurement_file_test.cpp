// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/measurement_file.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string_view>

#include "tests/support/case_name.h"

namespace velquon {

namespace {

/// What is wrong, with the values in their places.
std::string reason_with_values(const TextError& error) {
  std::string text = error.reason;
  for (std::size_t i = 0; i < error.values.size(); ++i) {
    std::string mark("%");
    mark += std::to_string(i + 1);
    text.replace(text.find(mark), mark.size(), error.values[i]);
  }
  return text;
}

const std::string header(measurement_header);

Measurement full_row() {
  return {.event = "Untitled Type 1 Decay 3",
          .quantity = Quantity::transverse_momentum,
          .plane = "xy",
          .value = 12.25,
          .error = 0.5,
          .field_kG = 0.6,
          .ending = Ending::unknown,
          .longest_cm = unknown_number,
          .note = "first try",
          .file = "anna.csv"};
}

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) {
    text += part;
  }
  return text;
}

MeasurementTable read_back(const MeasurementTable& rows) {
  auto result = decode_measurements(encode_measurements(rows));
  const auto* const error = std::get_if<TextError>(&result);
  EXPECT_EQ(error, nullptr) << (error != nullptr ? reason_with_values(*error) : "");
  return error != nullptr ? MeasurementTable() : std::get<MeasurementTable>(std::move(result));
}

void expect_alike(const MeasurementTable& left, const MeasurementTable& right) {
  ASSERT_EQ(left.size(), right.size());
  for (std::size_t i = 0; i < left.size(); ++i) {
    EXPECT_TRUE(are_alike(left[i], right[i])) << i;
  }
}

TextError error_of(const std::string& bytes) {
  const auto result = decode_measurements(bytes);
  const auto* const error = std::get_if<TextError>(&result);
  return error != nullptr ? *error : TextError{0, "it was read", {}};
}

}  // namespace

TEST(MeasurementFileTest, IsATableWithTheNamesOfItsColumns) {
  Measurement length;
  length.event = "pi- 1, seed 5";
  length.quantity = Quantity::decay_length;
  length.value = 0.1;
  length.field_kG = 1e-7;
  length.ending = Ending::left;
  length.longest_cm = 500.0;
  EXPECT_EQ(encode_measurements({full_row(), length}),
            "number,event,quantity,plane,value,error,unit,field_kG,ending,longest_cm,note,file\r\n"
            "1,Untitled Type 1 Decay 3,transverse momentum,xy,12.25,0.5,MeV/c,0.6,,,first "
            "try,anna.csv\r\n"
            "2,\"pi- 1, seed 5\",decay length,,0.1,,cm,1e-07,left,500,,\r\n");
}

TEST(MeasurementFileTest, AnyTextOfANoteIsReadBack) {
  for (const char* const note :
       {"", "a,b", "say \"so\"", "\"", "two\nlines", "two\r\nlines", "\r", ",\n\",", "π⁻ → μ⁻",
        "=1+1", "+A1", "-2", "@SUM(A1)", "'quoted'", " blanks ", "\tb", "日本語"}) {
    Measurement row = full_row();
    row.note = note;
    expect_alike(read_back({row, full_row()}), {row, full_row()});
  }
}

TEST(MeasurementFileTest, ANoteLikeAFormulaIsWrittenAsItIs) {
  Measurement row = full_row();
  row.note = "=1+1";
  EXPECT_NE(encode_measurements({row}).find(",=1+1,"), std::string::npos);
}

TEST(MeasurementFileTest, EveryNumberIsReadBackAsTheSame) {
  std::mt19937_64 bits(5);
  MeasurementTable rows;
  while (rows.size() < 2000) {
    const auto value = std::bit_cast<double>(bits());
    if (std::isfinite(value)) {
      Measurement row = full_row();
      row.value = value;
      row.error = std::abs(value);
      row.field_kG = -value;
      row.longest_cm = value == 0.0 ? 1.0 : std::abs(value);
      rows.push_back(row);
    }
  }
  rows.push_back(full_row());
  rows.back().value = -0.0;
  expect_alike(read_back(rows), rows);
}

TEST(MeasurementFileTest, EveryQuantityIsReadBack) {
  MeasurementTable rows;
  for (std::size_t i = 0; i < quantity_names.size(); ++i) {
    rows.push_back(full_row());
    rows.back().quantity = static_cast<Quantity>(i);
  }
  expect_alike(read_back(rows), rows);
}

TEST(MeasurementFileTest, OtherLineEndsAndAMarkBeforeTheTextAreAccepted) {
  const std::string row = "1,e,length,xy,2,,cm,0.6,,,,";
  for (const std::string& text : {joined({header, "\n", row, "\n"}), joined({header, "\r\n", row}),
                                  joined({header, "\n", row, "\n\n\n"}),
                                  joined({"\xEF\xBB\xBF", header, "\r\n", row, "\r\n"}),
                                  joined({"\"number\"", header.substr(6), "\n", row})}) {
    const auto result = decode_measurements(text);
    ASSERT_TRUE(std::holds_alternative<MeasurementTable>(result)) << text;
    const auto& rows = std::get<MeasurementTable>(result);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].value, 2.0);
    EXPECT_TRUE(std::isnan(rows[0].error));
  }
}

TEST(MeasurementFileTest, ATableWithoutRowsIsOne) {
  EXPECT_TRUE(read_back({}).empty());
}

/// A file that is refused, the line and the reason.
struct Damage {
  std::string name;
  std::string text;
  std::size_t line;
  std::string reason;
};
class DamagedMeasurementFileTest : public ::testing::TestWithParam<Damage> {};

TEST_P(DamagedMeasurementFileTest, IsRefusedWithLineAndReason) {
  const auto& [name, text, line, reason] = GetParam();
  EXPECT_EQ(reason_with_values(error_of(text)), reason);
  EXPECT_EQ(error_of(text).line, line);
}

const std::string good = header + "\n1,e,length,xy,2,,cm,0.6,,,,\n";

INSTANTIATE_TEST_SUITE_P(
    Files, DamagedMeasurementFileTest,
    ::testing::Values(
        Damage{"Empty", "", 1, "these are not the names of a table of measurements"},
        Damage{"OtherTable", "event,point,x,y,z,code\n", 1,
               "these are not the names of a table of measurements"},
        Damage{"OtherCase", "N" + header.substr(1) + "\n", 1,
               "these are not the names of a table of measurements"},
        Damage{"NamesInOneField", "\"" + header + "\"\n", 1,
               "these are not the names of a table of measurements"},
        Damage{"TooFewFields", good + "2,e,length\n", 3, "it has 3 fields instead of 12"},
        Damage{"TooManyFields", good + "2,e,length,xy,2,,cm,0.6,,,,,\n", 3,
               "it has 13 fields instead of 12"},
        Damage{"EmptyLineWithin", good + "\n" + "2,e,length,xy,2,,cm,0.6,,,,\n", 3,
               "it has 1 fields instead of 12"},
        Damage{"NoNumber", good + "x,e,length,xy,2,,cm,0.6,,,,\n", 3,
               "the row's number is none: \"x\""},
        Damage{"NumberZero", good + "0,e,length,xy,2,,cm,0.6,,,,\n", 3,
               "the row's number is none: \"0\""},
        Damage{"UnknownQuantity", good + "2,e,weight,xy,2,,cm,0.6,,,,\n", 3,
               "no quantity has the name \"weight\""},
        Damage{"OtherUnit", good + "2,e,length,xy,2,,m,0.6,,,,\n", 3,
               "the quantity has another unit than \"m\""},
        Damage{"UnknownPlane", good + "2,e,length,zx,2,,cm,0.6,,,,\n", 3,
               "no plane has the name \"zx\""},
        Damage{"NoValue", good + "2,e,length,xy,,,cm,0.6,,,,\n", 3,
               "the value is no finite number: \"\""},
        Damage{"DecimalComma", good + "2,e,length,xy,\"2,5\",,cm,0.6,,,,\n", 3,
               "the value is no finite number: \"2,5\""},
        Damage{"NotANumber", good + "2,e,length,xy,nan,,cm,0.6,,,,\n", 3,
               "the value is no finite number: \"nan\""},
        Damage{"Infinite", good + "2,e,length,xy,inf,,cm,0.6,,,,\n", 3,
               "the value is no finite number: \"inf\""},
        Damage{"BeyondRange", good + "2,e,length,xy,1e999,,cm,0.6,,,,\n", 3,
               "the value is no finite number: \"1e999\""},
        Damage{"InfiniteError", good + "2,e,length,xy,2,inf,cm,0.6,,,,\n", 3,
               "the error is no finite number above or at 0: \"inf\""},
        Damage{"NegativeError", good + "2,e,length,xy,2,-1,cm,0.6,,,,\n", 3,
               "the error is no finite number above or at 0: \"-1\""},
        Damage{"NoField", good + "2,e,length,xy,2,,cm,,,,,\n", 3,
               "the field is no finite number: \"\""},
        Damage{"UnknownEnding", good + "2,e,length,xy,2,,cm,0.6,gone,,,\n", 3,
               "no ending of a track has the name \"gone\""},
        Damage{"LongestZero", good + "2,e,length,xy,2,,cm,0.6,,0,,\n", 3,
               "the longest length is no finite number above 0: \"0\""},
        Damage{"OpenQuote", good + "2,\"e,length\n", 3, "a quotation mark is not closed"},
        Damage{"QuoteInside", good + "2,e\"e,length\n", 3,
               "a quotation mark stands inside a field"},
        Damage{"AfterQuote", good + "2,\"e\"e,length\n", 3,
               "something follows a closing quotation mark"},
        Damage{"LoneReturn", good + "2,e\rlength\n", 3, "a carriage return stands alone"},
        Damage{"LineAfterNoteOfTwoLines",
               header + "\n1,e,length,xy,2,,cm,0.6,,,\"a\nb\",\nx,e,length,xy,2,,cm,0.6,,,,\n", 4,
               "the row's number is none: \"x\""},
        Damage{"Latin1", good + "2,caf\xE9,length\n", 3, "it is not text in UTF-8"},
        Damage{"Overlong", good + "2,\xC0\xAF,length\n", 3, "it is not text in UTF-8"},
        Damage{"Surrogate", good + "2,\xED\xA0\x80,length\n", 3, "it is not text in UTF-8"},
        Damage{"ZeroByte", good + std::string("2,\0,length\n", 11), 3, "it holds a zero byte"},
        Damage{"LongLine", good + "2," + std::string(70'000, 'e') + ",length\n", 3,
               "the line is too long"},
        Damage{"LongQuotedLine", good + "2,\"" + std::string(70'000, 'e') + "\",length\n", 3,
               "the line is too long"},
        Damage{"ManyFields", good + std::string(100, ',') + "\n", 3, "there are too many fields"},
        Damage{"LongNameCutBetweenCharacters",
               good + "2,e," + "a" +
                   [] {
                     std::string text;
                     for (int i = 0; i < 50; ++i) {
                       text += "é";
                     }
                     return text;
                   }() +
                   ",xy,2,,cm,0.6,,,,\n",
               3, "no quantity has the name \"aééééééééééééééééééé…\""}),
    test::case_name<Damage>);

TEST(CsvRecordsTest, LimitsHoldForFilesAndLines) {
  const CsvLimits limits{.bytes = 100, .records = 3, .record_bytes = 50, .fields = 4};
  const auto refusal = [&](const std::string& text) {
    const auto result = read_csv(text, limits);
    const auto* const error = std::get_if<TextError>(&result);
    return error != nullptr ? reason_with_values(*error) : std::string();
  };
  EXPECT_EQ(refusal("a\nb\nc\n"), "");
  EXPECT_EQ(refusal("a\nb\nc\nd\n"), "there are too many lines");
  EXPECT_EQ(refusal(std::string(101, 'a')), "the file is too large");
  EXPECT_EQ(refusal(std::string(49, 'a') + "\n"), "");
  EXPECT_EQ(refusal(std::string(51, 'a')), "the line is too long");
  EXPECT_EQ(refusal("a,b,c,d\n"), "");
  EXPECT_EQ(refusal("a,b,c,d,e\n"), "there are too many fields");
}

}  // namespace velquon
