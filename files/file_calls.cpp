// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/file_calls.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace velquon {

namespace {

/// Repeats a call that a signal interrupts.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  return result;
}

/// Hands the bytes to `write`, which says how many it took, until it has taken all.
template <typename Write>
std::error_code write_pieces(std::span<const std::byte> bytes, Write write) {
  while (!bytes.empty()) {
    const ssize_t written = uninterrupted([&] { return write(bytes); });
    if (written <= 0) {
      return written < 0 ? last_error() : error_of(EIO);
    }
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return {};
}

FileDescriptor open_private(int folder, const char* name, int flags) {
  return FileDescriptor(uninterrupted(
      [&] { return ::openat(folder, name, O_WRONLY | O_CLOEXEC | flags, S_IRUSR | S_IWUSR); }));
}

}  // namespace

std::error_code error_of(int number) {
  return {number, std::generic_category()};
}

std::error_code last_error() {
  return error_of(errno);
}

bool is_lack_of_support(int number) {
  switch (number) {
    case EOPNOTSUPP:
    case ENOSYS:
    case EINVAL:
    case EISDIR:  // a kernel that does not know files without a name
    case EPERM:
      return true;
    default:
      return false;
  }
}

FileDescriptor open_without_name(int folder) {
  if (::access("/proc/self/fd", X_OK) != 0) {
    errno = EOPNOTSUPP;  // it could never get a name
    return {};
  }
  return open_private(folder, ".", O_TMPFILE);
}

FileDescriptor open_new(int folder, const std::string& name) {
  return open_private(folder, name.c_str(), O_CREAT | O_EXCL);
}

std::string link_to(int file) {
  return "/proc/self/fd/" + std::to_string(file);
}

std::error_code write_all(int file, std::span<const std::byte> bytes) {
  return write_pieces(bytes, [file](std::span<const std::byte> rest) {
    return ::write(file, rest.data(), rest.size());
  });
}

std::error_code write_all_at(int file, std::uint64_t offset, std::span<const std::byte> bytes) {
  const std::size_t size = bytes.size();
  return write_pieces(bytes, [=](std::span<const std::byte> rest) {
    return ::pwrite(file, rest.data(), rest.size(),
                    static_cast<off_t>(offset + size - rest.size()));
  });
}

std::error_code sync_file(int file) {
  return uninterrupted([file] { return ::fsync(file); }) == 0 ? std::error_code() : last_error();
}

std::error_code sync_folder(int folder) {
  const FileDescriptor readable(uninterrupted(
      [folder] { return ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  if (!readable.is_open()) {
    return errno == EACCES ? std::error_code() : last_error();
  }
  const std::error_code error = sync_file(readable.number());
  return is_lack_of_support(error.value()) ? std::error_code() : error;
}

}  // namespace velquon
