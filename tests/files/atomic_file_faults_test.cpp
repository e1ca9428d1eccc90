// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "files/atomic_file.h"
#include "files/file_calls.h"
#include "tests/support/call_faults.h"
#include "tests/support/case_name.h"
#include "tests/support/temporary_folder.h"

// Saves whose system calls fail one after the other, and saves that are killed.

namespace velquon {
namespace {

using test::CallFault;
using test::CallFaultsInForce;
using test::file_bytes;
using test::TemporaryFolder;
using Bytes = std::vector<std::byte>;
using Names = std::vector<std::string>;

const CallFault no_file_without_a_name{.call = "tmpfile", .error = EOPNOTSUPP};

Bytes some_bytes(std::size_t size, unsigned first = 0) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = static_cast<std::byte>(first + i * 7);
  }
  return bytes;
}
const Bytes old_bytes = some_bytes(3000, 1);
const Bytes new_bytes = some_bytes(5000, 2);

void write_old(const std::filesystem::path& path) {
  std::ofstream file(path, std::ios::binary);
  for (const std::byte byte : old_bytes) {
    file.put(static_cast<char>(byte));
  }
}

struct FailingSave {
  std::string name;
  std::vector<CallFault> faults;
  int error = 0;
  bool of_old_file_only = false;  ///< a new file is saved without these calls
};

/// Saves of which some call fails.
class FailedSave : public ::testing::TestWithParam<FailingSave> {};

TEST_P(FailedSave, LeavesTheOldFileAndTellsTheReason) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  write_old(path);
  const CallFaultsInForce faults(GetParam().faults);
  EXPECT_EQ(write_file_atomically(path, new_bytes), error_of(GetParam().error));
  EXPECT_EQ(file_bytes(path), old_bytes);
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

INSTANTIATE_TEST_SUITE_P(
    Calls, FailedSave,
    ::testing::Values(
        FailingSave{"SyncEio", {{.call = "fsync", .error = EIO}}, EIO},
        FailingSave{"SyncFullDisk", {{.call = "fsync", .error = ENOSPC}}, ENOSPC},
        FailingSave{"SyncQuota", {{.call = "fsync", .error = EDQUOT}}, EDQUOT},
        FailingSave{"WriteEio", {{.call = "write", .error = EIO}}, EIO},
        FailingSave{"WriteQuota", {{.call = "write", .error = EDQUOT}}, EDQUOT},
        FailingSave{
            "WriteFullDisk",
            {{.call = "write", .times = 1, .most_bytes = 900}, {.call = "write", .error = ENOSPC}},
            ENOSPC},
        FailingSave{"OpenFullDisk", {{.call = "tmpfile", .error = ENOSPC}}, ENOSPC},
        FailingSave{"ModeEio", {{.call = "fchmod", .error = EIO}}, EIO},
        FailingSave{"Link", {{.call = "linkat", .error = ENOSPC}}, ENOSPC},
        FailingSave{"TemporaryLink", {{.call = "linkat", .error = EDQUOT, .spared = 1}}, EDQUOT},
        FailingSave{"Rename", {{.call = "renameat", .error = EROFS}}, EROFS},
        FailingSave{"NamedSync", {no_file_without_a_name, {.call = "fsync", .error = EIO}}, EIO},
        FailingSave{"NamedWrite", {no_file_without_a_name, {.call = "write", .error = EIO}}, EIO},
        FailingSave{"NamedMode", {no_file_without_a_name, {.call = "fchmod", .error = EIO}}, EIO},
        FailingSave{
            "NamedCreate", {no_file_without_a_name, {.call = "create", .error = ENOSPC}}, ENOSPC},
        FailingSave{
            "NamedRename", {no_file_without_a_name, {.call = "renameat", .error = EIO}}, EIO}),
    test::case_name<FailingSave>);

/// Saves of which some call fails and that succeed all the same.
class MendedSave : public ::testing::TestWithParam<FailingSave> {};

TEST_P(MendedSave, WritesTheFileWhole) {
  const TemporaryFolder folder;
  write_old(folder.path() / "old.cwd");
  for (const char* name : {"old.cwd", "new.cwd"}) {
    const CallFaultsInForce faults(GetParam().faults);
    EXPECT_EQ(write_file_atomically(folder.path() / name, new_bytes), std::error_code());
    EXPECT_EQ(file_bytes(folder.path() / name), new_bytes);
  }
  EXPECT_EQ(folder.names(), (Names{"new.cwd", "old.cwd"}));
}

INSTANTIATE_TEST_SUITE_P(
    Calls, MendedSave,
    ::testing::Values(
        FailingSave{"WithoutNamelessFiles", {no_file_without_a_name}},
        FailingSave{"OldKernel", {{.call = "tmpfile", .error = EISDIR}}},
        FailingSave{"NameTaken",
                    {no_file_without_a_name, {.call = "create", .error = EEXIST, .times = 3}}},
        FailingSave{"LinkTaken", {{.call = "linkat", .error = EEXIST, .times = 3}}},
        FailingSave{"WithoutModes", {{.call = "fchmod", .error = EPERM}}},
        FailingSave{"WriteInterrupted", {{.call = "write", .error = EINTR, .times = 3}}},
        FailingSave{"SyncInterrupted", {{.call = "fsync", .error = EINTR, .times = 3}}},
        FailingSave{"ShortWrites", {{.call = "write", .most_bytes = 7}}},
        FailingSave{"FolderWithoutSync", {{.call = "fsync", .error = EINVAL, .spared = 1}}},
        FailingSave{"FolderNotReadable", {{.call = "open", .error = EACCES}}}),
    test::case_name<FailingSave>);

TEST(AtomicFile, TheFoldersSyncIsLookedAtAfterTheRename) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  write_old(path);
  const CallFaultsInForce faults({{.call = "fsync", .error = EIO, .spared = 1}});
  EXPECT_EQ(write_file_atomically(path, new_bytes), std::errc::io_error);
  EXPECT_EQ(file_bytes(path), new_bytes);
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

/// Waits for all descendants that a test has, orphans too.
void wait_for_all() {
  while (::wait(nullptr) > 0) {
  }
}

/// A save of which the program is killed right after a call, with everything before it done.
class KilledSave : public ::testing::TestWithParam<FailingSave> {};

TEST_P(KilledSave, LeavesTheOldOrTheNewFileAndNothingElse) {
  ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0) << "orphans are waited for";
  const TemporaryFolder folder;
  const auto old_path = folder.path() / "old.cwd";
  write_old(old_path);
  for (const auto& path : {old_path, folder.path() / "new.cwd"}) {
    const pid_t writer = ::fork();
    if (writer == 0) {
      const CallFaultsInForce faults(GetParam().faults);
      static_cast<void>(write_file_atomically(path, new_bytes));
      ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(writer, &status, 0), writer);
    EXPECT_EQ(WIFSIGNALED(status), path == old_path || !GetParam().of_old_file_only);
    wait_for_all();
    const Names names = folder.names();
    for (const std::string& left : names) {
      EXPECT_TRUE(left == "old.cwd" || left == "new.cwd") << left;
      const Bytes bytes = file_bytes(folder.path() / left);
      EXPECT_TRUE(bytes == new_bytes || (left == "old.cwd" && bytes == old_bytes)) << left;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Calls, KilledSave,
    ::testing::Values(
        FailingSave{"Open", {{.call = "tmpfile", .kills = true}}},
        FailingSave{"Write", {{.call = "write", .kills = true}}},
        FailingSave{"ShortWrite", {{.call = "write", .most_bytes = 1000, .kills = true}}},
        FailingSave{"Mode", {{.call = "fchmod", .kills = true}}},
        FailingSave{"Sync", {{.call = "fsync", .kills = true}}},
        FailingSave{"Link", {{.call = "linkat", .kills = true}}},
        FailingSave{"TemporaryLink", {{.call = "linkat", .spared = 1, .kills = true}}, 0, true},
        FailingSave{"Rename", {{.call = "renameat", .kills = true}}, 0, true},
        FailingSave{"FolderSync", {{.call = "fsync", .spared = 1, .kills = true}}}),
    test::case_name<FailingSave>);

/// Lets a process save over a file again and again, until a signal ends it.
/// \param faults of its calls
void end_saving(const std::filesystem::path& path, int signal, useconds_t after,
                const std::vector<CallFault>& faults) {
  const pid_t writer = ::fork();
  if (writer == 0) {
    const CallFaultsInForce in_force(faults);
    while (!write_file_atomically(path, new_bytes)) {
    }
    ::_exit(1);
  }
  ::usleep(after);
  ::kill(writer, signal);
  int status = 0;
  ::waitpid(writer, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  wait_for_all();
}

TEST(AtomicFile, HasTheTemporaryNameThatTheCallerWishes) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  const CallFaultsInForce in_force({no_file_without_a_name});
  AtomicFile file;
  EXPECT_FALSE(file.open(path, ".wished"));
  EXPECT_FALSE(file.write(new_bytes));
  EXPECT_EQ(folder.names(), Names{".wished"});
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
  EXPECT_EQ(file_bytes(path), new_bytes);
}

TEST(AtomicFile, LeavesAFileThatHasTheWishedTemporaryNameAlone) {
  const TemporaryFolder folder;
  write_old(folder.path() / ".wished");
  const CallFaultsInForce in_force({no_file_without_a_name});
  {
    AtomicFile file;
    EXPECT_FALSE(file.open(folder.path() / "event.cwd", ".wished"));
    EXPECT_EQ(folder.names().size(), 2U);
  }
  EXPECT_EQ(folder.names(), Names{".wished"});
  EXPECT_EQ(file_bytes(folder.path() / ".wished"), old_bytes);
}

TEST(RemoveTemporary, FindsWhatAKilledProgramHasLeftBesideTheTargetOfALink) {
  const TemporaryFolder folder;
  const TemporaryFolder other;
  write_old(other.path() / "event.cwd");
  std::filesystem::create_symlink(other.path() / "event.cwd", folder.path() / "link.cwd");
  const pid_t writer = ::fork();
  if (writer == 0) {
    const CallFaultsInForce in_force({no_file_without_a_name});
    AtomicFile file;
    ::_exit(file.open(folder.path() / "link.cwd", ".wished") ? 1 : 0);
  }
  int status = 0;
  ::waitpid(writer, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_EQ(other.names(), (Names{".wished", "event.cwd"}));
  remove_temporary(folder.path() / "link.cwd", ".wished");
  EXPECT_EQ(other.names(), Names{"event.cwd"});
  EXPECT_EQ(folder.names(), Names{"link.cwd"});
}

struct SaveEnd {
  std::string name;
  int signal = SIGKILL;
  std::vector<CallFault> faults;
};
class EndedSaves : public ::testing::TestWithParam<SaveEnd> {};

TEST_P(EndedSaves, LeaveTheOldOrTheNewFileAndNothingElse) {
  ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  std::minstd_rand random(7);
  std::uniform_int_distribution<useconds_t> microseconds(0, 20000);
  for (int i = 0; i < 20; ++i) {
    write_old(path);
    end_saving(path, GetParam().signal, microseconds(random), GetParam().faults);
    const Bytes left = file_bytes(path);
    ASSERT_TRUE(left == old_bytes || left == new_bytes) << left.size() << " bytes";
    ASSERT_EQ(folder.names(), Names{"event.cwd"});
  }
}

INSTANTIATE_TEST_SUITE_P(
    Signals, EndedSaves,
    ::testing::Values(SaveEnd{"Killed", SIGKILL, {}}, SaveEnd{"Terminated", SIGTERM, {}},
                      SaveEnd{"TerminatedWithATemporaryName", SIGTERM, {no_file_without_a_name}},
                      SaveEnd{"InterruptedWithATemporaryName", SIGINT, {no_file_without_a_name}}),
    test::case_name<SaveEnd>);

/// Writes a file under a temporary name for some seconds, piece by piece, and then outlives SIGTERM.
/// \return false when a piece is not taken
bool write_for_long(const std::filesystem::path& path) {
  AtomicFile file;
  bool taken = !file.open(path);
  for (int piece = 0; piece < 3000 && taken; ++piece) {
    ::usleep(1000);
    taken = !file.write(some_bytes(10));
  }
  if (taken) {
    std::signal(SIGTERM, SIG_IGN);
  }
  return taken;
}

TEST(AtomicFile, ASignalEndsALongWritingUnderATemporaryNameSoonAndLeavesNothing) {
  const TemporaryFolder folder;
  const pid_t writer = ::fork();
  if (writer == 0) {
    const CallFaultsInForce in_force({no_file_without_a_name});
    ::_exit(write_for_long(folder.path() / "events.npy") ? 0 : 1);
  }
  while (folder.names().empty()) {
    ::usleep(1000);
  }
  ::kill(writer, SIGTERM);
  int status = 0;
  ::waitpid(writer, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status)) << "it ended otherwise";
  EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, ASignalThatTheProgramIgnoresDoesNotStopTheWriting) {
  const TemporaryFolder folder;
  const pid_t writer = ::fork();
  if (writer == 0) {
    std::signal(SIGHUP, SIG_IGN);
    const CallFaultsInForce in_force({no_file_without_a_name});
    AtomicFile file;
    const bool begun = !file.open(folder.path() / "events.npy");
    std::raise(SIGHUP);
    ::_exit(begun && !file.write(new_bytes) && !file.commit() ? 0 : 1);
  }
  int status = 0;
  ::waitpid(writer, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_EQ(folder.names(), Names{"events.npy"});
}

}  // namespace
}  // namespace velquon
