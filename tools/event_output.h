#pragma once

#include <cstdio>

#include "tools/event_options.h"

namespace velquon {

/// Makes the events that the options ask for, from one seeding, and writes them: as CSV to `out`,
/// or as event files into the output folder. Says on `messages` what went wrong.
/// \return status to end the program with, 0 or 1
int write_events(const EventOptions& options, std::FILE* out, std::FILE* messages);

}  // namespace velquon
