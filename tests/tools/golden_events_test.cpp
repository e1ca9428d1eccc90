// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/case_name.h"
#include "tests/tools/tool_run.h"

// The tool against events of a second, independent implementation; see golden/README.md.

namespace velquon {
namespace {

struct GoldenCase {
  const char* name;
  const char* file;
  const char* type;
  const char* field;
  const char* energy;
  const char* side;
  const char* seed;
  const char* events;
};

class GoldenEvents : public ::testing::TestWithParam<GoldenCase> {};

std::vector<std::string> lines_of(std::istream& stream) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> fields_of(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> fields;
  for (std::string field; std::getline(stream, field, ',');) {
    fields.push_back(field);
  }
  return fields;
}

/// Compares two lines: numbers of event and point and codes exactly, coordinates very nearly.
::testing::AssertionResult same_point(const std::string& made, const std::string& golden) {
  const auto made_fields = fields_of(made);
  const auto golden_fields = fields_of(golden);
  bool same = made_fields.size() == 6 && golden_fields.size() == 6;
  for (std::size_t i = 0; same && i < 6; ++i) {
    const bool coordinate = i >= 2 && i <= 4;
    same = coordinate ? std::fabs(std::stod(made_fields[i]) - std::stod(golden_fields[i])) <= 1e-9
                      : made_fields[i] == golden_fields[i];
  }
  return same ? ::testing::AssertionSuccess()
              : ::testing::AssertionFailure() << made << " instead of " << golden;
}

TEST_P(GoldenEvents, AreMadeAgain) {
  const GoldenCase& row = GetParam();
  std::ifstream golden_file(std::filesystem::path(GOLDEN_FOLDER) / row.file);
  const auto golden = lines_of(golden_file);
  ASSERT_GT(golden.size(), 10U) << "the reference is missing";

  const auto run = test::run_tool({"--type", row.type, "--field", row.field, "--energy", row.energy,
                                   "--side", row.side, "--seed", row.seed, "--events", row.events});
  ASSERT_EQ(run.status, 0) << run.messages;
  std::istringstream out(run.out);
  const auto made = lines_of(out);
  ASSERT_EQ(made.size(), golden.size());
  EXPECT_EQ(made[0], golden[0]) << "the header";
  for (std::size_t i = 1; i < made.size(); ++i) {
    ASSERT_TRUE(same_point(made[i], golden[i]));
  }
}

INSTANTIATE_TEST_SUITE_P(
    NegativePion, GoldenEvents,
    ::testing::Values(GoldenCase{"NoField", "pi-minus_0.csv", "pi-", "0", "1", "500", "11", "4"},
                      GoldenCase{"Field", "pi-minus_0.6.csv", "pi-", "0.6", "1", "500", "11", "4"},
                      GoldenCase{"NegativeField", "pi-minus_-3.3.csv", "pi-", "-3.3", "5", "500",
                                 "22", "6"}),
    test::case_name<GoldenCase>);
INSTANTIATE_TEST_SUITE_P(
    PositivePion, GoldenEvents,
    ::testing::Values(GoldenCase{"NoField", "pi-plus_0.csv", "pi+", "0", "1", "500", "12", "4"},
                      GoldenCase{"Field", "pi-plus_0.6.csv", "pi+", "0.6", "1", "500", "12", "4"},
                      GoldenCase{"NegativeField", "pi-plus_-3.3.csv", "pi+", "-3.3", "5", "1000",
                                 "21", "6"}),
    test::case_name<GoldenCase>);
INSTANTIATE_TEST_SUITE_P(
    NeutralPion, GoldenEvents,
    ::testing::Values(GoldenCase{"NoField", "pi0_0.csv", "pi0", "0", "100", "500", "13", "5"},
                      GoldenCase{"Field", "pi0_0.6.csv", "pi0", "0.6", "100", "500", "13", "4"},
                      GoldenCase{"NegativeField", "pi0_-3.3.csv", "pi0", "-3.3", "400", "300", "13",
                                 "3"}),
    test::case_name<GoldenCase>);
INSTANTIATE_TEST_SUITE_P(NegativeMuon, GoldenEvents,
                         ::testing::Values(GoldenCase{"NoField", "mu-minus_0.csv", "mu-", "0",
                                                      "0.05", "500", "14", "3"},
                                           GoldenCase{"Field", "mu-minus_0.6.csv", "mu-", "0.6",
                                                      "0.05", "500", "14", "3"},
                                           GoldenCase{"NegativeField", "mu-minus_-3.3.csv", "mu-",
                                                      "-3.3", "0.05", "500", "14", "3"}),
                         test::case_name<GoldenCase>);
INSTANTIATE_TEST_SUITE_P(
    PositiveMuon, GoldenEvents,
    ::testing::Values(GoldenCase{"NoField", "mu-plus_0.csv", "mu+", "0", "2", "50", "15", "3"},
                      GoldenCase{"Field", "mu-plus_0.6.csv", "mu+", "0.6", "2", "50", "15", "3"},
                      GoldenCase{"NegativeField", "mu-plus_-3.3.csv", "mu+", "-3.3", "2", "50",
                                 "15", "3"}),
    test::case_name<GoldenCase>);
INSTANTIATE_TEST_SUITE_P(Lambda, GoldenEvents,
                         ::testing::Values(GoldenCase{"NoField", "lambda_0.csv", "lambda", "0",
                                                      "3000", "500", "16", "4"},
                                           GoldenCase{"Field", "lambda_0.6.csv", "lambda", "0.6",
                                                      "3000", "500", "16", "4"},
                                           GoldenCase{"NegativeField", "lambda_-3.3.csv", "lambda",
                                                      "-3.3", "3000", "500", "16", "2"}),
                         test::case_name<GoldenCase>);

}  // namespace
}  // namespace velquon
