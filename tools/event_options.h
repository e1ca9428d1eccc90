// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "engine/chamber_values.h"
#include "events/event_types.h"
#include "tools/event_format.h"

namespace velquon {

/// Seeds from the first to the last, both included.
struct SeedRange {
  std::uint32_t first = 0;
  std::uint32_t last = 0;

  [[nodiscard]] std::uint64_t size() const { return std::uint64_t{last} - first + 1; }
};

/// What `velquon-events` is asked to do.
struct EventOptions {
  const EventType* type = nullptr;
  ChamberValues values;  ///< as the controls hold them
  std::optional<std::uint32_t> seed;
  std::optional<SeedRange> seeds;  ///< each of them a run with a file or folder of its own
  std::uint64_t events = 1;        ///< of each seed
  EventFormat format = EventFormat::csv;
  /// Folder of the event files or of the seeds' files, or the one file of a run. None: standard
  /// output, for what goes there; else the current folder.
  std::optional<std::filesystem::path> output;
  unsigned jobs = 1;      ///< seeds at a time
  bool resume = false;    ///< seeds whose file is there are left out
  bool progress = false;  ///< tell on standard error how far it is
  /// Not empty: add these summaries and nothing else.
  std::vector<std::filesystem::path> summaries;
};

/// Outcome of reading a command line: options, or what to print and the status to end with.
struct ParsedOptions {
  std::optional<EventOptions> options;
  std::string message;
  int status = 0;
};

/// Reads the command line. A bad argument gives one line and the status 2; a request for help or
/// the version gives its text and 0.
[[nodiscard]] ParsedOptions parse_event_options(int argc, const char* const* argv);

}  // namespace velquon
