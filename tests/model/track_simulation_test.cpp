// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_simulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

#include "model/track_drawing.h"

// The particle and its track, without a screen.

namespace velquon {
namespace {

constexpr double rounding = 1.0e-9;

constexpr TrackStart legacy{.y = 235.0, .time_interval = 0.25};

/// A run as the view makes it, without the drawing.
class ParticleRun {
 public:
  explicit ParticleRun(const LiveTrackSettings& settings, const TrackStart& start = timed_start) {
    simulation->settings = settings;
    simulation->launch();
    simulation->enter(start);
    simulation->setTracking(true);
    drawing.drawn(*simulation);
  }

  void step() {
    simulation->advance();
    drawings += drawing.needsClearing(*simulation) ? 1 : 0;
    drawing.drawn(*simulation);
    cleared += simulation->takeClearSignal() ? 1 : 0;
    const bool was_resetting = simulation->resetting;
    simulation->goOn();
    drawing.wentOn(*simulation, was_resetting);
    ++steps;
  }

  void steps_to(int count) {
    while (steps < count) {
      ASSERT_TRUE(simulation->canStep()) << "left the area at step " << steps;
      step();
    }
  }

  /// Steps until the particle cannot be moved on, or `most` times.
  void finish(int most = 20'000) {
    while (steps < most && simulation->canStep()) {
      step();
    }
  }

  [[nodiscard]] double x() const { return simulation->stepping().old_x; }
  [[nodiscard]] double y() const { return simulation->stepping().old_y; }

  std::unique_ptr<TrackSimulation> simulation = std::make_unique<TrackSimulation>();
  TrackDrawing drawing;
  int steps = 0;
  int cleared = 0;
  int drawings = 0;  ///< those that began with an empty picture
};

LiveTrackSettings electron(double B_field, double speed) {
  return {.B_field = B_field, .speed = speed, .charge = -1.0, .direction = 1};
}

LiveTrackSettings positron(double B_field, double speed) {
  return {.B_field = B_field, .speed = speed, .charge = 1.0, .direction = 1};
}

double radius_of(double B_field, double speed) {
  return speed / (2.0 * std::sin(0.025 * std::fabs(B_field)));
}

/// A particle that has gone some way into the area and then circles there.
ParticleRun circling(double B_field, double speed, double charge, int straight_steps) {
  ParticleRun run({.B_field = 0.0, .speed = speed, .charge = charge, .direction = 1});
  run.steps_to(straight_steps);
  run.simulation->settings.B_field = B_field;
  return run;
}

TEST(TrackSimulation, StartsWithoutAPointAndWithoutARun) {
  const auto simulation = std::make_unique<TrackSimulation>();
  EXPECT_EQ(simulation->show_points(), 0);
  EXPECT_FALSE(simulation->is_tracking());
  EXPECT_FALSE(simulation->clear_signal());
  EXPECT_EQ(simulation->time_interval(), 1.0);
  EXPECT_EQ(simulation->x_points().size(), 0U);
}

struct EntryCase {
  std::int32_t direction;
  double x;
  double vx;
};

class TrackEntry : public ::testing::TestWithParam<EntryCase> {};

TEST_P(TrackEntry, IsAtMidHeightOfTheSideThatTheParticleComesFrom) {
  LiveTrackSettings settings = electron(0.7, 3.0);
  settings.direction = GetParam().direction;
  const ParticleRun run(settings);
  EXPECT_EQ(run.x(), GetParam().x);
  EXPECT_EQ(run.y(), 228.0);
  EXPECT_EQ(run.simulation->vx(), GetParam().vx);
  EXPECT_EQ(run.simulation->vy(), 0.0);
  EXPECT_EQ(run.simulation->stepping().istep, 1);
  EXPECT_EQ(run.simulation->stepping().rot_fac, 0.05);
  EXPECT_EQ(run.simulation->time_interval(), 1.0);
  EXPECT_EQ(run.simulation->x_points().front(), static_cast<float>(GetParam().x));
  EXPECT_EQ(run.simulation->y_points().front(), 228.0F);
}

INSTANTIATE_TEST_SUITE_P(BothSides, TrackEntry,
                         ::testing::Values(EntryCase{1, 0.0, 3.0}, EntryCase{2, 490.0, -3.0}));

TEST(TrackSimulation, WithoutAFieldTheTrackIsTheLineAtMidHeight) {
  for (const std::int32_t direction : {1, 2}) {
    LiveTrackSettings settings = electron(0.0, 2.0);
    settings.direction = direction;
    ParticleRun run(settings);
    run.finish();
    EXPECT_TRUE(
        std::ranges::all_of(run.simulation->y_points(), [](float y) { return y == 228.0F; }));
    EXPECT_EQ(run.x(), direction == 1 ? 492.0 : -2.0);
    EXPECT_EQ(run.steps, 246);
  }
}

TEST(TrackSimulation, AtSpeedOneTheFirstStepWritesOneAndTheLastPointIsTheFirstOutside) {
  ParticleRun run(electron(0.0, 1.0));
  run.step();
  ASSERT_EQ(run.simulation->show_points(), 2);
  EXPECT_EQ(run.simulation->x_points()[1], 1.0F);
  run.finish();
  // 490 is still inside; 491 is outside, is drawn, and the step after it is refused.
  EXPECT_EQ(run.steps, 491);
  EXPECT_EQ(run.simulation->x_points().back(), 491.0F);
  EXPECT_EQ(run.simulation->show_points(), 492);
}

TEST(TrackSimulation, AStepMovesFirstAndTurnsThen) {
  ParticleRun run(positron(0.8, 3.0));
  run.step();
  EXPECT_EQ(run.x(), 3.0);
  EXPECT_EQ(run.y(), 228.0);
  const SteppingState& state = run.simulation->stepping();
  EXPECT_EQ(state.old_vx, 3.0);
  EXPECT_EQ(state.old_vy, 0.0);
  EXPECT_DOUBLE_EQ(state.B_rot, 0.04);
  EXPECT_DOUBLE_EQ(state.sn, std::sin(0.04));
  EXPECT_DOUBLE_EQ(state.cs, std::cos(0.04));
  EXPECT_DOUBLE_EQ(run.simulation->vx(), 3.0 * std::cos(0.04));
  EXPECT_DOUBLE_EQ(run.simulation->vy(), -3.0 * std::sin(0.04));
  run.step();
  EXPECT_DOUBLE_EQ(run.x(), 3.0 + 3.0 * std::cos(0.04));
  EXPECT_DOUBLE_EQ(run.y(), 228.0 - 3.0 * std::sin(0.04));
  EXPECT_EQ(run.simulation->x_points()[2], static_cast<float>(run.x()));
  EXPECT_EQ(run.simulation->y_points()[2], static_cast<float>(run.y()));
}

TEST(TrackSimulation, ElectronAndPositronCurveInOppositeSensesWithOneRadius) {
  for (const double field : {0.3, -0.3}) {
    ParticleRun electron_run(electron(field, 2.0));
    ParticleRun positron_run(positron(field, 2.0));
    electron_run.steps_to(40);
    positron_run.steps_to(40);
    // In a positive field the electron turns counter-clockwise, upwards from the left.
    EXPECT_EQ(electron_run.y() > 228.0, field > 0.0);
    EXPECT_NEAR(electron_run.x(), positron_run.x(), rounding);
    EXPECT_NEAR(electron_run.y() - 228.0, 228.0 - positron_run.y(), rounding);
  }
}

struct CircleCase {
  double B_field;
  double speed;
};

class TrackCircle : public ::testing::TestWithParam<CircleCase> {};

TEST_P(TrackCircle, HasTheRadiusOfItsChordsAndKeepsTheSpeed) {
  const auto [field, speed] = GetParam();
  ParticleRun run = circling(field, speed, -1.0, static_cast<int>(245 / speed));
  run.step();
  const double start_x = run.x();
  const double start_y = run.y();
  const double radius = radius_of(field, speed);
  // All chords are alike, the one that led here too: the middle lies over its middle.
  const double center_x = start_x - speed / 2.0;
  const double center_y = start_y + std::copysign(radius * std::cos(0.025 * field), field);
  const int turn_steps = static_cast<int>(2.0 * std::numbers::pi / (0.05 * std::fabs(field)));
  double most_deviation = 0.0;
  double most_speed_error = 0.0;
  for (int step = 0; step < turn_steps; ++step) {
    ASSERT_TRUE(run.simulation->canStep());
    run.step();
    const double distance = std::hypot(run.x() - center_x, run.y() - center_y);
    most_deviation = std::max(most_deviation, std::fabs(distance - radius));
    most_speed_error =
        std::max(most_speed_error,
                 std::fabs(std::hypot(run.simulation->vx(), run.simulation->vy()) - speed));
  }
  EXPECT_LT(most_deviation, rounding);
  EXPECT_LT(most_speed_error, 1.0e-10);
  // A whole turn ends less than a step from where it began.
  EXPECT_LT(std::hypot(run.x() - start_x, run.y() - start_y), speed);
}

INSTANTIATE_TEST_SUITE_P(FieldsAndSpeeds, TrackCircle,
                         ::testing::Values(CircleCase{1.0, 1.0}, CircleCase{1.0, 2.0},
                                           CircleCase{1.0, 3.0}, CircleCase{-1.0, 2.0},
                                           CircleCase{0.5, 1.0}, CircleCase{-0.4, 2.0}));

TEST(TrackSimulation, AFieldChangedInTheMiddleOfARunCountsFromTheNextStep) {
  ParticleRun run(electron(0.0, 2.0));
  run.steps_to(50);
  EXPECT_EQ(run.simulation->vy(), 0.0);
  run.simulation->settings.B_field = 0.6;
  run.step();
  EXPECT_EQ(run.y(), 228.0) << "the step goes along the old velocity";
  EXPECT_DOUBLE_EQ(run.simulation->vy(), 2.0 * std::sin(0.03));
  run.simulation->settings.B_field = 0.0;
  run.step();
  const double vy = run.simulation->vy();
  run.step();
  EXPECT_EQ(run.simulation->vy(), vy) << "straight on again";
}

TEST(TrackSimulation, TheRunEndsAboveAndBelowTheAreaToo) {
  for (const double charge : {-1.0, 1.0}) {
    // A wide arc: up with the electron, down with the positron.
    ParticleRun run({.B_field = 0.16, .speed = 3.0, .charge = charge, .direction = 1});
    run.finish();
    EXPECT_LT(run.steps, 1000);
    EXPECT_FALSE(run.simulation->canStep());
    if (charge < 0.0) {
      EXPECT_GE(run.y(), 456.01);
    } else {
      EXPECT_LE(run.y(), -0.01);
    }
    EXPECT_GT(run.x(), -0.01);
    EXPECT_LT(run.x(), 490.01);
    const auto y = run.simulation->y_points();
    const float before_last = y[y.size() - 2];
    EXPECT_GT(before_last, -0.01F) << "only the last point is outside";
    EXPECT_LT(before_last, 456.01F);
  }
}

TEST(TrackSimulation, ALongTrackIsCompactedAndGoesOn) {
  ParticleRun run = circling(1.0, 1.0, -1.0, 245);
  run.steps_to(9994);
  EXPECT_EQ(run.simulation->show_points(), 9995);
  EXPECT_FALSE(run.simulation->resetting);
  EXPECT_EQ(run.drawings, 0) << "so far every drawing was made over the one before";
  const std::span<const float> before_x = run.simulation->x_points();
  const std::span<const float> before_y = run.simulation->y_points();
  std::vector<float> newest_x(before_x.begin() + 5000, before_x.end());
  std::vector<float> newest_y(before_y.begin() + 5000, before_y.end());

  run.step();  // the 9996th point
  newest_x.push_back(static_cast<float>(run.x()));
  newest_y.push_back(static_cast<float>(run.y()));
  EXPECT_EQ(run.simulation->show_points(), 4996);
  EXPECT_EQ(run.simulation->stepping().istep, 4996);
  EXPECT_TRUE(run.simulation->resetting);
  EXPECT_TRUE(run.drawing.shows_all());
  EXPECT_TRUE(std::ranges::equal(run.simulation->x_points(), newest_x));
  EXPECT_TRUE(std::ranges::equal(run.simulation->y_points(), newest_y));
  EXPECT_TRUE(run.drawing.needsClearing(*run.simulation));
  EXPECT_EQ(run.drawing.firstPoint(*run.simulation), 0);

  run.step();
  EXPECT_EQ(run.drawings, 1) << "one drawing begins with an empty picture";
  EXPECT_EQ(run.simulation->show_points(), 4997);
  EXPECT_FALSE(run.simulation->resetting);
  EXPECT_FALSE(run.drawing.shows_all());
  EXPECT_FALSE(run.drawing.needsClearing(*run.simulation));
  EXPECT_EQ(run.drawing.firstPoint(*run.simulation), 4897);

  run.steps_to(30'000);
  EXPECT_EQ(run.drawings, 5) << "every 5000 steps again";
  EXPECT_TRUE(run.simulation->canStep());
  EXPECT_LT(run.simulation->show_points(), 9996);
}

TEST(TrackSimulation, TheStepAfterACompactionLetsTheTapeGo) {
  ParticleRun run = circling(1.0, 1.0, -1.0, 245);
  run.steps_to(9995);
  ASSERT_TRUE(run.simulation->resetting);
  run.simulation->stretching = true;
  run.drawing.showAll();
  run.step();
  EXPECT_FALSE(run.simulation->stretching);
  EXPECT_FALSE(run.drawing.shows_all());
}

TEST(TrackSimulation, AnOrdinaryStepKeepsTheTape) {
  ParticleRun run(electron(0.0, 1.0));
  run.simulation->stretching = true;
  run.drawing.showAll();
  run.step();
  EXPECT_TRUE(run.simulation->stretching);
  EXPECT_TRUE(run.drawing.shows_all());
}

TEST(TrackSimulation, ClearingARunKeepsThePresentPointAndGoesOnFromIt) {
  ParticleRun run(electron(0.2, 2.0));
  run.steps_to(30);
  run.simulation->setClearSignal();
  EXPECT_EQ(run.simulation->show_points(), 31) << "nothing happens before the next step";
  run.step();
  EXPECT_EQ(run.cleared, 1);
  const double x = run.x();
  const double y = run.y();
  EXPECT_FALSE(run.simulation->clear_signal());
  EXPECT_EQ(run.simulation->stepping().istep, 1);
  ASSERT_EQ(run.simulation->show_points(), 1);
  EXPECT_EQ(run.simulation->x_points().front(), static_cast<float>(x));
  EXPECT_EQ(run.simulation->y_points().front(), static_cast<float>(y));

  ParticleRun other(electron(0.2, 2.0));
  other.steps_to(31);
  run.step();
  other.step();
  EXPECT_EQ(run.simulation->show_points(), 2);
  EXPECT_EQ(run.x(), other.x()) << "the particle does not notice";
  EXPECT_EQ(run.y(), other.y());
  EXPECT_EQ(run.cleared, 1) << "once for one signal";
}

TEST(TrackSimulation, ASecondRunBeginsAtTheEntryWithThePresentSettings) {
  ParticleRun run(electron(0.4, 2.0));
  run.steps_to(60);
  TrackSimulation& simulation = *run.simulation;
  simulation.settings = {.B_field = -0.2, .speed = 3.0, .charge = 1.0, .direction = 2};
  simulation.launch();
  simulation.enter(timed_start);
  EXPECT_EQ(run.x(), 490.0);
  EXPECT_EQ(run.y(), 228.0);
  EXPECT_EQ(simulation.vx(), -3.0);
  EXPECT_EQ(simulation.vy(), 0.0);
  EXPECT_EQ(simulation.show_points(), 1);
  run.step();
  EXPECT_EQ(run.x(), 487.0);
  EXPECT_DOUBLE_EQ(simulation.stepping().B_rot, -0.01);
}

TEST(LegacyStart, EntersHigherUpWithStepsOfAQuarter) {
  ParticleRun run(positron(1.0, 2.0), legacy);
  EXPECT_EQ(run.y(), 235.0);
  EXPECT_EQ(run.simulation->stepping().rot_fac, 0.0125);
  run.step();
  EXPECT_EQ(run.x(), 0.5);
  EXPECT_DOUBLE_EQ(run.simulation->stepping().B_rot, 0.0125);
}

TEST(LegacyStart, ItsAreaIsLowerAndHigherByAMargin) {
  // Down with the positron: 15 is the floor of the legacy loop and not of the timed steps.
  ParticleRun down(positron(0.1, 3.0), legacy);
  while (down.simulation->isInLegacyArea()) {
    down.step();
  }
  EXPECT_LE(down.y(), 15.0);
  EXPECT_GT(down.y(), 14.0);
  EXPECT_TRUE(down.simulation->canStep());

  ParticleRun up(electron(0.1, 3.0), legacy);
  while (up.simulation->isInLegacyArea()) {
    up.step();
  }
  EXPECT_GE(up.y(), 455.0);
  EXPECT_LT(up.y(), 456.0);
  EXPECT_TRUE(up.simulation->canStep());
}

}  // namespace
}  // namespace velquon
