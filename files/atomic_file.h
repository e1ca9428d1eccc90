#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <system_error>

namespace velquon {

/// Writes a file whole or not at all: into a temporary file of the same folder, which then takes
/// the name. On an error the file of that name, if there is one, is as it was.
[[nodiscard]] std::error_code write_file_atomically(const std::filesystem::path& path,
                                                    std::span<const std::byte> bytes);

}  // namespace velquon
