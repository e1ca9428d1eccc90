// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/save_target.h"

#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace velquon {

namespace {

class NotReplaceableCategory : public std::error_category {
 public:
  [[nodiscard]] const char* name() const noexcept override { return "velquon.not_replaceable"; }

  [[nodiscard]] std::string message(int reason) const override {
    switch (static_cast<NotReplaceable>(reason)) {
      case NotReplaceable::named_pipe:
        return "Is a named pipe, not a file";
      case NotReplaceable::device:
        return "Is a device, not a file";
      case NotReplaceable::socket:
        return "Is a socket, not a file";
      case NotReplaceable::other:
        break;
    }
    return "Is not a file";
  }

  [[nodiscard]] std::error_condition default_error_condition(
      int /*reason*/) const noexcept override {
    return std::errc::not_supported;
  }
};

/// Why what has this mode is not replaced; nothing for a regular file.
std::error_code refusal_of(mode_t mode) {
  switch (mode & S_IFMT) {
    case S_IFREG:
      return {};
    case S_IFDIR:
      return std::make_error_code(std::errc::is_a_directory);
    case S_IFIFO:
      return NotReplaceable::named_pipe;
    case S_IFCHR:
    case S_IFBLK:
      return NotReplaceable::device;
    case S_IFSOCK:
      return NotReplaceable::socket;
    default:
      return NotReplaceable::other;
  }
}

/// The mode that a plain open would give; a file that is being written starts out private.
mode_t usual_mode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666U & ~mask;
}

}  // namespace

std::error_code make_error_code(NotReplaceable reason) {
  static const NotReplaceableCategory category;
  return {static_cast<int>(reason), category};
}

SaveTarget find_save_target(const std::filesystem::path& path) {
  std::error_code missing;
  std::error_code no_link;
  const auto behind_links = std::filesystem::canonical(path, missing);
  struct stat status {};
  if (missing && std::filesystem::is_symlink(path, no_link)) {
    return {path, 0, missing};
  }
  if (missing || ::stat(behind_links.c_str(), &status) != 0) {
    return {path, usual_mode(), {}};
  }
  if (const std::error_code refusal = refusal_of(status.st_mode)) {
    return {behind_links, 0, refusal};
  }
  if ((status.st_mode & 0222U) == 0 || ::access(behind_links.c_str(), W_OK) != 0) {
    return {behind_links, 0, std::make_error_code(std::errc::permission_denied)};
  }
  return {behind_links, status.st_mode & 0777U, {}};
}

}  // namespace velquon
