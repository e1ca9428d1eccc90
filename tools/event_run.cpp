// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/event_run.h"

#include <cstdlib>

#include "files/event_file.h"
#include "tools/event_writer.h"

namespace velquon {

namespace {

/// A summary writes nothing until its end, but a signal is to end its run before.
constexpr std::uint64_t events_between_looks_for_signals = 64;

/// Makes one event; one that its chain does not hand over has no points.
void make_next_event(const EventOptions& options, TrackBuffer& event, ParticleRecord* record) {
  if (make_event(*options.type, options.values, event, record) == HandOver::no) {
    event.count = 0;
  }
}

std::filesystem::path event_file_path(const std::filesystem::path& folder, std::uint64_t number) {
  std::string digits = std::to_string(number);
  digits.insert(0, digits.size() < 6 ? 6 - digits.size() : 0, '0');
  return folder / ("event-" + digits + ".cwd");
}

}  // namespace

std::optional<WriteFailure> run_into_target(const EventOptions& options, std::uint32_t seed,
                                            OutputTarget& target, const EventCounter& counter) {
  std::srand(seed);
  const auto writer = make_event_writer(
      options.format, target, {.type = options.type, .values = options.values, .seed = seed});
  TrackBuffer event;
  ParticleRecord record;
  ParticleRecord* const wanted = traits_of(options.format).record ? &record : nullptr;
  for (std::uint64_t number = 1; number <= options.events; ++number) {
    make_next_event(options, event, wanted);
    if (const std::error_code error = writer->write(number, event.points(), record)) {
      return WriteFailure{target.name(), error};
    }
    counter(number);
    if (number % events_between_looks_for_signals == 0) {
      if (const std::error_code error = target.heedSignals()) {
        return WriteFailure{target.name(), error};
      }
    }
  }
  std::error_code error = writer->finish();
  if (!error) {
    error = target.commit();
  }
  return error ? std::optional<WriteFailure>({target.name(), error}) : std::nullopt;
}

EventFilesResult run_into_event_files(const EventOptions& options, std::uint32_t seed,
                                      const std::filesystem::path& folder,
                                      const EventCounter& counter) {
  std::error_code folder_error;
  if (!std::filesystem::is_directory(folder, folder_error)) {
    const auto why = folder_error ? folder_error : std::make_error_code(std::errc::not_a_directory);
    return {WriteFailure{event_file_path(folder, 1).string(), why}};
  }
  std::srand(seed);
  TrackBuffer event;
  EventFilesResult result;
  for (std::uint64_t number = 1; number <= options.events; ++number) {
    make_next_event(options, event, nullptr);
    if (event.count == 0) {
      ++result.without_points;
    } else {
      const auto path = event_file_path(folder, number);
      if (const auto error =
              write_file_atomically(path, encode_event(event.points(), options.values))) {
        result.failure = {path.string(), error};
        return result;
      }
    }
    counter(number);
  }
  return result;
}

}  // namespace velquon
