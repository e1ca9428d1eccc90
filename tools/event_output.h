// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdio>

#include "tools/event_options.h"
#include "tools/event_run.h"

namespace velquon {

/// Does what the options ask for: makes events and writes them to `out`, a file or a folder, or
/// adds summaries. Says on `messages` what went wrong.
/// \return status to end the program with, 0 or 1
int write_events(const EventOptions& options, std::FILE* out, std::FILE* messages);

/// Tells what could not be written, in one line.
/// \return the status for it
int report(std::FILE* messages, const WriteFailure& failure);

}  // namespace velquon
