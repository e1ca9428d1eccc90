// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/csv_writer.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace velquon {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

const std::string first_line = "event,point,x,y,z,code\n";

/// What a writer makes of events numbered from 1.
std::string written(const std::vector<std::vector<PlotPoint>>& events) {
  const test::TemporaryFolder folder;
  const auto path = folder.path() / "events.csv";
  {
    const File file(std::fopen(path.c_str(), "w"));
    CsvWriter writer(output_to(file.get()));
    for (std::size_t i = 0; i < events.size(); ++i) {
      EXPECT_FALSE(writer.write(i + 1, events[i]));
    }
    EXPECT_FALSE(writer.finish());
  }
  return test::file_text(path);
}

TEST(CsvWriter, WithoutEventsWritesTheHeader) {
  EXPECT_EQ(written({}), first_line);
}

TEST(CsvWriter, NumbersPointsFrom0AndLeavesOutTheFourthCoordinateAndTheTime) {
  EXPECT_EQ(written({{{.coords = {0.5, -380.0, 0.0, 1.0}, .time = 7.0, .code = 3},
                      {.coords = {-0.0, 0.1, 1e-9, 1.0}, .code = -2}},
                     {},
                     {{.coords = {1.0, 2.0, 3.0, 1.0}, .code = 6}}}),
            first_line + "1,0,0.5,-380,0,3\n" +
                "1,1,-0,0.10000000000000001,1.0000000000000001e-09,-2\n" + "3,0,1,2,3,6\n");
}

TEST(CsvWriter, WritesManyEventsThroughItsBufferWithoutALoss) {
  const std::vector<PlotPoint> points(350, {.coords = {0.1, -0.1, 123.456, 1.0}, .code = 4});
  std::string expected = first_line;
  for (int event = 1; event <= 50; ++event) {
    for (int point = 0; point < 350; ++point) {
      expected += std::to_string(event) + ',' + std::to_string(point) +
                  ",0.10000000000000001,-0.10000000000000001,123.456,4\n";
    }
  }
  EXPECT_EQ(written(std::vector(50, points)), expected);
}

TEST(CsvWriter, HasRoomForTheLongestLine) {
  constexpr double longest = -1.2345678901234567e-308;
  const PlotPoint point{.coords = {longest, longest, longest, 1.0}, .code = -32768};
  const test::TemporaryFolder folder;
  const auto path = folder.path() / "events.csv";
  {
    const File file(std::fopen(path.c_str(), "w"));
    CsvWriter writer(output_to(file.get()));
    EXPECT_FALSE(writer.write(std::numeric_limits<std::uint64_t>::max(), std::vector{point}));
    EXPECT_FALSE(writer.finish());
  }
  const std::string number = "-1.2345678901234567e-308";
  EXPECT_EQ(test::file_text(path), first_line + "18446744073709551615,0," + number + ',' + number +
                                       ',' + number + ",-32768\n");
}

TEST(CsvWriter, ReportsAFullDeviceWhenItFinishes) {
  const File full(std::fopen("/dev/full", "w"));
  CsvWriter writer(output_to(full.get()));
  EXPECT_FALSE(writer.write(1, std::vector<PlotPoint>(1)));
  EXPECT_EQ(writer.finish(), std::errc::no_space_on_device);
}

TEST(CsvWriter, ReportsAFullDeviceWhileItWrites) {
  const File full(std::fopen("/dev/full", "w"));
  CsvWriter writer(output_to(full.get()));
  std::error_code error;
  for (int event = 1; event <= 100 && !error; ++event) {
    error = writer.write(static_cast<std::uint64_t>(event), std::vector<PlotPoint>(350));
  }
  EXPECT_EQ(error, std::errc::no_space_on_device);
}

}  // namespace
}  // namespace velquon
