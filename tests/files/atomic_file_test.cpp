// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/file_size_limit.h"
#include "tests/support/plain_rights.h"
#include "tests/support/temporary_folder.h"

namespace velquon {
namespace {

using test::file_bytes;
using test::file_text;
using test::FileSizeLimit;
using test::TemporaryFolder;
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

/// Makes a socket with a name of its own.
void make_socket(const std::filesystem::path& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.string().copy(address.sun_path, sizeof address.sun_path - 1);
  const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  ASSERT_EQ(::bind(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
}

TEST(AtomicFile, WhatIsNoRegularFileIsRefusedWithItsKind) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
  make_socket(folder.path() / "socket");
  std::filesystem::create_directory(folder.path() / "folder");
  std::filesystem::create_symlink("/dev/null", folder.path() / "device");
  std::filesystem::create_symlink("pipe", folder.path() / "link");
  const std::vector<std::pair<std::string, std::string>> kinds{
      {"pipe", "Is a named pipe, not a file"},
      {"link", "Is a named pipe, not a file"},
      {"socket", "Is a socket, not a file"},
      {"device", "Is a device, not a file"},
      {"folder", "Is a directory"}};
  for (const auto& [name, reason] : kinds) {
    const auto before = std::filesystem::status(folder.path() / name).type();
    EXPECT_EQ(write_file_atomically(folder.path() / name, bytes_of(5)).message(), reason);
    EXPECT_EQ(std::filesystem::status(folder.path() / name).type(), before);
  }
  EXPECT_EQ(write_file_atomically(folder.path() / "pipe", bytes_of(5)), std::errc::not_supported);
  EXPECT_EQ(folder.names(), (Names{"device", "folder", "link", "pipe", "socket"}));
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
  const TemporaryFolder folder;
  std::filesystem::permissions(
      folder.path(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  const int error = test::with_plain_rights(
      [&] { return write_file_atomically(folder.path() / "event.cwd", bytes_of(5)).value(); });
  std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(error, EACCES);
  EXPECT_EQ(folder.names(), Names{});
}

TEST(AtomicFile, IntoAFolderThatCannotBeReadIsWritten) {
  const TemporaryFolder folder;
  std::filesystem::permissions(
      folder.path(), std::filesystem::perms::owner_write | std::filesystem::perms::owner_exec);
  const int error = test::with_plain_rights(
      [&] { return write_file_atomically(folder.path() / "event.cwd", bytes_of(5)).value(); });
  std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(error, 0);
  EXPECT_EQ(file_bytes(folder.path() / "event.cwd"), bytes_of(5));
}

TEST(AtomicFile, IsWrittenPieceByPieceAndItsBeginningLast) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "events.npy";
  AtomicFile file;
  ASSERT_FALSE(file.open(path));
  Bytes expected;
  for (unsigned piece = 0; piece < 50; ++piece) {
    const Bytes bytes = bytes_of(3000 + piece, piece);
    EXPECT_FALSE(file.write(bytes));
    expected.insert(expected.end(), bytes.begin(), bytes.end());
    EXPECT_EQ(folder.names(), Names{}) << "nothing is there before it is complete";
  }
  const Bytes header = bytes_of(64, 99);
  EXPECT_FALSE(file.overwrite(8, header));
  std::ranges::copy(header, expected.begin() + 8);
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(file_bytes(path), expected);
  EXPECT_EQ(folder.names(), Names{"events.npy"});
}

TEST(AtomicFile, WithoutCommitNothingIsWritten) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  write_text(path, "the old event");
  {
    AtomicFile file;
    ASSERT_FALSE(file.open(path));
    EXPECT_FALSE(file.write(bytes_of(500)));
  }
  EXPECT_EQ(file_text(path), "the old event");
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
}

TEST(AtomicFile, AFileThatAppearsMeanwhileIsReplaced) {
  const TemporaryFolder folder;
  const auto path = folder.path() / "event.cwd";
  AtomicFile file;
  ASSERT_FALSE(file.open(path));
  EXPECT_FALSE(file.write(bytes_of(500)));
  write_text(path, "somebody else's");
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(file_bytes(path), bytes_of(500));
  EXPECT_EQ(folder.names(), Names{"event.cwd"});
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
