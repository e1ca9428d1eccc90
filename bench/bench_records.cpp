// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What recording an event adds to making it, and what HepMC3 files cost beside that library's own
// writer.

#include <HepMC3/WriterAscii.h>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

#include "bench/requirement.h"
#include "events/event_types.h"
#include "files/hepmc3_event.h"
#include "files/hepmc3_writer.h"

namespace velquon::bench {

namespace {

constexpr int records_of_batch = 1000;
constexpr int records_repetitions = 21;

struct Setting {
  const char* name;
  ChamberValues values;
};
const std::vector<Setting> settings{{"start-up", {}},
                                    {"no field", {.B_field = 0.0F}},
                                    {"5 kG, 50 MeV", {.B_field = 5.0F, .kinetic_Mev = 50.0F}}};

void make_batch(benchmark::State& state, std::size_t type, const ChamberValues& values,
                ParticleRecord* record) {
  TrackBuffer event;
  for ([[maybe_unused]] auto _ : state) {
    std::srand(1);
    for (int i = 0; i < records_of_batch; ++i) {
      make_event(event_types()[type], values, event, record);
      benchmark::ClobberMemory();
    }
  }
}

/// Records of a pion's or a Lambda's events as they come.
std::vector<ParticleRecord> some_records(std::size_t type) {
  std::srand(1);
  std::vector<ParticleRecord> records(records_of_batch);
  TrackBuffer event;
  for (ParticleRecord& record : records) {
    make_event(event_types()[type], {.B_field = 2.0F, .kinetic_Mev = 50.0F}, event, &record);
  }
  return records;
}

Hepmc3Run some_run() {
  return {.type = "any", .values = {}, .seed = 1, .version = "1"};
}

/// A stream that takes everything and keeps nothing.
class Nowhere : public std::streambuf {
 protected:
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    benchmark::DoNotOptimize(text);
    return size;
  }
  int_type overflow(int_type character) override { return traits_type::not_eof(character); }
};

void write_ready_made(benchmark::State& state, std::size_t type) {
  const auto info = run_info_of(some_run());
  std::vector<HepMC3::GenEvent> events;
  for (const ParticleRecord& record : some_records(type)) {
    events.push_back(gen_event_of(events.size() + 1, record, info));
  }
  Nowhere nowhere;
  std::ostream stream(&nowhere);
  HepMC3::WriterAscii writer(stream, info);
  for ([[maybe_unused]] auto _ : state) {
    for (const HepMC3::GenEvent& event : events) {
      writer.write_event(event);
    }
  }
}

void write_records(benchmark::State& state, std::size_t type) {
  const auto records = some_records(type);
  const auto nowhere = [](std::span<const std::byte> bytes) {
    benchmark::DoNotOptimize(bytes.data());
    return std::error_code();
  };
  Hepmc3Writer writer(nowhere, some_run());
  for ([[maybe_unused]] auto _ : state) {
    std::uint64_t number = 0;
    for (const ParticleRecord& record : records) {
      if (writer.write(++number, record)) {
        state.SkipWithError("the output fails");
      }
    }
  }
}

double time_of(const Medians& medians, const std::string& name) {
  return medians.of(name, "processor time");
}

int measure_records(int argc, char** argv) {
  std::vector<Requirement> requirements;
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    const std::string key(event_types()[type].key);
    for (const Setting& setting : settings) {
      const std::string name = key + "/" + setting.name;
      add_benchmark("make/" + name, [type, values = setting.values](benchmark::State& state) {
        make_batch(state, type, values, nullptr);
      });
      add_benchmark("record/" + name, [type, values = setting.values](benchmark::State& state) {
        ParticleRecord record;
        make_batch(state, type, values, &record);
      });
      requirements.push_back({"recording " + key + " events, " + setting.name + ", of making them",
                              Bound::at_most, 1.15, [name](const Medians& medians) {
                                return time_of(medians, "record/" + name) /
                                       time_of(medians, "make/" + name);
                              }});
    }
    if (key == "pi-" || key == "lambda") {
      add_benchmark("ready/" + key,
                    [type](benchmark::State& state) { write_ready_made(state, type); });
      add_benchmark("hepmc3/" + key,
                    [type](benchmark::State& state) { write_records(state, type); });
      requirements.push_back({"HepMC3 files of " + key + ", speed of its writer's own",
                              Bound::at_least, 0.5, [key](const Medians& medians) {
                                return time_of(medians, "ready/" + key) /
                                       time_of(medians, "hepmc3/" + key);
                              }});
    }
  }
  return run_benchmarks(argc, argv, records_repetitions, requirements);
}

}  // namespace

}  // namespace velquon::bench

int main(int argc, char** argv) {
  return velquon::bench::measure_records(argc, argv);
}
