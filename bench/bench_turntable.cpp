// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The program's own windows with the turntable at its fastest rate: steps and frames a second, and
// how busy the process is, software renderer included.
//
// The steps are counted by the view itself, over some seconds of the wall clock, while the
// program's event loop runs as it does for a person.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QWindow>
#include <cstdio>

#include "app/application.h"
#include "app/desktop.h"
#include "app/desktop_dialogs.h"
#include "app/menus.h"
#include "app/x_display.h"
#include "bench/event_loop.h"
#include "bench/processor_time.h"
#include "bench/requirement.h"
#include "bench/tracks.h"
#include "chamber/chamber_view.h"
#include "chamber/chamber_window.h"
#include "projection/projector_window.h"
#include "ui_menus.h"

namespace velquon::bench {

namespace {

constexpr int turntable_repetitions = 3;
constexpr double nominal_steps = 200.0;  // a second, at the fastest rate
constexpr int settling_time = 500;       // milliseconds
constexpr int counting_time = 3000;      // milliseconds

void turn(benchmark::State& state, Application& application) {
  ChamberView& view = *application.chamberWindow().view();
  const Ui::Menus& items = application.menus().items();
  application.model().show(
      {.points = points_on_tracks(static_cast<int>(state.range())), .values = {}}, "Tracks", {});
  items.rotate_faster_item->trigger();
  items.rotate_item->trigger();
  run_event_loop(settling_time);

  double seconds = 0.0;
  double processor = 0.0;
  double steps = 0.0;
  double frames = 0.0;
  for ([[maybe_unused]] auto _ : state) {
    const double processor_start = processor_seconds();
    const std::int64_t first_step = view.rotation_steps();
    const int first_frame = view.passes();
    QElapsedTimer clock;
    clock.start();
    run_event_loop(counting_time);
    seconds += static_cast<double>(clock.nsecsElapsed()) * 1e-9;
    steps += static_cast<double>(view.rotation_steps() - first_step);
    frames += view.passes() - first_frame;
    processor += processor_seconds() - processor_start;
  }
  view.stopRotating();
  if (frames > steps) {
    state.SkipWithError("more frames than steps");
  }
  state.counters["steps/s"] = steps / seconds;
  state.counters["frames/s"] = frames / seconds;
  state.counters["processors"] = processor / seconds;
}

int measure_turntable(int argc, char** argv) {
  if (const std::string missing = missing_for_windows(); !missing.empty()) {
    std::fprintf(stderr, "bench_turntable: %s\n", missing.c_str());
    return 1;
  }
  prepare_desktop();
  const QApplication qt_application(argc, argv);
  finish_desktop();
  DesktopDialogs dialogs;
  Application application(1, dialogs);
  application.showWindows();
  run_event_loop_until([&] { return application.chamberWindow().windowHandle()->isExposed(); });
  const auto turn_it = [&application](benchmark::State& state) { turn(state, application); };
  benchmark::RegisterBenchmark("turn", turn_it)
      ->Arg(350)
      ->Arg(5000)
      ->Unit(benchmark::kMillisecond)
      ->UseRealTime()
      ->Iterations(1);
  return run_benchmarks(
      argc, argv, turntable_repetitions,
      {{"turntable steps with 350 points, share of 200 a second", Bound::at_least, 0.95,
        [](const Medians& m) { return m.of("turn/350", "steps/s") / nominal_steps; }},
       {"turntable steps with 5000 points, share of 200 a second", Bound::at_least, 0.95,
        [](const Medians& m) { return m.of("turn/5000", "steps/s") / nominal_steps; }}});
}

}  // namespace

}  // namespace velquon::bench

int main(int argc, char** argv) {
  return velquon::bench::measure_turntable(argc, argv);
}
