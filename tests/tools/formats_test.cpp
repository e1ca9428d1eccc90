// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "events/event_types.h"
#include "tests/support/event_making.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/tool_run.h"

// The tables and arrays of the tool, against records and events made in this process.

namespace velquon {
namespace {

using test::is_one_message;
using test::Names;
using test::run_tool;
using test::TemporaryFolder;
using test::Words;

constexpr ChamberValues run_values{.B_field = 2.0F, .sides_cm = 300.0F, .kinetic_Mev = 60.0F};

Words with_values(const std::string& type, const Words& more) {
  return test::with({"--type", type, "--field", "2", "--side", "300", "--energy", "60", "--seed",
                     "20261121", "--events", "60"},
                    more);
}

/// The fields of a table's lines.
std::vector<Words> table_of(const std::string& text) {
  std::vector<Words> table;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    Words fields(1);
    for (const char c : line) {
      if (c == ',') {
        fields.emplace_back();
      } else {
        fields.back() += c;
      }
    }
    table.push_back(fields);
  }
  return table;
}

double number_in(const std::string& text) {
  double number = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  EXPECT_TRUE(error == std::errc() && end == text.data() + text.size()) << text;
  return number;
}

void expect_vector(const Words& fields, std::size_t column, const Vector3& vector) {
  for (std::size_t axis = 0; axis < 3; ++axis) {
    EXPECT_EQ(number_in(fields[column + axis]), vector[axis]);
  }
}

void expect_row(const Words& fields, const RecordedParticle& row) {
  EXPECT_EQ(fields[2], std::to_string(row.pdg));
  EXPECT_EQ(fields[3], std::to_string(row.parent));
  EXPECT_EQ(fields[4], name_of(row.fate));
  const bool seen = row.points > 0;
  EXPECT_EQ(fields[5], seen ? std::to_string(row.code) : "");
  EXPECT_EQ(fields[6], seen ? std::to_string(row.first_point) : "");
  EXPECT_EQ(fields[7], seen ? std::to_string(row.points) : "");
  expect_vector(fields, 8, row.place_cm);
  expect_vector(fields, 11, row.momentum);
  EXPECT_EQ(number_in(fields[14]), row.energy);
  if (row.end_cm) {
    expect_vector(fields, 15, *row.end_cm);
  } else {
    EXPECT_EQ((Words{fields[15], fields[16], fields[17]}), (Words{"", "", ""}));
  }
}

class ParticlesFormat : public ::testing::TestWithParam<const char*> {};

TEST_P(ParticlesFormat, IsTheRecordRowByRow) {
  const auto run = run_tool(with_values(GetParam(), {"--format", "particles"}));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.messages, "");
  const std::string header =
      "event,particle,pdg,parent,fate,code,first_point,points,x,y,z,px,py,pz,energy,end_x,end_y,"
      "end_z\n";
  ASSERT_TRUE(run.out.starts_with(header));
  const auto table = table_of(run.out);
  std::size_t line = 1;
  std::srand(20261121);
  for (int number = 1; number <= 60; ++number) {
    TrackBuffer buffer;
    ParticleRecord record;
    make_event(test::event_type(GetParam()), run_values, buffer, &record);
    for (std::size_t i = 0; i < record.particles().size(); ++i, ++line) {
      ASSERT_LT(line, table.size());
      ASSERT_EQ(table[line].size(), 18U);
      EXPECT_EQ(table[line][0], std::to_string(number));
      EXPECT_EQ(table[line][1], std::to_string(i));
      expect_row(table[line], record.particles()[i]);
    }
  }
  EXPECT_EQ(line, table.size());
}

INSTANTIATE_TEST_SUITE_P(Types, ParticlesFormat,
                         ::testing::Values("pi-", "pi+", "pi0", "mu-", "mu+", "lambda"));

/// A NumPy file of packed rows, taken apart.
struct Array {
  std::string header;
  std::vector<std::byte> rows;
};

Array array_in(const std::filesystem::path& path) {
  const auto bytes = test::file_bytes(path);
  if (bytes.size() < 10 || std::memcmp(bytes.data(), "\x93NUMPY\x01\x00", 8) != 0) {
    ADD_FAILURE() << "no NumPy file of version 1.0";
    return {};
  }
  const auto size =
      std::to_integer<std::size_t>(bytes[8]) + 256 * std::to_integer<std::size_t>(bytes[9]);
  EXPECT_EQ((size + 10) % 64, 0U) << "the rows are aligned";
  const auto* text = reinterpret_cast<const char*>(bytes.data());
  return {std::string(text + 10, size),
          {bytes.begin() + static_cast<std::ptrdiff_t>(10 + size), bytes.end()}};
}

template <typename Number>
Number number_at(const Array& array, std::size_t row, std::size_t offset) {
  Number number{};
  std::memcpy(&number, array.rows.data() + row * 38 + offset, sizeof number);
  return number;
}

TEST(NpyFormat, HoldsTheRowsOfTheCsvTable) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "points.npy";
  for (const char* type : {"pi-", "pi0", "lambda"}) {
    const auto run = run_tool(with_values(type, {"--format", "npy", "--output", path.string()}));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.messages, "");
    const auto table = table_of(run_tool(with_values(type, {})).out);
    const Array array = array_in(path);
    const std::size_t rows = table.size() - 1;
    ASSERT_GT(rows, 100U);
    const std::string start =
        "{'descr': [('event', '<i8'), ('point', '<i4'), ('x', '<f8'), ('y', '<f8'), ('z', '<f8'), "
        "('code', '<i2')], 'fortran_order': False, 'shape': (" +
        std::to_string(rows) + ",), }";
    EXPECT_TRUE(std::regex_match(array.header.substr(start.size()), std::regex(" *\n")));
    EXPECT_TRUE(array.header.starts_with(start)) << array.header;
    ASSERT_EQ(array.rows.size(), rows * 38);
    for (std::size_t i = 0; i < rows; ++i) {
      const Words& line = table[i + 1];
      ASSERT_EQ(std::to_string(number_at<std::int64_t>(array, i, 0)), line[0]);
      ASSERT_EQ(std::to_string(number_at<std::int32_t>(array, i, 8)), line[1]);
      for (std::size_t axis = 0; axis < 3; ++axis) {
        ASSERT_EQ(number_at<double>(array, i, 12 + 8 * axis), number_in(line[2 + axis]));
      }
      ASSERT_EQ(std::to_string(number_at<std::int16_t>(array, i, 36)), line[5]);
    }
  }
}

TEST(NpyFormat, WithoutEventsIsAnArrayWithoutRows) {
  const TemporaryFolder folder;
  const auto run = run_tool({"--type", "pi-", "--seed", "1", "--events", "0", "--format", "npy",
                             "--output", folder.path().string()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(folder.names(), Names{"events.npy"});
  const Array array = array_in(folder.path() / "events.npy");
  EXPECT_NE(array.header.find("'shape': (0,), }"), std::string::npos);
  EXPECT_TRUE(array.rows.empty());
}

TEST(NpyFormat, NeedsAFile) {
  const auto run = run_tool({"--type", "pi-", "--format", "npy"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.messages, "velquon-events: --output: is needed by --format npy\n");
}

class WholeFile : public ::testing::TestWithParam<const char*> {};

TEST_P(WholeFile, IsTheSameAsOnStandardOutput) {
  const TemporaryFolder folder;
  const auto out = run_tool(with_values("lambda", {"--format", GetParam()}));
  EXPECT_EQ(out.status, 0);
  EXPECT_GT(out.out.size(), 1000U);
  const auto path = folder.path() / "file";
  const auto run =
      run_tool(with_values("lambda", {"--format", GetParam(), "--output", path.string()}));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out + run.messages, "");
  EXPECT_EQ(test::file_text(path), out.out);
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_P(WholeFile, CanBeCalledAfterItsFormatInAFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(
      run_tool(with_values("pi+", {"--format", GetParam(), "--output", folder.path()})).status, 0);
  const std::string format = GetParam();
  EXPECT_EQ(folder.names(), Names{format == "particles" ? "particles.csv"
                                  : format == "hepmc3"  ? "events.hepmc3"
                                                        : "summary.json"});
}

TEST_P(WholeFile, ThatIsTooLargeIsNamedAndTheOldOneStays) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "file";
  std::ofstream(path) << "the old one";
  const test::FileSizeLimit limit(400);
  const auto run =
      run_tool(with_values("lambda", {"--format", GetParam(), "--output", path.string()}));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.messages, "velquon-events: cannot write " + path.string() + ": File too large\n");
  EXPECT_EQ(test::file_text(path), "the old one");
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_P(WholeFile, InAFolderThatIsNotThereIsNamedWithTheReason) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "missing" / "file";
  const auto run =
      run_tool(with_values("lambda", {"--format", GetParam(), "--output", path.string()}));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.messages,
            "velquon-events: cannot write " + path.string() + ": No such file or directory\n");
}

TEST_P(WholeFile, OnAFullDeviceEndsWithOneLine) {
  const auto run = run_tool(with_values("lambda", {"--format", GetParam()}), "/dev/full");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.messages,
            "velquon-events: cannot write standard output: No space left on device\n");
}

INSTANTIATE_TEST_SUITE_P(Formats, WholeFile, ::testing::Values("particles", "hepmc3", "summary"));

TEST(NpyFormat, ThatIsTooLargeLeavesNoHalfFile) {
  const TemporaryFolder folder;
  const test::FileSizeLimit limit(400);
  const auto run =
      run_tool(with_values("lambda", {"--format", "npy", "--output", folder.path().string()}));
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(is_one_message(run.messages)) << run.messages;
  EXPECT_EQ(folder.names(), Names{});
}

}  // namespace
}  // namespace velquon
