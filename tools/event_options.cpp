#include "tools/event_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <type_traits>
#include <vector>

namespace velquon {

namespace {

/// The command line as it stands, before it is checked and narrowed.
struct RawOptions {
  std::string type;
  std::string field_kG = "0.6";
  std::string side_cm = "500";
  std::string energy_MeV = "0.4";
  std::string seed;
  std::string events = "1";
  std::string format = "csv";
  std::string output = ".";
};

constexpr const char* end_of_options = "--";

/// More events than that in one run are a slip of the hand.
constexpr std::uint64_t most_events = 1'000'000'000;

/// The whole text as a number, if it is one. A whole number must fit; a double that is too small is
/// 0, one that is too large infinite.
template <typename Number>
std::optional<Number> number_in(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) {
    text.remove_prefix(1);
  }
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if constexpr (std::is_same_v<Number, double>) {
    if (error == std::errc::result_out_of_range && end == text.data() + text.size()) {
      return std::strtod(std::string(text).c_str(), nullptr);
    }
  }
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return number;
}

std::vector<std::string> type_keys() {
  std::vector<std::string> keys;
  std::ranges::transform(event_types(), std::back_inserter(keys),
                         [](const EventType& type) { return std::string(type.key); });
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

/// The options of a command line whose texts have all been checked.
EventOptions checked_options(const RawOptions& raw) {
  const auto held = [](const std::string& text) {
    return static_cast<float>(number_in<double>(text).value());
  };
  const auto types = event_types();
  return {.type = &*std::ranges::find(types, raw.type, &EventType::key),
          .values = {.B_field = held(raw.field_kG),
                     .sides_cm = cm_from_metres(metres_from_cm(held(raw.side_cm))),
                     .kinetic_Mev = held(raw.energy_MeV)},
          .seed = number_in<std::uint32_t>(raw.seed),
          .events = number_in<std::uint64_t>(raw.events).value(),
          .csv = raw.format == "csv",
          .output = raw.output};
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

}  // namespace

std::string as_one_line(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, '?');
  return text;
}

ParsedOptions parse_event_options(int argc, const char* const* argv) {
  CLI::App app("Makes decay events in a particle-detector chamber, without a screen.",
               "velquon-events");
  RawOptions raw;
  app.set_version_flag("--version", "velquon-events " VELQUON_VERSION);
  app.allow_extras();
  const auto* type_option =
      app.add_option("--type", raw.type, "kind of event: pi-, pi+, pi0, mu-, mu+ or lambda")
          ->type_name("TYPE REQUIRED")
          ->check(CLI::IsMember(type_keys()));
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
  app.add_option("--seed", raw.seed, "seed of the random generator (default: the clock)")
      ->type_name("N")
      ->check(number_that(possible_seed, "a whole number from 0 to 4294967295"));
  app.add_option("--events", raw.events, "number of events")
      ->type_name("COUNT")
      ->capture_default_str()
      ->check(number_that(possible_count, "a whole number from 0 to 1000000000"));
  app.add_option("--format", raw.format, "csv on standard output, or cwd event files")
      ->type_name("FORMAT")
      ->capture_default_str()
      ->check(CLI::IsMember({"csv", "cwd"}));
  const auto* output_option = app.add_option("--output", raw.output,
                                             "folder of the event files, which take the place of "
                                             "earlier ones (default: this one)")
                                  ->type_name("DIR");
  try {
    app.parse(argc, argv);
    refuse_unknown_arguments(app);
    if (!*type_option) {
      throw CLI::RequiredError("--type");
    }
    if (raw.output.empty()) {
      throw CLI::ValidationError("--output", "no folder is named");
    }
    if (*output_option && raw.format == "csv") {
      throw CLI::ValidationError("--output", "goes with --format cwd");
    }
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
