// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/event_output.h"

#include <fstream>
#include <sstream>
#include <string>
#include <system_error>

#include "files/one_line.h"
#include "tools/microsecond_seed.h"
#include "tools/progress.h"
#include "tools/seed_runs.h"
#include "tools/summary.h"

namespace velquon {

namespace {

std::uint32_t seed_of(const EventOptions& options) {
  return options.seed ? *options.seed : microsecond_seed();
}

/// A clock is not read after every event.
EventCounter counter_of(Progress& progress, std::uint64_t events) {
  return [&progress, events](std::uint64_t done) {
    if (done % 64 == 0 || done == events) {
      progress.show(done);
    }
  };
}

int write_one_target(const EventOptions& options, std::FILE* out, std::FILE* messages) {
  OutputTarget target;
  if (options.output) {
    std::error_code none;
    const bool folder = std::filesystem::is_directory(*options.output, none);
    const auto path =
        folder ? *options.output / traits_of(options.format).file_name : *options.output;
    if (const std::error_code error = target.open(path)) {
      return report(messages, {path.string(), error});
    }
  } else {
    target.use(out);
  }
  Progress progress = progress_on(messages, options.progress, options.events);
  const auto failure =
      run_into_target(options, seed_of(options), target, counter_of(progress, options.events));
  progress.end();
  return failure ? report(messages, *failure) : 0;
}

int write_event_files(const EventOptions& options, std::FILE* messages) {
  Progress progress = progress_on(messages, options.progress, options.events);
  const auto result = run_into_event_files(options, seed_of(options), options.output.value_or("."),
                                           counter_of(progress, options.events));
  progress.end();
  if (result.failure) {
    return report(messages, *result.failure);
  }
  std::fprintf(messages, "velquon-events: %s of %s events had no points and got no file\n",
               std::to_string(result.without_points).c_str(),
               std::to_string(options.events).c_str());
  return 0;
}

int refuse_summary(std::FILE* messages, const std::filesystem::path& path,
                   const std::string& reason) {
  std::fprintf(messages, "velquon-events: cannot add %s: %s\n", as_one_line(path.string()).c_str(),
               as_one_line(reason).c_str());
  return 1;
}

/// The text of a file; an empty one when it cannot be read, with errno set.
std::string text_of(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return file ? text.str() : std::string();
}

int add_summaries(const EventOptions& options, std::FILE* out, std::FILE* messages) {
  std::optional<Summary> total;
  for (const auto& path : options.summaries) {
    errno = 0;
    const std::string text = text_of(path);
    if (text.empty()) {
      const std::error_code error(errno, std::generic_category());
      return refuse_summary(messages, path, error ? error.message() : "it is empty");
    }
    const auto read = summary_from_json(text);
    if (const auto* reason = std::get_if<std::string>(&read)) {
      return refuse_summary(messages, path, *reason);
    }
    const auto& summary = std::get<Summary>(read);
    if (!total) {
      total = summary;
    } else if (const std::string reason = total->add(summary); !reason.empty()) {
      return refuse_summary(messages, path, reason);
    }
  }
  const std::string text = to_json(total.value());
  const std::error_code error = output_to(out)(std::as_bytes(std::span(text)));
  return error ? report(messages, {"standard output", error}) : 0;
}

}  // namespace

int report(std::FILE* messages, const WriteFailure& failure) {
  std::fprintf(messages, "velquon-events: cannot write %s: %s\n", as_one_line(failure.name).c_str(),
               failure.error.message().c_str());
  return 1;
}

int write_events(const EventOptions& options, std::FILE* out, std::FILE* messages) {
  if (!options.summaries.empty()) {
    return add_summaries(options, out, messages);
  }
  if (options.seeds) {
    return run_seeds(options, messages);
  }
  return options.format == EventFormat::cwd ? write_event_files(options, messages)
                                            : write_one_target(options, out, messages);
}

}  // namespace velquon
