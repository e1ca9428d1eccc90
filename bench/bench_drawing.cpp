// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A drawing pass of the chamber view without bringing it to the screen: the array of cubes against
// a cube a GLUT call, and against a pass without an event.
//
// The picture is drawn into a framebuffer object of the view's size, as a view draws into its own,
// and every pass ends with glFinish, so that none is left in a queue when the clock is read.

#include <GL/freeglut.h>
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <cstdio>
#include <span>

#include "bench/requirement.h"
#include "bench/tracks.h"
#include "render/chamber_scene.h"
#include "widgets/surface_format.h"

namespace velquon::bench {

namespace {

constexpr int drawing_repetitions = 21;
constexpr double shortest_drawing_time = 0.05;  // seconds of one repetition

/// Draws a scene again and again, and something else after it.
template <typename DrawBesides>
void draw_passes(benchmark::State& state, std::span<const PlotPoint> points,
                 DrawBesides draw_besides) {
  ChamberScene scene;
  scene.setPoints(points);
  Camera camera;
  for ([[maybe_unused]] auto _ : state) {
    scene.draw(camera, 1.0, points.size(), {});
    draw_besides();
    glFinish();
    // What a view does ahead of its next step; the picture is never the same twice.
    camera.turn(0.5, along_z);
  }
  if (glGetError() != GL_NO_ERROR) {
    state.SkipWithError("OpenGL reports an error");
  }
  state.counters["passes/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void empty_passes(benchmark::State& state) {
  draw_passes(state, {}, [] {});
}

void array_passes(benchmark::State& state) {
  const auto points = points_on_tracks(static_cast<int>(state.range()));
  draw_passes(state, points, [] {});
}

void glut_passes(benchmark::State& state) {
  const auto points = points_on_tracks(static_cast<int>(state.range()));
  draw_passes(state, {}, [&] { draw_solid_cubes(points, screen_cube_side, false); });
}

/// A context that draws into a picture of the view's size.
class Canvas {
 public:
  Canvas() {
    surface_.create();
    if (!context_.create() || !context_.makeCurrent(&surface_)) {
      return;
    }
    picture_ = std::make_unique<QOpenGLFramebufferObject>(
        chamber_width, chamber_height, QOpenGLFramebufferObject::CombinedDepthStencil);
    ready_ = picture_->bind();
  }

  [[nodiscard]] bool ready() const { return ready_; }

 private:
  QOffscreenSurface surface_;
  QOpenGLContext context_;
  std::unique_ptr<QOpenGLFramebufferObject> picture_;
  bool ready_ = false;
};

int measure_drawing(int argc, char** argv) {
  use_compatibility_contexts();
  const QGuiApplication application(argc, argv);
  glutInit(&argc, argv);
  const Canvas canvas;
  if (!canvas.ready()) {
    std::fputs("bench_drawing: no OpenGL context\n", stderr);
    return 1;
  }
  std::printf("OpenGL: %s\n", reinterpret_cast<const char*>(glGetString(GL_RENDERER)));

  for (benchmark::internal::Benchmark* const measured :
       {benchmark::RegisterBenchmark("empty", empty_passes),
        benchmark::RegisterBenchmark("array", array_passes)->Arg(350)->Arg(5000),
        benchmark::RegisterBenchmark("glut", glut_passes)->Arg(350)->Arg(5000)}) {
    measured->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->MeasureProcessCPUTime()
        ->MinTime(shortest_drawing_time);
  }
  // How many times as fast in processor time of all threads, which on an idle machine is the time
  // on the clock.
  const auto gain = [](const Medians& medians, const std::string& points) {
    return medians.of("glut/" + points, "processor time") /
           medians.of("array/" + points, "processor time");
  };
  // Points that cost nothing would be as many times as fast: no array can do better.
  const auto most = [](const Medians& medians, const std::string& points) {
    return medians.of("glut/" + points, "processor time") / medians.of("empty", "processor time");
  };
  // The points alone, without the clearing and the lines of every pass.
  const auto gain_of_points = [](const Medians& medians, const std::string& points) {
    const double empty = medians.of("empty", "processor time");
    return (medians.of("glut/" + points, "processor time") - empty) /
           (medians.of("array/" + points, "processor time") - empty);
  };
  return run_benchmarks(argc, argv, drawing_repetitions,
                        {{"drawing 350 points, times a cube a GLUT call", Bound::at_least, 8.0,
                          [=](const Medians& m) { return gain(m, "350"); }},
                         {"a pass without points, times 350 by a cube a GLUT call", Bound::none,
                          0.0, [=](const Medians& m) { return most(m, "350"); }},
                         {"the 350 points alone, times a cube a GLUT call", Bound::none, 0.0,
                          [=](const Medians& m) { return gain_of_points(m, "350"); }},
                         {"drawing 5000 points, times a cube a GLUT call", Bound::at_least, 4.0,
                          [=](const Medians& m) { return gain(m, "5000"); }},
                         {"the 5000 points alone, times a cube a GLUT call", Bound::none, 0.0,
                          [=](const Medians& m) { return gain_of_points(m, "5000"); }},
                         {"drawing passes a second with 5000 points", Bound::at_least, 180.0,
                          [=](const Medians& m) { return m.of("array/5000", "passes/s"); }}});
}

}  // namespace

}  // namespace velquon::bench

int main(int argc, char** argv) {
  return velquon::bench::measure_drawing(argc, argv);
}
