// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <random>

#include "files/file_calls.h"

namespace velquon {

namespace {

constexpr int most_names_tried = 100;

/// A short name, so that a name as long as the file system allows can still be saved.
std::string some_temporary_name() {
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz012345";
  std::random_device random;
  std::string name = ".velquon-";
  for (int i = 0; i < 8; ++i) {
    name += letters[random() % letters.size()];
  }
  return name;
}

/// Hands temporary names to `make`, which answers an errno or 0, until one is not taken yet. The
/// first is `name`, unless that is empty.
template <typename Make>
std::error_code with_free_name(std::string& name, Make make) {
  int error = EEXIST;
  for (int i = 0; i < most_names_tried && error == EEXIST; ++i) {
    if (i > 0 || name.empty()) {
      name = some_temporary_name();
    }
    error = make(name);
  }
  return error_of(error);
}

/// What a process of its own does, with plain system calls only.
int link_and_rename(const std::string& link, int folder, const std::string& temporary,
                    const std::string& name) {
  if (::linkat(AT_FDCWD, link.c_str(), folder, temporary.c_str(), AT_SYMLINK_FOLLOW) != 0) {
    return errno;
  }
  if (::renameat(folder, temporary.c_str(), folder, name.c_str()) != 0) {
    const int error = errno;
    ::unlinkat(folder, temporary.c_str(), 0);
    return error;
  }
  return 0;
}

/// Opens the folder of a path as a place for calls that take one.
FileDescriptor open_folder_of(const std::filesystem::path& path) {
  const auto parent = path.parent_path();
  return FileDescriptor(
      ::open(parent.empty() ? "." : parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

bool is_named(int file, int folder, const std::string& name) {
  struct stat by_number {};
  struct stat by_name {};
  return ::fstat(file, &by_number) == 0 && ::fstatat(folder, name.c_str(), &by_name, 0) == 0 &&
         by_number.st_dev == by_name.st_dev && by_number.st_ino == by_name.st_ino;
}

}  // namespace

AtomicFile::~AtomicFile() {
  discard();
}

std::error_code AtomicFile::open(const std::filesystem::path& path, const std::string& temporary) {
  discard();
  target_ = find_save_target(path);
  name_ = target_.path.filename().string();
  failure_ = target_.refusal;
  return failure_ ? failure_ : done(begin(temporary));
}

std::error_code AtomicFile::begin(std::string temporary) {
  folder_ = open_folder_of(target_.path);
  if (!folder_.is_open()) {
    return last_error();
  }
  file_ = open_without_name(folder_.number());
  if (file_.is_open() || !is_lack_of_support(errno)) {
    return file_.is_open() ? std::error_code() : last_error();
  }
  held_.emplace(ending_signals());
  const std::error_code error = with_free_name(temporary, [this](const std::string& free_name) {
    file_ = open_new(folder_.number(), free_name);
    return file_.is_open() ? 0 : errno;
  });
  if (!error) {
    temporary_ = temporary;
  }
  return error;
}

std::error_code AtomicFile::write(std::span<const std::byte> bytes) {
  const std::error_code error = heedSignals();
  return error ? error : done(write_all(file_.number(), bytes));
}

std::error_code AtomicFile::heedSignals() {
  if (held_ && held_->end_waits()) {
    return done(std::make_error_code(std::errc::operation_canceled));
  }
  return failure_;
}

std::error_code AtomicFile::overwrite(std::uint64_t offset, std::span<const std::byte> bytes) {
  return failure_ ? failure_ : done(write_all_at(file_.number(), offset, bytes));
}

std::error_code AtomicFile::commit() {
  const std::error_code error = failure_ ? failure_ : finish();
  discard();
  return error;
}

std::error_code AtomicFile::finish() {
  if (::fchmod(file_.number(), target_.mode) != 0 && !is_lack_of_support(errno)) {
    return last_error();
  }
  if (const std::error_code error = sync_file(file_.number())) {
    return error;
  }
  if (const std::error_code error = take_name()) {
    return error;
  }
  return sync_folder(folder_.number());
}

std::error_code AtomicFile::take_name() {
  const int folder = folder_.number();
  if (!temporary_.empty()) {
    if (::renameat(folder, temporary_.c_str(), folder, name_.c_str()) != 0) {
      return last_error();
    }
    temporary_.clear();
    return {};
  }
  const std::string link = link_to(file_.number());
  if (::linkat(AT_FDCWD, link.c_str(), folder, name_.c_str(), AT_SYMLINK_FOLLOW) == 0) {
    return {};
  }
  return errno == EEXIST ? replace_target() : last_error();
}

// A file without a name cannot be linked over another. It gets a temporary name first, for the
// moment between two system calls, which a child process makes: the program may be killed meanwhile
// and the name is gone all the same.
std::error_code AtomicFile::replace_target() {
  const HeldSignals held(all_signals());
  const int folder = folder_.number();
  const std::string link = link_to(file_.number());
  std::string temporary;
  return with_free_name(temporary, [&](const std::string& free_name) {
    const pid_t child = ::_Fork();
    if (child == 0) {
      ::setsid();
      ::_exit(link_and_rename(link, folder, free_name, name_));
    }
    if (child < 0) {
      return link_and_rename(link, folder, free_name, name_);
    }
    int status = 0;
    if (::waitpid(child, &status, 0) == child && WIFEXITED(status)) {
      return WEXITSTATUS(status);
    }
    // The child was killed, or nobody may know how it ended.
    ::unlinkat(folder, free_name.c_str(), 0);
    return is_named(file_.number(), folder, name_) ? 0 : EIO;
  });
}

void AtomicFile::discard() {
  if (!temporary_.empty()) {
    ::unlinkat(folder_.number(), temporary_.c_str(), 0);
    temporary_.clear();
  }
  file_.close();
  folder_.close();
  held_.reset();
}

std::error_code AtomicFile::done(std::error_code error) {
  if (error) {
    failure_ = error;
    discard();
  }
  return error;
}

void remove_temporary(const std::filesystem::path& path, const std::string& temporary) {
  const FileDescriptor folder = open_folder_of(find_save_target(path).path);
  if (folder.is_open()) {
    ::unlinkat(folder.number(), temporary.c_str(), 0);
  }
}

std::error_code write_file_atomically(const std::filesystem::path& path,
                                      std::span<const std::byte> bytes) {
  AtomicFile file;
  if (const std::error_code error = file.open(path)) {
    return error;
  }
  if (const std::error_code error = file.write(bytes)) {
    return error;
  }
  return file.commit();
}

}  // namespace velquon
