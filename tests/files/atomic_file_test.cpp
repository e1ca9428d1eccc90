#include "files/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/file_size_limit.h"
#include "tests/support/temporary_folder.h"

namespace velquon {
namespace {

using testing::file_bytes;
using testing::file_text;
using testing::FileSizeLimit;
using testing::TemporaryFolder;
using Bytes = std::vector<std::byte>;
using Names = std::vector<std::string>;

Bytes bytes_of(std::size_t size, unsigned first = 0) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < size; ++i) {
    bytes[i] = static_cast<std::byte>(first + i * 7);
  }
  return bytes;
}

void write_text(const std::filesystem::path& path, const std::string& text) {
  std::ofstream(path) << text;
}

TEST(AtomicFile, WritesANewFileWhole) {
  for (const std::size_t size : {0U, 1U, 123U, 300000U}) {
    const TemporaryFolder folder;
    const Bytes bytes = bytes_of(size);
    EXPECT_FALSE(write_file_atomically(folder.path() / "event.cwd", bytes));
    EXPECT_EQ(file_bytes(folder.path() / "event.cwd"), bytes);
    EXPECT_EQ(folder.names(), Names{"event.cwd"});
  }
}

TEST(AtomicFile, ReplacesAnExistingFileByALongerOrShorterOne) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  for (const std::size_t size : {500U, 20U, 1000U}) {
    EXPECT_FALSE(write_file_atomically(path, bytes_of(size)));
    EXPECT_EQ(file_bytes(path), bytes_of(size));
  }
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

TEST(AtomicFile, TheFileHasTheUsualModeOfANewFile) {
  const TemporaryFolder folder;
  const mode_t old_mask = ::umask(027);
  EXPECT_FALSE(write_file_atomically(folder.path() / "event.cwd", bytes_of(5)));
  EXPECT_EQ(::umask(old_mask), 027U) << "the mask is as it was";
  struct stat status {};
  ASSERT_EQ(::stat((folder.path() / "event.cwd").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST(AtomicFile, AFileThatIsReplacedKeepsItsMode) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  write_text(path, "the old event");
  ASSERT_EQ(::chmod(path.c_str(), 0620), 0);
  EXPECT_FALSE(write_file_atomically(path, bytes_of(5)));
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0620U);
}

TEST(AtomicFile, AWriteProtectedFileIsRefused) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  write_text(path, "the old event");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(write_file_atomically(path, bytes_of(5)), std::errc::permission_denied);
  EXPECT_EQ(file_text(path), "the old event");
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

TEST(AtomicFile, ALinkLeadsToTheFileThatIsReplaced) {
  const TemporaryFolder folder;
  const TemporaryFolder elsewhere;
  write_text(elsewhere.path() / "target.cwd", "the old event");
  std::filesystem::create_symlink(elsewhere.path() / "target.cwd", folder.path() / "event.cwd");
  EXPECT_FALSE(write_file_atomically(folder.path() / "event.cwd", bytes_of(5)));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "event.cwd"));
  EXPECT_EQ(file_bytes(elsewhere.path() / "target.cwd"), bytes_of(5));
  EXPECT_EQ(elsewhere.names(), Names{"target.cwd"});
}

TEST(AtomicFile, ALinkThatLeadsNowhereIsRefused) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("missing.cwd", folder.path() / "event.cwd");
  std::filesystem::create_symlink("loop.cwd", folder.path() / "loop.cwd");
  EXPECT_EQ(write_file_atomically(folder.path() / "event.cwd", bytes_of(5)),
            std::errc::no_such_file_or_directory);
  EXPECT_EQ(write_file_atomically(folder.path() / "loop.cwd", bytes_of(5)),
            std::errc::too_many_symbolic_link_levels);
  EXPECT_EQ(folder.names(), (Names{"event.cwd", "loop.cwd"}));
}

TEST(AtomicFile, WhatIsNoPlainFileIsRefused) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(write_file_atomically(path, bytes_of(5)), std::errc::not_supported);
  EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST(AtomicFile, ASignalThatEndsTheProgramLeavesNoTemporaryFile) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  const Bytes bytes = bytes_of(100000);
  for (int attempt = 0; attempt < 20; ++attempt) {
    const pid_t writer = ::fork();
    if (writer == 0) {
      while (!write_file_atomically(path, bytes)) {
      }
      ::_exit(1);
    }
    ::usleep(3000 + 700 * static_cast<useconds_t>(attempt));
    ::kill(writer, SIGTERM);
    int status = 0;
    ::waitpid(writer, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_LE(folder.names().size(), 1U) << "no name but the event's";
  }
  EXPECT_EQ(file_bytes(path), bytes);
}

TEST(AtomicFile, IntoAMissingFolderIsAnErrorAndMakesNoFolder) {
  const TemporaryFolder folder;
  const auto error = write_file_atomically(folder.path() / "missing" / "event.cwd", bytes_of(5));
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
  EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, OverAFolderIsAnErrorThatLeavesNoTemporaryFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "event.cwd");
  EXPECT_EQ(write_file_atomically(folder.path() / "event.cwd", bytes_of(5)),
            std::errc::is_a_directory);
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

TEST(AtomicFile, WithoutRoomTheOldFileStaysAndNoTemporaryFileDoes) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  write_text(path, "the old event");
  std::error_code error;
  {
    const FileSizeLimit limit(1000);
    error = write_file_atomically(path, bytes_of(1001));
  }
  EXPECT_EQ(error, std::errc::file_too_large);
  EXPECT_EQ(file_text(path), "the old event");
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

TEST(AtomicFile, WithJustEnoughRoomTheFileIsWritten) {
  const TemporaryFolder folder;
  const FileSizeLimit limit(1000);
  EXPECT_FALSE(write_file_atomically(folder.path() / "event.cwd", bytes_of(1000)));
  EXPECT_EQ(file_bytes(folder.path() / "event.cwd").size(), 1000U);
}

TEST(AtomicFile, IntoAFolderThatCannotBeWrittenIsAnError) {
  if (::geteuid() == 0) {
    GTEST_SKIP() << "the superuser may write into every folder";
  }
  const TemporaryFolder folder;
  std::filesystem::permissions(
      folder.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  const auto error = write_file_atomically(folder.path() / "event.cwd", bytes_of(5));
  std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(error, std::errc::permission_denied);
  EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, FilesBesideItAreLeftAlone) {
  const TemporaryFolder folder;
  write_text(folder.path() / "event.cwd.backup", "kept");
  EXPECT_FALSE(write_file_atomically(folder.path() / "event.cwd", bytes_of(5)));
  EXPECT_EQ(file_text(folder.path() / "event.cwd.backup"), "kept");
  EXPECT_EQ(folder.names(), (Names{"event.cwd", "event.cwd.backup"}));
}

}  // namespace
}  // namespace velquon
