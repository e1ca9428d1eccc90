// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/event_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>
#include <vector>

#include "files/number_in.h"
#include "files/one_line.h"

namespace velquon {

namespace {

/// The command line as it stands, before it is checked and narrowed.
struct RawOptions {
  std::string type;
  std::string field_kG = "0.6";
  std::string side_cm = "500";
  std::string energy_MeV = "0.4";
  std::string seed;
  std::string seeds;
  std::string events = "1";
  std::string format = "csv";
  std::string output;
  std::string jobs = "1";
  bool resume = false;
  bool progress = false;
  std::vector<std::string> summaries;
};

constexpr const char* end_of_options = "--";

/// More events than that in one run are a slip of the hand.
constexpr std::uint64_t most_events = 1'000'000'000;

/// More processes than that at a time are one, too.
constexpr unsigned most_jobs = 1024;

std::vector<std::string> type_keys() {
  std::vector<std::string> keys;
  std::ranges::transform(event_types(), std::back_inserter(keys),
                         [](const EventType& type) { return std::string(type.key); });
  return keys;
}

std::vector<std::string> format_keys() {
  std::vector<std::string> keys;
  std::ranges::transform(event_formats(), std::back_inserter(keys),
                         [](const FormatTraits& format) { return std::string(format.key); });
  return keys;
}

/// A validator that answers what is wrong when `accepts` does not take the whole text as a number.
template <typename Number>
CLI::Validator number_that(bool (*accepts)(Number), const std::string& what) {
  return {[accepts, what](std::string& text) -> std::string {
            const auto number = number_in<Number>(text);
            return number && accepts(*number) ? std::string() : "'" + text + "' is not " + what;
          },
          std::string()};
}

bool possible_field(double field) {
  return is_chamber_possible({.B_field = static_cast<float>(field)});
}
bool possible_side(double side) {
  return is_chamber_possible({.sides_cm = static_cast<float>(side)});
}
bool possible_energy(double energy) {
  const auto held = static_cast<float>(energy);
  return held > 0.0F && is_chamber_possible({.kinetic_Mev = held});
}
bool possible_seed(std::uint32_t /*seed*/) {
  return true;
}
bool possible_count(std::uint64_t count) {
  return count <= most_events;
}

bool possible_jobs(unsigned jobs) {
  return jobs >= 1 && jobs <= most_jobs;
}

/// FIRST-LAST as a range, if it is one and does not run backwards.
std::optional<SeedRange> range_in(std::string_view text) {
  const std::size_t dash = text.find('-');
  if (dash == std::string_view::npos) {
    return std::nullopt;
  }
  const auto first = number_in<std::uint32_t>(text.substr(0, dash));
  const auto last = number_in<std::uint32_t>(text.substr(dash + 1));
  if (!first || !last || *first > *last) {
    return std::nullopt;
  }
  return SeedRange{*first, *last};
}

CLI::Validator seed_range() {
  return {[](std::string& text) -> std::string {
            return range_in(text) ? std::string()
                                  : "'" + text +
                                        "' is not FIRST-LAST, two whole numbers up to 4294967295 "
                                        "that do not run backwards";
          },
          std::string()};
}

/// The options of a command line whose texts have all been checked.
EventOptions checked_options(const RawOptions& raw) {
  const auto held = [](const std::string& text) {
    return static_cast<float>(number_in<double>(text).value());
  };
  const auto types = event_types();
  if (!raw.summaries.empty()) {
    EventOptions options;
    options.summaries.assign(raw.summaries.begin(), raw.summaries.end());
    return options;
  }
  return {.type = &*std::ranges::find(types, raw.type, &EventType::key),
          .values = {.B_field = held(raw.field_kG),
                     .sides_cm = cm_from_metres(metres_from_cm(held(raw.side_cm))),
                     .kinetic_Mev = held(raw.energy_MeV)},
          .seed = number_in<std::uint32_t>(raw.seed),
          .seeds = range_in(raw.seeds),
          .events = number_in<std::uint64_t>(raw.events).value(),
          .format = std::ranges::find(event_formats(), raw.format, &FormatTraits::key)->format,
          .output =
              raw.output.empty() ? std::nullopt : std::optional<std::filesystem::path>(raw.output),
          .jobs = number_in<unsigned>(raw.jobs).value(),
          .resume = raw.resume,
          .progress = raw.progress,
          .summaries = {}};
}

/// What does not belong on the command line, in its order; a mistyped option comes ahead of what is
/// missing because of it.
void refuse_unknown_arguments(const CLI::App& app) {
  for (const std::string& argument : app.remaining()) {
    if (argument != end_of_options) {
      throw CLI::ValidationError("'" + argument + "'", "is not known to velquon-events");
    }
  }
}

/// The parts of a command line whose combinations are looked at.
struct KnownOptions {
  const CLI::Option* type;
  const CLI::Option* seeds;
  const CLI::Option* output;
  const CLI::Option* jobs;
  const CLI::Option* summaries;
};

void add_chamber_options(CLI::App& app, RawOptions& raw) {
  app.add_option("--field", raw.field_kG, "magnetic field, kG")
      ->type_name("KG")
      ->capture_default_str()
      ->check(number_that(possible_field, "a finite field in kG"));
  app.add_option("--side", raw.side_cm, "side of the chamber, cm")
      ->type_name("CM")
      ->capture_default_str()
      ->check(number_that(possible_side, "a finite side in cm above 0"));
  app.add_option("--energy", raw.energy_MeV, "kinetic energy of the incoming particle, MeV")
      ->type_name("MEV")
      ->capture_default_str()
      ->check(number_that(possible_energy, "a finite energy in MeV above 0"));
}

KnownOptions add_options(CLI::App& app, RawOptions& raw) {
  KnownOptions known{};
  known.type =
      app.add_option("--type", raw.type, "kind of event: pi-, pi+, pi0, mu-, mu+ or lambda")
          ->type_name("TYPE REQUIRED")
          ->check(CLI::IsMember(type_keys()));
  add_chamber_options(app, raw);
  auto* seed =
      app.add_option("--seed", raw.seed, "seed of the random generator (default: the clock)")
          ->type_name("N")
          ->check(number_that(possible_seed, "a whole number from 0 to 4294967295"));
  known.seeds =
      app.add_option("--seeds", raw.seeds, "seeds, each a run of its own into a file of its own")
          ->type_name("FIRST-LAST")
          ->excludes(seed)
          ->check(seed_range());
  app.add_option("--events", raw.events, "number of events, of each seed")
      ->type_name("COUNT")
      ->capture_default_str()
      ->check(number_that(possible_count, "a whole number from 0 to 1000000000"));
  app.add_option("--format", raw.format,
                 "points as csv, npy or cwd event files, what happened as particles or hepmc3, or "
                 "a summary")
      ->type_name("FORMAT")
      ->capture_default_str()
      ->check(CLI::IsMember(format_keys()));
  known.output = app.add_option("--output", raw.output,
                                "folder of the files, which take the place of earlier ones, or the "
                                "file of a single run (default: standard output or this folder)")
                     ->type_name("DIR");
  known.jobs = app.add_option("--jobs", raw.jobs, "seeds that are run at a time")
                   ->type_name("N")
                   ->capture_default_str()
                   ->check(number_that(possible_jobs, "a whole number from 1 to 1024"));
  app.add_flag("--resume", raw.resume, "leave out the seeds whose file is there");
  app.add_flag("--progress", raw.progress, "tell on standard error how far it is");
  known.summaries = app.add_option("--add-summaries", raw.summaries,
                                   "print the sum of these summaries and do nothing else")
                        ->type_name("FILE");
  return known;
}

/// Refuses what does not go together.
void check_combinations(const CLI::App& app, const KnownOptions& known, const RawOptions& raw) {
  if (*known.summaries) {
    for (const CLI::Option* option : app.get_options()) {
      if (*option && option != known.summaries) {
        throw CLI::ValidationError("--add-summaries", "goes without " + option->get_name());
      }
    }
    return;
  }
  if (!*known.type) {
    throw CLI::RequiredError("--type");
  }
  if (*known.output && raw.output.empty()) {
    throw CLI::ValidationError("--output", "no folder is named");
  }
  if (!*known.seeds && (*known.jobs || raw.resume)) {
    throw CLI::ValidationError(raw.resume ? "--resume" : "--jobs", "goes with --seeds");
  }
  if (!*known.seeds && *known.output && raw.format == "csv") {
    throw CLI::ValidationError("--output", "goes with --seeds or with another --format than csv");
  }
  if (!*known.seeds && !*known.output && raw.format == "npy") {
    throw CLI::ValidationError("--output", "is needed by --format npy");
  }
}

}  // namespace

ParsedOptions parse_event_options(int argc, const char* const* argv) {
  CLI::App app("Makes decay events in a particle-detector chamber, without a screen.",
               "velquon-events");
  RawOptions raw;
  app.set_version_flag("--version", "velquon-events " VELQUON_VERSION);
  app.allow_extras();
  const KnownOptions known = add_options(app, raw);
  try {
    app.parse(argc, argv);
    refuse_unknown_arguments(app);
    check_combinations(app, known, raw);
  } catch (const CLI::CallForHelp&) {
    return {std::nullopt, app.help(), 0};
  } catch (const CLI::CallForVersion& version) {
    return {std::nullopt, std::string(version.what()) + "\n", 0};
  } catch (const CLI::ParseError& error) {
    return {std::nullopt, "velquon-events: " + as_one_line(error.what()) + "\n", 2};
  }
  return {checked_options(raw), {}, 0};
}

}  // namespace velquon
