// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Events a second of every kind, and what writing them as CSV text adds.
//
// One iteration makes a batch of events from one seed, so every repetition does the same work, with
// and without the text. The events cannot be optimised away: they are made behind a pointer to
// their chain in another library, and their draws change the state of the C library's generator.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "bench/requirement.h"
#include "events/event_types.h"
#include "files/csv_writer.h"

namespace velquon::bench {

namespace {

constexpr int batch = 1000;
constexpr int events_repetitions = 21;

constexpr std::size_t positive_pion = 1;

/// Makes the events of one batch and hands each to `use`.
template <typename Use>
void make_batch(const EventType& type, const ChamberValues& values, TrackBuffer& event, Use use) {
  std::srand(1);
  for (int i = 0; i < batch; ++i) {
    if (make_event(type, values, event) == HandOver::no) {
      event.count = 0;
    }
    use(event);
  }
}

void count_events(benchmark::State& state, std::int64_t points) {
  const auto events = static_cast<double>(state.iterations()) * batch;
  state.counters["events/s"] = benchmark::Counter(events, benchmark::Counter::kIsRate);
  state.counters["points/event"] = static_cast<double>(points) / events;
}

void generation(benchmark::State& state, std::size_t type, const ChamberValues& values) {
  TrackBuffer event;
  std::int64_t points = 0;
  for ([[maybe_unused]] auto _ : state) {
    make_batch(event_types()[type], values, event,
               [&](const TrackBuffer& made) { points += made.count; });
    benchmark::ClobberMemory();
  }
  count_events(state, points);
}

void generation_and_text(benchmark::State& state, std::size_t type, const ChamberValues& values) {
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  const std::unique_ptr<std::FILE, Close> nowhere(std::fopen("/dev/null", "w"));
  if (nowhere == nullptr) {
    state.SkipWithError("/dev/null does not open");
    return;
  }
  TrackBuffer event;
  std::int64_t points = 0;
  for ([[maybe_unused]] auto _ : state) {
    CsvWriter writer(output_to(nowhere.get()));
    std::uint64_t number = 0;
    bool failed = false;
    make_batch(event_types()[type], values, event, [&](const TrackBuffer& made) {
      points += made.count;
      failed = failed || writer.write(++number, made.points());
    });
    if (failed || writer.finish()) {
      state.SkipWithError("/dev/null does not take the text");
    }
  }
  count_events(state, points);
}

std::string name_of(const std::string& what, std::size_t type, const std::string& values) {
  return what + "/" + std::string(event_types()[type].key) + "/" + values;
}

int measure_events(int argc, char** argv) {
  struct Setting {
    const char* name;
    ChamberValues values;
  };
  const std::vector<Setting> settings{{"start-up", {}},
                                      {"no field", {.B_field = 0.0F}},
                                      {"5 kG, 50 MeV", {.B_field = 5.0F, .kinetic_Mev = 50.0F}},
                                      {"9999 MeV", {.kinetic_Mev = 9999.0F}}};
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    for (const auto& [setting, values] : settings) {
      add_benchmark(
          name_of("make", type, setting),
          [type, chosen = values](benchmark::State& state) { generation(state, type, chosen); });
    }
    add_benchmark(name_of("make+csv", type, settings.front().name),
                  [type](benchmark::State& state) { generation_and_text(state, type, {}); });
  }

  const auto rate = [](const Medians& medians, const std::string& what, std::size_t type) {
    return medians.of(name_of(what, type, "start-up"), "events/s");
  };
  std::vector<Requirement> requirements{
      {"pion events a second, one core, start-up values", Bound::at_least, 100'000.0,
       [=](const Medians& medians) { return rate(medians, "make", positive_pion); }}};
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    const std::string key(event_types()[type].key);
    requirements.push_back({"writing " + key + " events as CSV, times as fast as making them",
                            Bound::at_least, 0.25, [=](const Medians& medians) {
                              const double making = 1.0 / rate(medians, "make", type);
                              return making / (1.0 / rate(medians, "make+csv", type) - making);
                            }});
    requirements.push_back({"making and writing " + key + " events, share of making alone",
                            Bound::none, 0.0, [=](const Medians& medians) {
                              return rate(medians, "make+csv", type) / rate(medians, "make", type);
                            }});
  }
  return run_benchmarks(argc, argv, events_repetitions, requirements);
}

}  // namespace

}  // namespace velquon::bench

int main(int argc, char** argv) {
  return velquon::bench::measure_events(argc, argv);
}
