// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The command-line tool that makes events with neither screen nor Qt.

#include <csignal>
#include <cstdio>

#include "files/standard_streams.h"
#include "tools/event_options.h"
#include "tools/event_output.h"

int main(int argc, char** argv) {
  velquon::keep_places_of_closed_streams();
  const velquon::ParsedOptions parsed = velquon::parse_event_options(argc, argv);
  if (!parsed.options) {
    std::FILE* const out = parsed.status == 0 ? stdout : stderr;
    const bool written = std::fputs(parsed.message.c_str(), out) >= 0 && std::fflush(out) == 0;
    return written ? parsed.status : 1;
  }
  // A file that grows beyond the user's limit is to be an error like any other, and leave no half.
  std::signal(SIGXFSZ, SIG_IGN);
  // So is a reader that has closed its end of a pipe.
  std::signal(SIGPIPE, SIG_IGN);
  return velquon::write_events(*parsed.options, stdout, stderr);
}
