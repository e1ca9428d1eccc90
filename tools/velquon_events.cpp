// The command-line tool that makes events with neither screen nor Qt.

#include <cstdio>

#include "tools/event_options.h"
#include "tools/event_output.h"

int main(int argc, char** argv) {
  const velquon::ParsedOptions parsed = velquon::parse_event_options(argc, argv);
  if (!parsed.options) {
    std::fputs(parsed.message.c_str(), parsed.status == 0 ? stdout : stderr);
    return parsed.status;
  }
  return velquon::write_events(*parsed.options, stdout, stderr);
}
