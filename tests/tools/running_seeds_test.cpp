// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "files/file_descriptor.h"
#include "tests/support/call_faults.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/running_tool.h"
#include "tests/tools/tool_run.h"

// Runs of many seeds that are disturbed or watched while they run.

namespace velquon {
namespace {

using test::is_one_message;
using test::Names;
using test::run_tool;
using test::RunningTool;
using test::TemporaryFolder;
using test::with;
using test::Words;
namespace fs = std::filesystem;

Words long_run(const TemporaryFolder& folder, const char* format, const char* seeds,
               const char* events) {
  return {"--type", "pi0",    "--energy", "100",      "--seeds", seeds,      "--events",
          events,   "--jobs", "2",        "--format", format,    "--output", folder.path()};
}

// Long enough to be caught at work, short enough to wait for; the sanitizers take ten times as long.
#if defined(SLOW_TOOL)
constexpr const char* some_events = "6000";
constexpr const char* some_event_files = "100";
#else
constexpr const char* some_events = "60000";
constexpr const char* some_event_files = "500";
#endif
// More than a worker makes before a test is over.
constexpr const char* endless_events = "100000000";

bool runs(pid_t process) {
  return ::kill(process, 0) == 0;
}

/// With these the tool is on a file system without files that have no name.
std::vector<std::string> no_files_without_a_name() {
  return test::variables_of({{.call = "tmpfile", .error = EOPNOTSUPP}}, CALL_FAULTS_LIBRARY);
}

/// Waits, for half a minute at most, until so many files or folders are being written.
void wait_for_hidden_names(const TemporaryFolder& folder, std::ptrdiff_t number) {
  const auto count = [&folder] {
    const auto names = folder.names();
    return std::ranges::count_if(names, [](const auto& name) { return name.starts_with("."); });
  };
  for (int i = 0; i < 30000 && count() < number; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  EXPECT_GE(count(), number);
}

/// Kills the worker of seed 1 and expects the others to finish.
/// \param hidden    names under which the workers write, which are waited for
/// \param variables of the tool's environment
void expect_others_to_finish(const TemporaryFolder& folder, Words words, const Names& others,
                             std::ptrdiff_t hidden = 0,
                             const std::vector<std::string>& variables = {}) {
  const TemporaryFolder other;
  const RunningTool tool(words, {"/dev/null", other.path() / "messages"}, variables);
  const auto workers = tool.wait_for_workers(2);
  ASSERT_EQ(workers.size(), 2U);
  wait_for_hidden_names(folder, hidden);
  ::kill(workers[0], SIGKILL);
  EXPECT_EQ(tool.status(), 1);
  EXPECT_EQ(test::file_text(other.path() / "messages"),
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

TEST(SeedRuns, AKilledWorkerLeavesNoFileUnderATemporaryName) {
  const TemporaryFolder folder;
  expect_others_to_finish(folder, long_run(folder, "summary", "1-2", some_events), {"seed-2.json"},
                          2, no_files_without_a_name());
}

TEST(SeedRuns, AreNotDisturbedByWhatTheirParentIgnores) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  std::signal(SIGCHLD, SIG_IGN);
  std::signal(SIGHUP, SIG_IGN);
  const RunningTool tool(long_run(folder, "summary", "1-3", "20000"),
                         {"/dev/null", other.path() / "messages"});
  std::signal(SIGCHLD, SIG_DFL);
  std::signal(SIGHUP, SIG_DFL);
  ASSERT_EQ(tool.wait_for_workers(2).size(), 2U);
  ::kill(tool.process(), SIGHUP);
  EXPECT_EQ(tool.status(), 0);
  EXPECT_EQ(test::file_text(other.path() / "messages"), "");
  EXPECT_EQ(folder.names().size(), 3U);
}

TEST(SeedRuns, AnInterruptEndsAllWorkersAndLeavesOnlyWholeFiles) {
  for (const int signal : {SIGINT, SIGTERM}) {
    for (const char* format : {"summary", "cwd"}) {
      const TemporaryFolder folder;
      const TemporaryFolder other;
      const Words words = long_run(folder, format, "1-100", endless_events);
      const RunningTool tool(words, {"/dev/null", other.path() / "messages"});
      const auto workers = tool.wait_for_workers(2);
      ASSERT_EQ(workers.size(), 2U);
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      ::kill(tool.process(), signal);
      EXPECT_EQ(tool.status(), 128 + signal);
      for (const pid_t worker : workers) {
        EXPECT_FALSE(runs(worker));
      }
      const std::string messages = test::file_text(other.path() / "messages");
      EXPECT_TRUE(is_one_message(messages)) << messages;
      EXPECT_NE(messages.find(" 0 of 100 seeds are complete"), std::string::npos) << messages;
      EXPECT_EQ(folder.names(), Names{});
    }
  }
}

TEST(SeedRuns, AnInterruptEndsFilesUnderATemporaryNameSoon) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  const RunningTool tool(long_run(folder, "summary", "1-100", endless_events),
                         {"/dev/null", other.path() / "messages"}, no_files_without_a_name());
  wait_for_hidden_names(folder, 2);
  ::kill(tool.process(), SIGINT);
  EXPECT_EQ(tool.status(), 128 + SIGINT);
  EXPECT_EQ(folder.names(), Names{});
}

TEST(SeedRuns, WorkersGoWithTheirParent) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  const RunningTool tool(long_run(folder, "summary", "1-100", endless_events),
                         {"/dev/null", other.path() / "messages"});
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

/// A terminal, on which another process writes.
class Terminal {
 public:
  Terminal() : screen_(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    EXPECT_EQ(::grantpt(screen_.number()), 0);
    EXPECT_EQ(::unlockpt(screen_.number()), 0);
  }
  [[nodiscard]] fs::path path() const { return ::ptsname(screen_.number()); }
  /// All that has been written so far.
  [[nodiscard]] const std::string& text() {
    std::array<char, 4096> piece{};
    for (ssize_t size = 0; (size = ::read(screen_.number(), piece.data(), piece.size())) > 0;) {
      text_.append(piece.data(), static_cast<std::size_t>(size));
    }
    return text_;
  }

 private:
  FileDescriptor screen_;
  std::string text_;
};

TEST(SeedRunsOnATerminal, AMessageHasTheRowOfTheBar) {
  const TemporaryFolder folder;
  Terminal terminal;
  const RunningTool tool(with(long_run(folder, "summary", "1-2", some_events), {"--progress"}),
                         {"/dev/null", terminal.path()});
  const auto workers = tool.wait_for_workers(2);
  ASSERT_EQ(workers.size(), 2U);
  for (int i = 0; i < 3000 && terminal.text().empty(); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  ASSERT_TRUE(terminal.text().starts_with("\r[")) << "there is a bar";
  ::kill(workers[0], SIGKILL);
  EXPECT_EQ(tool.status(), 1);
  EXPECT_NE(terminal.text().find(
                "left\x1b[K\r\x1b[Kvelquon-events: the worker of seed 1 was ended by signal 9 "
                "(Killed)\r\n"),
            std::string::npos)
      << terminal.text();
}

TEST(SeedRunsOnATerminal, SeedsThatWereThereTookNoTime) {
  const TemporaryFolder folder;
  for (const char* name : {"seed-1.json", "seed-2.json"}) {
    std::ofstream(folder.path() / name) << "there";
  }
  Terminal terminal;
  const RunningTool tool(
      with(long_run(folder, "summary", "1-2", "1000"), {"--progress", "--resume"}),
      {"/dev/null", terminal.path()});
  EXPECT_EQ(tool.status(), 0);
  EXPECT_NE(terminal.text().find("100 %  2000 of 2000 events, 0 a second, 0:00 left\x1b[K\r\n"),
            std::string::npos)
      << terminal.text();
}

/// Whether a process has a file of a folder open.
bool has_file_open(const fs::path& descriptors, const fs::path& folder) {
  std::error_code none;
  for (const fs::directory_entry& descriptor : fs::directory_iterator(descriptors, none)) {
    if (fs::read_symlink(descriptor, none).string().starts_with(folder.string() + "/")) {
      return true;
    }
  }
  return false;
}

TEST(ClosedStreams, AreNoDataFilesOfTheTool) {
  const TemporaryFolder folder;
  const RunningTool tool({"--type", "pi0", "--energy", "100", "--events", endless_events,
                          "--format", "summary", "--output", folder.path() / "summary.json"},
                         {});
  const fs::path files = "/proc/" + std::to_string(tool.process()) + "/fd";
  std::error_code none;
  for (int i = 0; i < 3000 && !has_file_open(files, folder.path()); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  ASSERT_TRUE(has_file_open(files, folder.path()));
  EXPECT_EQ(fs::read_symlink(files / "1", none), "/dev/null");
  EXPECT_EQ(fs::read_symlink(files / "2", none), "/dev/null");
  ::kill(tool.process(), SIGKILL);
  EXPECT_EQ(tool.status(), -1);
}

}  // namespace
}  // namespace velquon
