// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/types.h>

#include <filesystem>
#include <system_error>

namespace velquon {

/// Why what stands under a name is not replaced by a file, where the system's own errors do not say
/// it. All of these equal `std::errc::not_supported`.
enum class NotReplaceable {
  named_pipe = 1,
  device,
  socket,
  other,
};
[[nodiscard]] std::error_code make_error_code(NotReplaceable reason);

/// What there is under a name, to be replaced by a file.
struct SaveTarget {
  std::filesystem::path path;  ///< behind symbolic links
  mode_t mode = 0;             ///< of the file that is replaced, or of a new one
  std::error_code refusal;     ///< set when nothing may be written there
};

/// A symbolic link leads to what is replaced; one that leads nowhere, what may not be written and
/// what is no regular file are refused.
[[nodiscard]] SaveTarget find_save_target(const std::filesystem::path& path);

}  // namespace velquon

template <>
struct std::is_error_code_enum<velquon::NotReplaceable> : std::true_type {};
