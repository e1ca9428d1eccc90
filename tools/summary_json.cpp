// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The JSON form of a summary.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "tools/summary.h"

namespace velquon {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* format_name = "velquon-events summary";
constexpr std::uint64_t format_version = 1;

/// What does not look like a summary.
struct Unfit : std::runtime_error {
  using std::runtime_error::runtime_error;
};

int pdg_number(const std::string& text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || rest != end) {
    throw Unfit("'" + text + "' is no particle's number");
  }
  return number;
}

std::uint64_t count_in(const Json& object, const char* key) {
  const Json& value = object.at(key);
  if (!value.is_number_unsigned()) {
    throw Unfit(std::string("'") + key + "' is no count");
  }
  return value.get<std::uint64_t>();
}

double number_in(const Json& object, const char* key) {
  const Json& value = object.at(key);
  if (!value.is_number()) {
    throw Unfit(std::string("'") + key + "' is no number");
  }
  return value.get<double>();
}

Json json_of(const Sums& sums) {
  return {{"n", sums.n}, {"sum", sums.sum}, {"sum2", sums.sum2}};
}

Sums sums_in(const Json& object, const char* key) {
  const Json& sums = object.at(key);
  return {count_in(sums, "n"), number_in(sums, "sum"), number_in(sums, "sum2")};
}

Json json_of(const ParticleSums& sums) {
  Json fates = Json::object();
  for (std::size_t fate = 0; fate < sums.fates.size(); ++fate) {
    fates[std::string(name_of(static_cast<Fate>(fate)))] = sums.fates[fate];
  }
  Json modes = Json::object();
  for (const auto& [mode, count] : sums.modes) {
    modes[mode] = count;
  }
  return {{"n", sums.n},
          {"fates", fates},
          {"modes", modes},
          {"points", json_of(sums.points)},
          {"momentum_MeV", json_of(sums.momentum_MeV)},
          {"energy_MeV", json_of(sums.energy_MeV)},
          {"flight_cm", json_of(sums.flight_cm)}};
}

ParticleSums particle_sums_in(const Json& object) {
  ParticleSums sums;
  sums.n = count_in(object, "n");
  const Json& fates = object.at("fates");
  for (std::size_t fate = 0; fate < sums.fates.size(); ++fate) {
    sums.fates[fate] = count_in(fates, std::string(name_of(static_cast<Fate>(fate))).c_str());
  }
  const Json& modes = object.at("modes");
  for (const auto& [mode, count] : modes.items()) {
    sums.modes[mode] = count_in(modes, mode.c_str());
  }
  sums.points = sums_in(object, "points");
  sums.momentum_MeV = sums_in(object, "momentum_MeV");
  sums.energy_MeV = sums_in(object, "energy_MeV");
  sums.flight_cm = sums_in(object, "flight_cm");
  return sums;
}

std::uint32_t seed_in(const Json& run) {
  const std::uint64_t seed = count_in(run, "seed");
  if (seed > UINT32_MAX) {
    throw Unfit("a seed is too large");
  }
  return static_cast<std::uint32_t>(seed);
}

Summary summary_in(const Json& object) {
  if (object.at("format") != format_name || count_in(object, "version") != format_version) {
    throw Unfit("it is not called a summary of version 1");
  }
  Summary summary;
  summary.type = object.at("type").get<std::string>();
  summary.field_kG = static_cast<float>(number_in(object, "field_kG"));
  summary.side_cm = static_cast<float>(number_in(object, "side_cm"));
  summary.energy_MeV = static_cast<float>(number_in(object, "energy_MeV"));
  for (const Json& run : object.at("runs")) {
    summary.runs.push_back({seed_in(run), count_in(run, "events")});
  }
  summary.events = count_in(object, "events");
  summary.without_points = count_in(object, "without_points");
  summary.not_handed_over = count_in(object, "not_handed_over");
  summary.points = sums_in(object, "points");
  for (const auto& [number, sums] : object.at("particles").items()) {
    const int pdg = pdg_number(number);
    summary.particles[pdg] = particle_sums_in(sums);
  }
  return summary;
}

}  // namespace

std::string to_json(const Summary& summary) {
  Json runs = Json::array();
  for (const SummedRun& run : summary.runs) {
    runs.push_back({{"seed", run.seed}, {"events", run.events}});
  }
  Json particles = Json::object();
  for (const auto& [number, sums] : summary.particles) {
    particles[std::to_string(number)] = json_of(sums);
  }
  const Json object = {{"format", format_name},
                       {"version", format_version},
                       {"type", summary.type},
                       {"field_kG", summary.field_kG},
                       {"side_cm", summary.side_cm},
                       {"energy_MeV", summary.energy_MeV},
                       {"runs", runs},
                       {"events", summary.events},
                       {"without_points", summary.without_points},
                       {"not_handed_over", summary.not_handed_over},
                       {"points", json_of(summary.points)},
                       {"particles", particles}};
  return object.dump(2) + "\n";
}

std::variant<Summary, std::string> summary_from_json(const std::string& text) {
  try {
    return summary_in(Json::parse(text));
  } catch (const Json::parse_error&) {
    return "it is not JSON";
  } catch (const Json::exception&) {
    return "a field of a summary is missing or of another kind";
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace velquon
