// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>

#include "tools/event_options.h"

namespace velquon {

/// The file of a seed in the output folder, or its folder for event files.
[[nodiscard]] std::filesystem::path seed_path(const EventOptions& options, std::uint32_t seed);

/// Runs each seed of the options' range in a process of its own, `jobs` at a time, into a file or
/// folder of its own that is complete or not there. A worker that is killed is told on `messages`, and
/// the others go on; after a file that cannot be written no more are begun; an interrupt, a hang-up
/// or a request to end stops them all.
/// \return status to end the program with: 0, 1 when a seed is missing, 128 and the number of the
///         signal that stopped the run
int run_seeds(const EventOptions& options, std::FILE* messages);

}  // namespace velquon
