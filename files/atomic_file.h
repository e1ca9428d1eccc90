#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <system_error>

namespace velquon {

/// Writes a file whole or not at all: into a temporary file of the same folder, which then takes
/// the name. On an error the file of that name, if there is one, is as it was. A file that is
/// replaced keeps its mode. A symbolic link leads to what is replaced; one that leads nowhere, what
/// may not be written and what is no plain file are refused. In a program of one thread the signals
/// that end it wait for the end of the writing.
[[nodiscard]] std::error_code write_file_atomically(const std::filesystem::path& path,
                                                    std::span<const std::byte> bytes);

}  // namespace velquon
