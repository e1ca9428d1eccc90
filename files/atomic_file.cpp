#include "files/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
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

/// Holds back the signals that end a program from outside, which would leave the temporary file.
class EndingSignalsHeld {
 public:
  EndingSignalsHeld() {
    sigset_t ending;
    ::sigemptyset(&ending);
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) {
      ::sigaddset(&ending, signal);
    }
    ::pthread_sigmask(SIG_BLOCK, &ending, &before_);
  }
  ~EndingSignalsHeld() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  EndingSignalsHeld(const EndingSignalsHeld&) = delete;
  EndingSignalsHeld& operator=(const EndingSignalsHeld&) = delete;

 private:
  sigset_t before_{};
};

/// What there is under a name, to be replaced.
struct Target {
  std::filesystem::path path;  ///< behind symbolic links
  mode_t mode = 0;
  std::error_code refusal;
};

/// The mode that a plain open would give; a temporary file starts out private.
mode_t usual_mode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666U & ~mask;
}

Target target_of(const std::filesystem::path& path) {
  std::error_code missing;
  const auto behind_links = std::filesystem::canonical(path, missing);
  struct stat status {};
  if (missing && std::filesystem::is_symlink(path)) {
    return {path, 0, missing};
  }
  if (missing || ::stat(behind_links.c_str(), &status) != 0) {
    return {path, usual_mode(), {}};
  }
  if (!S_ISREG(status.st_mode)) {
    const auto why = S_ISDIR(status.st_mode) ? std::errc::is_a_directory : std::errc::not_supported;
    return {behind_links, 0, std::make_error_code(why)};
  }
  if ((status.st_mode & 0222U) == 0 || ::access(behind_links.c_str(), W_OK) != 0) {
    return {behind_links, 0, std::make_error_code(std::errc::permission_denied)};
  }
  return {behind_links, status.st_mode & 0777U, {}};
}

std::error_code fill_and_rename(int file, const std::string& temporary, const Target& target,
                                std::span<const std::byte> bytes) {
  std::error_code error = write_all(file, bytes);
  if (!error && ::fchmod(file, target.mode) != 0) {
    error = last_error();
  }
  if (!error && ::fsync(file) != 0) {
    error = last_error();
  }
  if (::close(file) != 0 && !error) {
    error = last_error();
  }
  if (!error && ::rename(temporary.c_str(), target.path.c_str()) != 0) {
    error = last_error();
  }
  return error;
}

}  // namespace

std::error_code write_file_atomically(const std::filesystem::path& path,
                                      std::span<const std::byte> bytes) {
  const Target target = target_of(path);
  if (target.refusal) {
    return target.refusal;
  }
  const EndingSignalsHeld held;
  // A short name of its own, so that a name as long as the file system allows can still be saved.
  std::string temporary = (target.path.parent_path() / ".velquon-XXXXXX").string();
  const int file = ::mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) {
    return last_error();
  }
  const std::error_code error = fill_and_rename(file, temporary, target, bytes);
  if (error) {
    ::unlink(temporary.c_str());
  }
  return error;
}

}  // namespace velquon
