// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <variant>
#include <vector>

#include "files/event_file.h"
#include "tests/support/call_faults.h"
#include "tests/support/case_name.h"
#include "tests/support/event_making.h"
#include "tests/support/plain_rights.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/tool_run.h"
#include "tools/microsecond_seed.h"

// Runs of the real program.

namespace velquon {
namespace {

using test::CallFault;
using test::is_one_message;
using test::Names;
using test::run_tool;
using test::TemporaryFolder;
using test::Words;

TEST(EventTool, TheSameSeedMakesTheSameBytes) {
  for (const char* type : {"pi-", "pi+", "pi0", "mu-", "mu+", "lambda"}) {
    const Words words{"--type", type, "--seed", "5", "--events", "20", "--energy", "80"};
    const auto first = run_tool(words);
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.messages, "");
    EXPECT_GT(first.out.size(), 100U);
    EXPECT_EQ(run_tool(words).out, first.out);
  }
}

TEST(EventTool, AnotherSeedMakesOtherEvents) {
  EXPECT_NE(run_tool({"--type", "pi+", "--seed", "1"}).out,
            run_tool({"--type", "pi+", "--seed", "2"}).out);
}

TEST(EventTool, WithoutASeedTwoRunsDiffer) {
  EXPECT_NE(run_tool({"--type", "pi+", "--events", "20"}).out,
            run_tool({"--type", "pi+", "--events", "20"}).out);
}

TEST(MicrosecondSeed, GoesOnWithTheClock) {
  const std::uint32_t first = microsecond_seed();
  ::usleep(2000);
  const std::uint32_t passed = microsecond_seed() - first;  // wraps round like the clock's low bits
  EXPECT_GE(passed, 2000U);
  EXPECT_LT(passed, 60U * 1000000U);
}

TEST(EventTool, EventsComeFromOneStreamSoAShorterRunIsTheBeginningOfALongerOne) {
  const auto two = run_tool({"--type", "pi+", "--seed", "3", "--events", "2"});
  const auto five = run_tool({"--type", "pi+", "--seed", "3", "--events", "5"});
  EXPECT_TRUE(five.out.starts_with(two.out));
  EXPECT_GT(five.out.size(), two.out.size());
}

TEST(EventTool, TheFirstEventIsTheSeededEvent) {
  const auto run = run_tool({"--type", "mu+", "--seed", "8", "--field", "1", "--energy", "1"});
  const auto points =
      test::seeded_event("mu+", {.B_field = 1.0F, .sides_cm = 500.0F, .kinetic_Mev = 1.0F}, 8);
  ASSERT_FALSE(points.empty());
  EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(run.out, '\n')), points.size() + 1);
}

TEST(EventTool, NoEventsAreAHeader) {
  EXPECT_EQ(run_tool({"--type", "pi+", "--events", "0"}).out, "event,point,x,y,z,code\n");
}

TEST(EventTool, HelpAndVersionGoToStandardOutput) {
  for (const char* word : {"--help", "--version"}) {
    const auto run = run_tool({word});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out, "");
    EXPECT_EQ(run.messages, "");
  }
}

TEST(EventTool, ABadArgumentEndsWithStatus2AndOneLineAndNoOutput) {
  for (const Words& words :
       {Words{}, Words{"--type", "kaon"}, Words{"--type", "pi-", "--side", "0"},
        Words{"--type", "pi-", "--bogus"}}) {
    const auto run = run_tool(words);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(is_one_message(run.messages)) << run.messages;
  }
}

TEST(EventTool, AFullOutputEndsWithStatus1AndOneLine) {
  for (const char* events : {"1", "2000"}) {
    const auto run = run_tool({"--type", "pi+", "--events", events}, "/dev/full");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.messages,
              "velquon-events: cannot write standard output: No space left on device\n");
  }
}

TEST(EventTool, HelpThatCannotBeWrittenEndsWithStatus1) {
  EXPECT_EQ(run_tool({"--help"}, "/dev/full").status, 1);
}

TEST(EventFiles, AFolderOfAnyNameIsNamedOnOneLine) {
  const auto run = run_tool({"--type", "pi+", "--format", "cwd", "--output", "/no/\n\x1b[31m"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(
      run.messages,
      "velquon-events: cannot write /no/??[31m/event-000001.cwd: No such file or directory\n");
}

TEST(EventFiles, AreNumberedFrom1WithSixDigitsAndHoldTheEvents) {
  const TemporaryFolder folder;
  const auto run = run_tool({"--type", "pi-", "--seed", "4", "--events", "12", "--field", "2",
                             "--format", "cwd", "--output", folder.path()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.messages, "velquon-events: 0 of 12 events had no points and got no file\n");
  const Names names = folder.names();
  ASSERT_EQ(names.size(), 12U);
  EXPECT_EQ(names.front(), "event-000001.cwd");
  EXPECT_EQ(names.back(), "event-000012.cwd");

  const ChamberValues values{.B_field = 2.0F, .sides_cm = 500.0F, .kinetic_Mev = 0.4F};
  const auto result = read_event_file(test::file_bytes(folder.path() / names.front()));
  ASSERT_TRUE(std::holds_alternative<StoredEvent>(result));
  const auto& event = std::get<StoredEvent>(result);
  EXPECT_EQ(event.points, test::seeded_event("pi-", values, 4));
  EXPECT_EQ(event.values.B_field, 2.0F) << "the field is stored as it was set, not flipped";
  EXPECT_EQ(event.values.sides_cm, 500.0F);
  EXPECT_EQ(event.values.kinetic_Mev, 0.4F);
}

TEST(EventFiles, EventsWithoutPointsGetNoFileAndAreCounted) {
  const TemporaryFolder folder;
  // In 1 m a photon's steps of 40 cm often leave the chamber, and a slow one never converts.
  const auto run = run_tool({"--type", "pi0", "--seed", "6", "--events", "40", "--side", "100",
                             "--energy", "100", "--format", "cwd", "--output", folder.path()});
  EXPECT_EQ(run.status, 0);
  const std::size_t files = folder.names().size();
  ASSERT_GT(files, 0U);
  ASSERT_LT(files, 40U);
  EXPECT_EQ(run.messages, "velquon-events: " + std::to_string(40 - files) +
                              " of 40 events had no points and got no file\n");
  for (const std::string& name : folder.names()) {
    const auto result = read_event_file(test::file_bytes(folder.path() / name));
    EXPECT_TRUE(std::holds_alternative<StoredEvent>(result)) << name;
  }
}

TEST(EventFiles, AreReplacedByALaterRun) {
  const TemporaryFolder folder;
  const Words words{"--type", "mu+", "--seed", "4", "--format", "cwd", "--output", folder.path()};
  std::ofstream(folder.path() / "event-000001.cwd") << std::string(100000, 'x');
  EXPECT_EQ(run_tool(words).status, 0);
  const auto result = read_event_file(test::file_bytes(folder.path() / "event-000001.cwd"));
  EXPECT_TRUE(std::holds_alternative<StoredEvent>(result));
  EXPECT_EQ(folder.names(), Names{"event-000001.cwd"});
}

/// Expects a run into a folder to fail with this one line.
void expect_failure(const std::filesystem::path& folder, const std::string& reason,
                    const Words& variables = {}) {
  const auto run =
      run_tool({"--type", "mu+", "--seed", "4", "--format", "cwd", "--output", folder.string()}, {},
               variables);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.messages, "velquon-events: cannot write " + (folder / "event-000001.cwd").string() +
                              ": " + reason + "\n");
}

TEST(EventFiles, AMissingFolderIsNamedWithTheReason) {
  const TemporaryFolder folder;
  expect_failure(folder.path() / "missing", "No such file or directory");
  EXPECT_EQ(folder.names(), Names{});
}

TEST(EventFiles, AFileInsteadOfAFolderIsNamedWithTheReason) {
  const TemporaryFolder folder;
  std::ofstream(folder.path() / "file") << "kept";
  expect_failure(folder.path() / "file", "Not a directory");
  EXPECT_EQ(test::file_text(folder.path() / "file"), "kept");
}

TEST(EventFiles, AFolderThatTakesNoFilesIsNamedWithTheReason) {
  // Nobody can make a file there, not even the superuser.
  expect_failure("/proc", "No such file or directory");
}

TEST(EventFiles, AFolderThatCannotBeWrittenIsNamedWithTheReason) {
  const TemporaryFolder folder;
  std::filesystem::permissions(
      folder.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  EXPECT_EQ(test::with_plain_rights([&] {
              expect_failure(folder.path(), "Permission denied");
              return HasFailure() ? 1 : 0;
            }),
            0);
  std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(folder.names(), Names{});
}

struct FailingCall {
  std::string name;
  std::vector<CallFault> faults;
  std::string reason;
};
class FailedEventFile : public ::testing::TestWithParam<FailingCall> {};

TEST_P(FailedEventFile, IsNamedWithTheReasonAndTheOldFileStays) {
  const TemporaryFolder folder;
  std::ofstream(folder.path() / "event-000001.cwd") << "the old event";
  expect_failure(folder.path(), GetParam().reason,
                 test::variables_of(GetParam().faults, CALL_FAULTS_LIBRARY));
  EXPECT_EQ(folder.names(), Names{"event-000001.cwd"});
  EXPECT_EQ(test::file_text(folder.path() / "event-000001.cwd"), "the old event");
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FailedEventFile,
    ::testing::Values(
        FailingCall{"SyncEio", {{.call = "fsync", .error = EIO}}, "Input/output error"},
        FailingCall{
            "SyncFullDisk", {{.call = "fsync", .error = ENOSPC}}, "No space left on device"},
        FailingCall{"SyncQuota", {{.call = "fsync", .error = EDQUOT}}, "Disk quota exceeded"},
        FailingCall{
            "WriteFullDisk", {{.call = "write", .error = ENOSPC}}, "No space left on device"},
        FailingCall{"Rename", {{.call = "renameat", .error = EIO}}, "Input/output error"},
        FailingCall{"Link", {{.call = "linkat", .error = EIO}}, "Input/output error"},
        FailingCall{"NamedSync",
                    {{.call = "tmpfile", .error = EOPNOTSUPP}, {.call = "fsync", .error = EIO}},
                    "Input/output error"}),
    test::case_name<FailingCall>);

TEST(EventFiles, OfRunsThatAreKilledAreWholeAndWithoutOthers) {
  const TemporaryFolder folder;
  for (int attempt = 0; attempt < 10; ++attempt) {
    test::kill_tool({"--type", "pi-", "--seed", "4", "--events", "999999", "--format", "cwd",
                     "--output", folder.path()},
                    std::chrono::milliseconds(20 + 10 * attempt));
    for (const std::string& name : folder.names()) {
      ASSERT_TRUE(name.starts_with("event-") && name.ends_with(".cwd")) << name;
      const auto bytes = test::file_bytes(folder.path() / name);
      const auto result = read_event_file(bytes);
      ASSERT_TRUE(std::holds_alternative<StoredEvent>(result)) << name;
      ASSERT_EQ(bytes.size(), 48 * std::get<StoredEvent>(result).points.size() + 75);
    }
  }
  EXPECT_FALSE(folder.names().empty()) << "they were killed while they wrote";
}

TEST(EventFiles, AFileSizeLimitIsNamedWithTheReasonAndLeavesNoHalfFile) {
  const TemporaryFolder folder;
  std::ofstream(folder.path() / "event-000001.cwd") << "the old event";
  rlimit old_limit{};
  ::getrlimit(RLIMIT_FSIZE, &old_limit);
  const rlimit limit{400, old_limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  expect_failure(folder.path(), "File too large");
  ::setrlimit(RLIMIT_FSIZE, &old_limit);
  EXPECT_EQ(folder.names(), Names{"event-000001.cwd"});
  EXPECT_EQ(test::file_text(folder.path() / "event-000001.cwd"), "the old event");
}

}  // namespace
}  // namespace velquon
