#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "engine/chamber_values.h"
#include "events/event_types.h"

namespace velquon {

/// What `velquon-events` is asked to do.
struct EventOptions {
  const EventType* type = nullptr;
  ChamberValues values;  ///< as the controls hold them
  std::optional<std::uint32_t> seed;
  std::uint64_t events = 1;
  bool csv = true;
  std::filesystem::path output = ".";  ///< folder of the event files
};

/// Outcome of reading a command line: options, or what to print and the status to end with.
struct ParsedOptions {
  std::optional<EventOptions> options;
  std::string message;
  int status = 0;
};

/// The text with a question mark for every control character: what a terminal can show as one line
/// of a name that may hold anything.
[[nodiscard]] std::string as_one_line(std::string text);

/// Reads the command line. A bad argument gives one line and the status 2; a request for help or
/// the version gives its text and 0.
[[nodiscard]] ParsedOptions parse_event_options(int argc, const char* const* argv);

}  // namespace velquon
