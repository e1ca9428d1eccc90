#include "tools/event_output.h"

#include <array>
#include <cstdlib>
#include <string>
#include <system_error>

#include "files/atomic_file.h"
#include "files/event_file.h"
#include "tools/csv_writer.h"
#include "tools/microsecond_seed.h"

namespace velquon {

namespace {

int report(std::FILE* messages, const std::string& name, const std::error_code& error) {
  std::fprintf(messages, "velquon-events: cannot write %s: %s\n", as_one_line(name).c_str(),
               error.message().c_str());
  return 1;
}

/// Makes one event; one that its chain does not hand over has no points.
void make_next_event(const EventOptions& options, TrackBuffer& event) {
  if (make_event(*options.type, options.values, event) == HandOver::no) {
    event.count = 0;
  }
}

int write_csv(const EventOptions& options, std::FILE* out, std::FILE* messages) {
  CsvWriter writer(output_to(out));
  TrackBuffer event;
  for (std::uint64_t number = 1; number <= options.events; ++number) {
    make_next_event(options, event);
    if (const std::error_code error = writer.write(number, event.points())) {
      return report(messages, "standard output", error);
    }
  }
  if (const std::error_code error = writer.finish()) {
    return report(messages, "standard output", error);
  }
  return 0;
}

std::filesystem::path event_file_path(const std::filesystem::path& folder, std::uint64_t number) {
  std::string digits = std::to_string(number);
  digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
  return folder / ("event-" + digits + ".cwd");
}

int write_event_files(const EventOptions& options, std::FILE* messages) {
  std::error_code folder_error;
  if (!std::filesystem::is_directory(options.output, folder_error)) {
    return report(messages, event_file_path(options.output, 1).string(),
                  folder_error ? folder_error : std::make_error_code(std::errc::not_a_directory));
  }
  TrackBuffer event;
  std::uint64_t empty = 0;
  for (std::uint64_t number = 1; number <= options.events; ++number) {
    make_next_event(options, event);
    if (event.count == 0) {
      ++empty;
      continue;
    }
    const auto path = event_file_path(options.output, number);
    if (const auto error =
            write_file_atomically(path, encode_event(event.points(), options.values))) {
      return report(messages, path.string(), error);
    }
  }
  std::fprintf(messages, "velquon-events: %s of %s events had no points and got no file\n",
               std::to_string(empty).c_str(), std::to_string(options.events).c_str());
  return 0;
}

}  // namespace

int write_events(const EventOptions& options, std::FILE* out, std::FILE* messages) {
  std::srand(options.seed ? *options.seed : microsecond_seed());
  return options.csv ? write_csv(options, out, messages) : write_event_files(options, messages);
}

}  // namespace velquon
