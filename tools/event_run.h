// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

#include "tools/event_options.h"
#include "tools/output_target.h"

namespace velquon {

/// What could not be written, and why.
struct WriteFailure {
  std::string name;
  std::error_code error;
};

/// Outcome of a run into event files.
struct EventFilesResult {
  std::optional<WriteFailure> failure;
  std::uint64_t without_points = 0;  ///< events that got no file
};

/// Is told after each event how many there are.
using EventCounter = std::function<void(std::uint64_t)>;

/// Makes the events of one seed and writes them, in a format that puts a run into one target.
/// \param target begun by the caller; a file has its name afterwards unless something failed
[[nodiscard]] std::optional<WriteFailure> run_into_target(const EventOptions& options,
                                                          std::uint32_t seed, OutputTarget& target,
                                                          const EventCounter& counter);

/// Makes the events of one seed and writes those with points as event files of a folder, which must
/// be there.
[[nodiscard]] EventFilesResult run_into_event_files(const EventOptions& options, std::uint32_t seed,
                                                    const std::filesystem::path& folder,
                                                    const EventCounter& counter);

}  // namespace velquon
