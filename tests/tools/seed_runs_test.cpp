// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/seed_runs.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include "tests/support/file_size_limit.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/tool_run.h"

// Runs of many seeds, a worker each, by the real program.

namespace velquon {
namespace {

using test::is_one_message;
using test::Names;
using test::run_tool;
using test::TemporaryFolder;
using test::with;
using test::Words;
namespace fs = std::filesystem;

const Words lambdas{"--type", "lambda", "--energy", "50", "--events", "40"};

class SeedsOfAFormat : public ::testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(SeedsOfAFormat, AreEachToTheByteWhatTheSeedAloneMakes) {
  const auto& [format, extension] = GetParam();
  const TemporaryFolder folder;
  const auto run = run_tool(with(
      lambdas, {"--seeds", "7-10", "--jobs", "2", "--format", format, "--output", folder.path()}));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out + run.messages, "");
  Names names;
  for (const char* seed : {"10", "7", "8", "9"}) {
    names.push_back(std::string("seed-") + seed + extension);
    const TemporaryFolder alone;
    const auto file = alone.path() / "alone";
    Words words = with(lambdas, {"--seed", seed, "--format", format});
    if (std::string(format) != "csv") {
      words = with(words, {"--output", file});
    }
    const auto single = run_tool(words);
    EXPECT_EQ(single.status, 0);
    const std::string wanted = std::string(format) == "csv" ? single.out : test::file_text(file);
    EXPECT_GT(wanted.size(), 100U);
    EXPECT_EQ(test::file_text(folder.path() / names.back()), wanted);
  }
  EXPECT_EQ(folder.names(), names);
}

INSTANTIATE_TEST_SUITE_P(Formats, SeedsOfAFormat,
                         ::testing::Values(std::pair{"csv", ".csv"}, std::pair{"npy", ".npy"},
                                           std::pair{"particles", ".csv"},
                                           std::pair{"hepmc3", ".hepmc3"},
                                           std::pair{"summary", ".json"}));

TEST(SeedRuns, MakeAFolderOfEventFilesForEachSeed) {
  const TemporaryFolder folder;
  const auto run = run_tool(with(
      lambdas, {"--seeds", "1-3", "--jobs", "3", "--format", "cwd", "--output", folder.path()}));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.messages, "");
  EXPECT_EQ(folder.names(), (Names{"seed-1", "seed-2", "seed-3"}));
  const TemporaryFolder alone;
  EXPECT_EQ(
      run_tool(with(lambdas, {"--seed", "2", "--format", "cwd", "--output", alone.path()})).status,
      0);
  ASSERT_GT(alone.names().size(), 5U);
  for (const std::string& name : alone.names()) {
    EXPECT_EQ(test::file_bytes(folder.path() / "seed-2" / name),
              test::file_bytes(alone.path() / name));
  }
}

TEST(SeedRuns, ReplaceAnOlderFolderOfEventFilesWhole) {
  const TemporaryFolder folder;
  fs::create_directory(folder.path() / "seed-1");
  std::ofstream(folder.path() / "seed-1" / "event-999999.cwd") << "old";
  const auto run =
      run_tool(with(lambdas, {"--seeds", "1-1", "--format", "cwd", "--output", folder.path()}));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(folder.names(), Names{"seed-1"});
  EXPECT_FALSE(fs::exists(folder.path() / "seed-1" / "event-999999.cwd"));
  EXPECT_TRUE(fs::exists(folder.path() / "seed-1" / "event-000001.cwd") ||
              fs::exists(folder.path() / "seed-1" / "event-000002.cwd"));
}

TEST(SeedRuns, TakeTheLastSeedThereIs) {
  const TemporaryFolder folder;
  EXPECT_EQ(
      run_tool({"--type", "pi+", "--seeds", "4294967294-4294967295", "--output", folder.path()})
          .status,
      0);
  EXPECT_EQ(folder.names(), (Names{"seed-4294967294.csv", "seed-4294967295.csv"}));
}

TEST(SeedRuns, ResumedLeaveOutTheSeedsThatAreThere) {
  const TemporaryFolder folder;
  std::ofstream(folder.path() / "seed-2.json") << "there";
  const auto run = run_tool(with(
      lambdas, {"--seeds", "1-3", "--resume", "--format", "summary", "--output", folder.path()}));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(folder.names(), (Names{"seed-1.json", "seed-2.json", "seed-3.json"}));
  EXPECT_EQ(test::file_text(folder.path() / "seed-2.json"), "there");
  EXPECT_GT(test::file_text(folder.path() / "seed-3.json").size(), 100U);
}

TEST(SeedRuns, IntoAFolderThatIsNotThereEndWithOneLine) {
  const TemporaryFolder folder;
  const auto missing = folder.path() / "missing";
  const auto run = run_tool(with(lambdas, {"--seeds", "1-50", "--output", missing}));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.messages, "velquon-events: cannot write " + (missing / "seed-1.csv").string() +
                              ": No such file or directory\n");
}

TEST(SeedRuns, OnAFullDiskEndWithOneLineAndWithoutAHalfFile) {
  const TemporaryFolder folder;
  const test::FileSizeLimit limit(400);
  for (const char* format : {"csv", "npy", "particles", "hepmc3", "summary"}) {
    for (const char* jobs : {"1", "2"}) {
      const auto run = run_tool(with(lambdas, {"--seeds", "1-20", "--jobs", jobs, "--format",
                                               format, "--output", folder.path()}));
      EXPECT_EQ(run.status, 1);
      EXPECT_TRUE(is_one_message(run.messages)) << run.messages;
      EXPECT_NE(run.messages.find("/seed-"), std::string::npos);
      EXPECT_NE(run.messages.find("File too large"), std::string::npos);
      EXPECT_EQ(folder.names(), Names{}) << format;
    }
  }
}

TEST(SeedRuns, OfEventFilesOnAFullDiskLeaveNoFolder) {
  const TemporaryFolder folder;
  const test::FileSizeLimit limit(400);
  const auto run =
      run_tool(with(lambdas, {"--seeds", "1-3", "--format", "cwd", "--output", folder.path()}));
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(is_one_message(run.messages)) << run.messages;
  EXPECT_EQ(folder.names(), Names{});
}

TEST(ClosedPipe, EndsWithOneLineAndStatus1) {
  const TemporaryFolder folder;
  for (const char* format : {"csv", "particles", "hepmc3"}) {
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    const auto run =
        run_tool({"--type", "pi+", "--seed", "1", "--events", "2000", "--format", format},
                 "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(ends[1]));
    ::close(ends[1]);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.messages, "velquon-events: cannot write standard output: Broken pipe\n");
  }
}

}  // namespace
}  // namespace velquon
