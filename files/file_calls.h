// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <system_error>

#include "files/file_descriptor.h"

namespace velquon {

/// The error of a number such as errno; none for 0.
[[nodiscard]] std::error_code error_of(int number);
[[nodiscard]] std::error_code last_error();

/// True for an errno by which a file system says that it does not know what it was asked for.
[[nodiscard]] bool is_lack_of_support(int number);

/// Opens a file without a name for writing; errno says why there is none.
[[nodiscard]] FileDescriptor open_without_name(int folder);
/// Opens a file of a name that is still free for writing; errno says why there is none.
[[nodiscard]] FileDescriptor open_new(int folder, const std::string& name);
/// A path by which an open file can be given a name.
[[nodiscard]] std::string link_to(int file);

/// Writes all bytes, in as many pieces as the system takes them.
[[nodiscard]] std::error_code write_all(int file, std::span<const std::byte> bytes);
[[nodiscard]] std::error_code write_all_at(int file, std::uint64_t offset,
                                           std::span<const std::byte> bytes);

/// Waits until all that was written is on the disk.
[[nodiscard]] std::error_code sync_file(int file);
/// The same for the names in a folder; none where the file system or the folder's rights do not
/// let it.
[[nodiscard]] std::error_code sync_folder(int folder);

}  // namespace velquon
