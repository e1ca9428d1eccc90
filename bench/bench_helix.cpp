// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Nanoseconds a stored point of a long helix, against the floor of what a point cannot do without.
//
// Both loops run in one program and their repetitions take turns, so the ratio does not depend on
// how fast the machine happens to be.

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/helix_floor.h"
#include "bench/requirement.h"
#include "engine/charged_track.h"

namespace velquon::bench {

namespace {

constexpr std::int16_t points = event_point_limit;
constexpr double bound = 404.0;
constexpr int helix_repetitions = 25;
constexpr double shortest_helix_time = 0.05;  // seconds of one repetition

/// A circle well inside the chamber that rises slowly enough to stay there for all points.
HelixPath long_helix() {
  HelixPath path;
  path.dz = 1.0;
  path.dphi = -0.2;
  path.radius = 100.0;
  path.centre_x = 20.0;
  path.centre_y = -30.0;
  path.z = -175.0;
  path.phi = 1.0;
  path.code = 3;
  return path;
}

void count_points(benchmark::State& state) {
  state.counters["ns/point"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * points * 1e-9,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// The engine's walk. The points are reached through a pointer that the compiler has to believe is
/// read elsewhere, and the count that comes back is checked: nothing can be left out.
void walk(benchmark::State& state) {
  std::vector<PlotPoint> event(points + 1);
  for ([[maybe_unused]] auto _ : state) {
    HelixPath path = long_helix();
    std::int16_t count = 0;
    path_calculation(points, count, event, path, 4, bound, 1.0);
    benchmark::DoNotOptimize(event.data());
    benchmark::ClobberMemory();
    if (count != points) {
      state.SkipWithError("the helix ended early");
      break;
    }
  }
  count_points(state);
}

void floor_of_the_walk(benchmark::State& state) {
  std::vector<PlotPoint> event(points + 1);
  for ([[maybe_unused]] auto _ : state) {
    const std::size_t stored = store_points(event, 1.0, -0.2, bound);
    benchmark::DoNotOptimize(event.data());
    benchmark::ClobberMemory();
    if (stored != event.size()) {
      state.SkipWithError("the floor's loop ended early");
      break;
    }
  }
  state.counters["ns/point"] = benchmark::Counter(
      static_cast<double>(state.iterations()) * static_cast<double>(event.size()) * 1e-9,
      benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

int measure_helix(int argc, char** argv) {
  for (benchmark::internal::Benchmark* const measured :
       {benchmark::RegisterBenchmark("helix", walk),
        benchmark::RegisterBenchmark("floor", floor_of_the_walk)}) {
    measured->Unit(benchmark::kMicrosecond)->MinTime(shortest_helix_time);
  }
  return run_benchmarks(
      argc, argv, helix_repetitions,
      {{"point of a long helix, times the floor", Bound::at_most, 1.15, [](const Medians& medians) {
          return medians.of("helix", "ns/point") / medians.of("floor", "ns/point");
        }}});
}

}  // namespace

}  // namespace velquon::bench

int main(int argc, char** argv) {
  return velquon::bench::measure_helix(argc, argv);
}
