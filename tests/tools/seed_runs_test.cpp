// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/seed_runs.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/file_size_limit.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/tool_run.h"

// Runs of many seeds, a worker each, by the real program.

namespace velquon {
namespace {

using testing::is_one_message;
using testing::run_tool;
using testing::TemporaryFolder;
using Names = std::vector<std::string>;
using Words = std::vector<std::string>;
namespace fs = std::filesystem;

Words with(Words words, const Words& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

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
    const std::string wanted = std::string(format) == "csv" ? single.out : testing::file_text(file);
    EXPECT_GT(wanted.size(), 100U);
    EXPECT_EQ(testing::file_text(folder.path() / names.back()), wanted);
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
    EXPECT_EQ(testing::file_bytes(folder.path() / "seed-2" / name),
              testing::file_bytes(alone.path() / name));
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
  EXPECT_EQ(testing::file_text(folder.path() / "seed-2.json"), "there");
  EXPECT_GT(testing::file_text(folder.path() / "seed-3.json").size(), 100U);
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
  const testing::FileSizeLimit limit(400);
  for (const char* format : {"csv", "npy", "particles", "hepmc3", "summary"}) {
    const auto run =
        run_tool(with(lambdas, {"--seeds", "1-20", "--format", format, "--output", folder.path()}));
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(is_one_message(run.messages)) << run.messages;
    EXPECT_NE(run.messages.find("seed-1."), std::string::npos);
    EXPECT_NE(run.messages.find("File too large"), std::string::npos);
    EXPECT_EQ(folder.names(), Names{}) << format;
  }
}

TEST(SeedRuns, OfEventFilesOnAFullDiskLeaveNoFolder) {
  const TemporaryFolder folder;
  const testing::FileSizeLimit limit(400);
  const auto run =
      run_tool(with(lambdas, {"--seeds", "1-3", "--format", "cwd", "--output", folder.path()}));
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(is_one_message(run.messages)) << run.messages;
  EXPECT_EQ(folder.names(), Names{});
}

/// The tool while it runs.
class RunningTool {
 public:
  RunningTool(const Words& arguments, const fs::path& messages) {
    Words words{EVENT_TOOL};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    std::ranges::transform(words, std::back_inserter(argv),
                           [](std::string& word) { return word.data(); });
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, messages.c_str(),
                                       O_WRONLY | O_CREAT | O_TRUNC, 0600);
    EXPECT_EQ(::posix_spawn(&process_, EVENT_TOOL, &actions, nullptr, argv.data(), ::environ), 0);
    ::posix_spawn_file_actions_destroy(&actions);
  }
  [[nodiscard]] pid_t process() const { return process_; }

  /// The processes that it has started and that run.
  [[nodiscard]] std::vector<pid_t> workers() const {
    std::ifstream list("/proc/" + std::to_string(process_) + "/task/" + std::to_string(process_) +
                       "/children");
    std::vector<pid_t> workers;
    for (pid_t worker = 0; list >> worker;) {
      workers.push_back(worker);
    }
    return workers;
  }
  /// Waits, for half a minute at most, until so many workers run.
  std::vector<pid_t> wait_for_workers(std::size_t number) const {
    for (int i = 0; i < 30000 && workers().size() < number; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return workers();
  }
  /// Waits for its end, for a minute at most; then it is killed.
  /// \return -1 when it did not exit by itself
  int status() const {
    int status = 0;
    for (int i = 0; i < 6000; ++i) {
      if (::waitpid(process_, &status, WNOHANG) == process_) {
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ::kill(process_, SIGKILL);
    ::waitpid(process_, &status, 0);
    ADD_FAILURE() << "it does not end";
    return -1;
  }

 private:
  pid_t process_ = 0;
};

Words long_run(const TemporaryFolder& folder, const char* format, const char* seeds,
               const char* events) {
  return {"--type", "pi0",    "--energy", "100",      "--seeds", seeds,      "--events",
          events,   "--jobs", "2",        "--format", format,    "--output", folder.path()};
}

// Long enough to be caught at work, short enough to wait for.
constexpr const char* some_events = "60000";
constexpr const char* some_event_files = "500";
// More than a worker makes before a test is over.
constexpr const char* endless_events = "100000000";

bool runs(pid_t process) {
  return ::kill(process, 0) == 0;
}

/// Kills the worker of seed 1 and expects the others to finish.
void expect_others_to_finish(const TemporaryFolder& folder, Words words, const Names& others) {
  const TemporaryFolder other;
  const RunningTool tool(words, other.path() / "messages");
  const auto workers = tool.wait_for_workers(2);
  ASSERT_EQ(workers.size(), 2U);
  ::kill(workers[0], SIGKILL);
  EXPECT_EQ(tool.status(), 1);
  EXPECT_EQ(testing::file_text(other.path() / "messages"),
            "velquon-events: the worker of seed 1 was ended by signal 9 (Killed)\n");
  EXPECT_EQ(folder.names(), others);
  // What is missing is made up for.
  words.emplace_back("--resume");
  EXPECT_EQ(run_tool(words).status, 0);
  EXPECT_EQ(folder.names().size(), others.size() + 1);
}

TEST(SeedRuns, AKilledWorkerIsNamedAndTheOthersFinish) {
  const TemporaryFolder folder;
  expect_others_to_finish(folder, long_run(folder, "summary", "1-4", some_events),
                          {"seed-2.json", "seed-3.json", "seed-4.json"});
}

TEST(SeedRuns, AKilledWorkerLeavesNoFolderOfEventFiles) {
  const TemporaryFolder folder;
  expect_others_to_finish(folder, long_run(folder, "cwd", "1-2", some_event_files), {"seed-2"});
}

TEST(SeedRuns, AreNotDisturbedByWhatTheirParentIgnores) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  std::signal(SIGCHLD, SIG_IGN);
  std::signal(SIGHUP, SIG_IGN);
  const RunningTool tool(long_run(folder, "summary", "1-3", "20000"), other.path() / "messages");
  std::signal(SIGCHLD, SIG_DFL);
  std::signal(SIGHUP, SIG_DFL);
  ASSERT_EQ(tool.wait_for_workers(2).size(), 2U);
  ::kill(tool.process(), SIGHUP);
  EXPECT_EQ(tool.status(), 0);
  EXPECT_EQ(testing::file_text(other.path() / "messages"), "");
  EXPECT_EQ(folder.names().size(), 3U);
}

TEST(SeedRuns, AnInterruptEndsAllWorkersAndLeavesOnlyWholeFiles) {
  for (const int signal : {SIGINT, SIGTERM}) {
    for (const char* format : {"summary", "cwd"}) {
      const TemporaryFolder folder;
      const TemporaryFolder other;
      const Words words = long_run(folder, format, "1-100", endless_events);
      const RunningTool tool(words, other.path() / "messages");
      const auto workers = tool.wait_for_workers(2);
      ASSERT_EQ(workers.size(), 2U);
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      ::kill(tool.process(), signal);
      EXPECT_EQ(tool.status(), 128 + signal);
      for (const pid_t worker : workers) {
        EXPECT_FALSE(runs(worker));
      }
      const std::string messages = testing::file_text(other.path() / "messages");
      EXPECT_TRUE(is_one_message(messages)) << messages;
      EXPECT_NE(messages.find(" 0 of 100 seeds are complete"), std::string::npos) << messages;
      EXPECT_EQ(folder.names(), Names{});
    }
  }
}

TEST(SeedRuns, WorkersGoWithTheirParent) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  const RunningTool tool(long_run(folder, "summary", "1-100", endless_events),
                         other.path() / "messages");
  const auto workers = tool.wait_for_workers(2);
  ASSERT_EQ(workers.size(), 2U);
  ::kill(tool.process(), SIGKILL);
  EXPECT_EQ(tool.status(), -1);
  for (const pid_t worker : workers) {
    for (int i = 0; i < 1000 && runs(worker); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    // Where nobody reaps the orphans of a container they stay as zombies.
    std::ifstream stat("/proc/" + std::to_string(worker) + "/stat");
    std::string number;
    std::string name;
    std::string state = "gone";
    stat >> number >> name >> state;
    EXPECT_TRUE(state == "Z" || state == "gone") << state;
    ::kill(worker, SIGKILL);
  }
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
