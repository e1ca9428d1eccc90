#include "files/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

namespace velquon {

namespace {

std::error_code last_error() {
  return {errno, std::generic_category()};
}

std::error_code write_all(int file, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) {
      continue;
    }
    if (written < 0) {
      return last_error();
    }
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return {};
}

/// The mode that a plain open would give; a temporary file starts out private.
std::error_code give_usual_mode(int file) {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return ::fchmod(file, 0666U & ~mask) == 0 ? std::error_code() : last_error();
}

std::error_code fill_and_rename(int file, const std::string& temporary,
                                const std::filesystem::path& path,
                                std::span<const std::byte> bytes) {
  std::error_code error = write_all(file, bytes);
  if (!error) {
    error = give_usual_mode(file);
  }
  if (!error && ::fsync(file) != 0) {
    error = last_error();
  }
  if (::close(file) != 0 && !error) {
    error = last_error();
  }
  if (!error && ::rename(temporary.c_str(), path.c_str()) != 0) {
    error = last_error();
  }
  return error;
}

}  // namespace

std::error_code write_file_atomically(const std::filesystem::path& path,
                                      std::span<const std::byte> bytes) {
  // A short name of its own, so that a name as long as the file system allows can still be saved.
  std::string temporary = (path.parent_path() / ".velquon-XXXXXX").string();
  const int file = ::mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) {
    return last_error();
  }
  const std::error_code error = fill_and_rename(file, temporary, path, bytes);
  if (error) {
    ::unlink(temporary.c_str());
  }
  return error;
}

}  // namespace velquon
