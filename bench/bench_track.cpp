// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A step of the track window, with its drawing, on a short and on a long track: it draws the newest
// points over the picture, so what it costs must not grow with the track. And how many steps a
// second the program makes at the fastest screen speed, nominally 200.
//
// The program's own window is up. For the cost of a step its timer is stopped and the steps are made
// one by one; each is timed for itself, in processor time of the whole process, renderer included.
// On the way to a long track the view is hidden, where a step draws nothing.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <vector>

#include "app/application.h"
#include "app/desktop.h"
#include "app/desktop_dialogs.h"
#include "app/menus.h"
#include "app/x_display.h"
#include "bench/event_loop.h"
#include "bench/processor_time.h"
#include "bench/requirement.h"
#include "model/track_model.h"
#include "track/new_track_view.h"
#include "track/track_panel.h"
#include "track/track_window.h"
#include "ui_menus.h"
#include "widgets/value_slider.h"

namespace velquon::bench {

namespace {

constexpr int track_repetitions = 15;
constexpr int timed_steps = 150;

// In this field a track of speed 1 is a circle of radius 100: half of it when the particle comes in
// at the edge, and for ever when the field is switched on in the middle.
constexpr float bending_field = 0.2F;
constexpr int steps_to_the_middle = 245;

void set_field(TrackWindow& window, float field) {
  TrackPanel& panel = window.panel();
  panel.vSlider()->setFloatValue(field);
  panel.track_view()->setMagField(panel.vSlider());
}

int points_of(TrackWindow& window) {
  return window.model().simulation().show_points();
}

void make_steps(TrackWindow& window, int points) {
  while (window.model().is_tracking() && points_of(window) < points) {
    window.panel().track_view()->TrackWithTimer(nullptr);
  }
}

/// Starts a run; the timer of the last one stands still.
void inject(Application& application) {
  const NewTrackView& view = *application.trackWindow().panel().track_view();
  application.menus().items().inject_item->trigger();
  run_event_loop_until(
      [&] { return view.trackTimer() != nullptr && view.trackTimer()->isActive(); });
}

void step(benchmark::State& state, Application& application) {
  TrackWindow& window = application.trackWindow();
  NewTrackView& view = *window.panel().track_view();
  const auto points = static_cast<int>(state.range());
  const bool long_track = points > steps_to_the_middle;

  view.setSpeed(1.0F);
  set_field(window, long_track ? 0.0F : bending_field);
  inject(application);
  view.trackTimer()->stop();
  view.hide();
  if (long_track) {
    make_steps(window, steps_to_the_middle);
    set_field(window, bending_field);
  }
  make_steps(window, points - 1);
  view.show();
  run_event_loop(100);
  make_steps(window, points);

  std::vector<double> step_seconds;
  for ([[maybe_unused]] auto _ : state) {
    const int passes = view.passes();
    const double start = processor_seconds();
    view.TrackWithTimer(nullptr);
    step_seconds.push_back(processor_seconds() - start);
    state.SetIterationTime(step_seconds.back());
    if (view.passes() != passes + 1) {
      state.SkipWithError("a step did not draw");
      break;
    }
  }
  if (points_of(window) < points + timed_steps) {
    state.SkipWithError("the track ended early");
  }
  // A step that something else went into does not count.
  const auto middle = step_seconds.begin() + static_cast<std::ptrdiff_t>(step_seconds.size() / 2);
  std::nth_element(step_seconds.begin(), middle, step_seconds.end());
  state.counters["ms/step"] = *middle * 1e3;

  // The next run can be started when the particle has left.
  view.hide();
  set_field(window, 0.0F);
  make_steps(window, std::numeric_limits<int>::max());
  view.show();
}

void fly(benchmark::State& state, Application& application) {
  constexpr int flight = 1000;  // milliseconds, less than the way across takes
  TrackWindow& window = application.trackWindow();
  NewTrackView& view = *window.panel().track_view();
  view.setSpeed(1.0F);
  set_field(window, 0.0F);
  application.menus().items().faster_item->trigger();
  inject(application);
  for ([[maybe_unused]] auto _ : state) {
    const int before = points_of(window);
    const auto start = std::chrono::steady_clock::now();
    run_event_loop(flight);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(time.count());
    state.counters["steps/s"] = (points_of(window) - before) / time.count();
  }
  view.trackTimer()->stop();
  view.hide();
  make_steps(window, std::numeric_limits<int>::max());
  view.show();
}

int measure_track(int argc, char** argv) {
  if (const std::string missing = missing_for_windows(); !missing.empty()) {
    std::fprintf(stderr, "bench_track: %s\n", missing.c_str());
    return 1;
  }
  prepare_desktop();
  const QApplication qt_application(argc, argv);
  finish_desktop();
  DesktopDialogs dialogs;
  Application application(1, dialogs);
  application.showWindows();
  application.menus().items().activate_item->trigger();
  run_event_loop_until([&] {
    const QWindow* const window = application.trackWindow().windowHandle();
    return window != nullptr && window->isExposed();
  });
  run_event_loop(200);

  const auto step_it = [&application](benchmark::State& state) { step(state, application); };
  benchmark::RegisterBenchmark("step", step_it)
      ->Arg(100)
      ->Arg(9000)
      ->Unit(benchmark::kMillisecond)
      ->UseManualTime()
      ->Iterations(timed_steps);
  const auto fly_it = [&application](benchmark::State& state) { fly(state, application); };
  benchmark::RegisterBenchmark("fly", fly_it)
      ->Unit(benchmark::kMillisecond)
      ->UseManualTime()
      ->Iterations(1);
  constexpr double nominal_steps = 200.0;  // a second
  return run_benchmarks(
      argc, argv, track_repetitions,
      {{"track step after 9000 points, times one after 100", Bound::at_most, 1.1,
        [](const Medians& m) {
          return m.of("step/9000", "ms/step") / m.of("step/100", "ms/step");
        }},
       {"track steps at the fastest speed, share of 200 a second", Bound::none, 0.0,
        [](const Medians& m) { return m.of("fly", "steps/s") / nominal_steps; }}});
}

}  // namespace

}  // namespace velquon::bench

int main(int argc, char** argv) {
  return velquon::bench::measure_track(argc, argv);
}
