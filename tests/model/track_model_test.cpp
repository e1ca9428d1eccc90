// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

// The live track from its activation to the end of its runs, with neither window nor clock.

namespace velquon {
namespace {

constexpr std::uint64_t begun = 1'000'000;  // microseconds

/// A model that is used as the window uses it.
class TrackModelTest : public ::testing::Test {
 protected:
  TrackModelTest() {
    counting = model.changed.add([this] { ++changes; });
  }

  void begin() {
    model.enter(timed_start);
    model.setTracking(true);
    model.startPace(begun);
  }
  void injectAndBegin() {
    model.inject();
    begin();
  }
  void step(int count = 1) {
    for (int made = 0; made < count; ++made) {
      model.advance();
      cleared += model.takeClearSignal() ? 1 : 0;
      model.goOn();
    }
  }
  void flyOut() {
    while (model.simulation().canStep()) {
      step();
    }
    model.endRun();
  }
  void deactivate() {
    model.setTracking(false);
    model.deactivate();
  }

  struct Allowed {
    bool inject, choice, screen_speed, window, rest_of_program;
  };
  void expectAllowed(const Allowed& allowed) {
    EXPECT_EQ(model.isEnabled(TrackItem::inject), allowed.inject);
    EXPECT_EQ(model.isEnabled(TrackItem::choice), allowed.choice);
    EXPECT_EQ(model.isEnabled(TrackItem::screen_speed), allowed.screen_speed);
    EXPECT_EQ(model.isEnabled(TrackItem::window), allowed.window);
    EXPECT_EQ(model.isEnabled(TrackItem::rest_of_program), allowed.rest_of_program);
    EXPECT_TRUE(model.isEnabled(TrackItem::activate));
    EXPECT_TRUE(model.isEnabled(TrackItem::clear));
  }

  static constexpr Allowed inactive{false, false, false, false, true};
  static constexpr Allowed active{true, true, true, true, false};
  static constexpr Allowed running{false, false, true, true, true};

  TrackModel model;
  int changes = 0;
  Subscription counting;
  int cleared = 0;
};

TEST_F(TrackModelTest, StartsInactiveWithItsChoices) {
  expectAllowed(inactive);
  EXPECT_EQ(model.particle(), TrackParticle::e_minus);
  EXPECT_EQ(model.direction(), TrackDirection::left_to_right);
  EXPECT_EQ(model.speed(), 2);
  EXPECT_EQ(model.timerSecs(), 0.01);
  const LiveTrackSettings& settings = model.simulation().settings;
  EXPECT_EQ(settings.charge, -1.0);
  EXPECT_EQ(settings.direction, 1);
  EXPECT_EQ(settings.speed, 2.0);
  EXPECT_EQ(settings.B_field, 0.0);
  EXPECT_FALSE(model.reading().has_value());
}

TEST_F(TrackModelTest, ARunRestsAllButTheScreenSpeedAndItsEndGivesAllBack) {
  model.activate();
  expectAllowed(active);
  model.inject();
  expectAllowed(running);
  begin();
  expectAllowed(running);
  step(100);
  expectAllowed(running);
  flyOut();
  EXPECT_FALSE(model.is_tracking());
  expectAllowed(active);
  EXPECT_EQ(model.simulation().x_points().back(), 492.0F);
  model.deactivate();
  expectAllowed(inactive);
}

TEST_F(TrackModelTest, DeactivatedDuringARunItStaysInactiveWhenTheParticleLeaves) {
  model.activate();
  injectAndBegin();
  step(10);
  deactivate();
  expectAllowed(inactive);
  flyOut();
  expectAllowed(inactive);
}

TEST_F(TrackModelTest, ActiveAgainWhileTheOldParticleFliesAllIsAllowed) {
  model.activate();
  injectAndBegin();
  deactivate();
  model.activate();
  expectAllowed(active);
  step(10);
  expectAllowed(active);
  flyOut();
  expectAllowed(active);
}

TEST_F(TrackModelTest, ARunThatStartsAfterTheDeactivationForbidsTheChoicesOfTheNextActivation) {
  model.activate();
  model.inject();
  deactivate();
  begin();
  expectAllowed(inactive);
  model.activate();
  expectAllowed({.inject = true,
                 .choice = false,
                 .screen_speed = true,
                 .window = true,
                 .rest_of_program = false});
}

TEST_F(TrackModelTest, TheLastSwitchOfTheMenusCountsForInjectionAndTheRestOfTheProgram) {
  model.doMenus(true);
  expectAllowed({.inject = true,
                 .choice = false,
                 .screen_speed = false,
                 .window = false,
                 .rest_of_program = false});
  model.endRun();
  EXPECT_TRUE(model.isEnabled(TrackItem::inject)) << "the end of a run switches nothing off";
  model.doMenus(false);
  expectAllowed(inactive);
}

TEST_F(TrackModelTest, ClearingDuringARunKeepsThePresentPoint) {
  model.activate();
  injectAndBegin();
  step(50);
  model.setClearSignal();
  EXPECT_EQ(model.simulation().show_points(), 51);
  step();
  EXPECT_EQ(cleared, 1);
  EXPECT_EQ(model.simulation().show_points(), 1);
  EXPECT_EQ(model.simulation().x_points().front(), 102.0F);
  step(3);
  EXPECT_EQ(cleared, 1);
  EXPECT_TRUE(model.is_tracking());
}

TEST_F(TrackModelTest, TheTapeIsReadWithEachMoveAndKeepsItsReadingWhenItIsLetGo) {
  model.press({100.0, 100.0});
  EXPECT_FALSE(model.reading().has_value());
  EXPECT_FALSE(model.tape().visible);
  model.drag({130.0, 140.0});
  EXPECT_TRUE(model.tape().visible);
  EXPECT_EQ(model.reading(), 5.0);
  model.drag({400.0, 100.0});
  EXPECT_EQ(model.reading(), 30.0);
  model.release({400.0, 150.0});
  EXPECT_FALSE(model.tape().visible);
  EXPECT_EQ(model.reading(), 30.0) << "as it was read last";
  EXPECT_DOUBLE_EQ(model.tapeLength(), 0.1 * std::hypot(300.0, 50.0));
}

TEST_F(TrackModelTest, AnInjectionEmptiesTheReadingAndAStretchedTapeIsReadAgainByTheFirstStep) {
  model.activate();
  model.press({100.0, 100.0});
  model.drag({130.0, 140.0});
  model.inject();
  EXPECT_FALSE(model.reading().has_value());
  EXPECT_TRUE(model.tape().visible);
  begin();
  EXPECT_FALSE(model.reading().has_value());
  step();
  EXPECT_EQ(model.reading(), 5.0);

  model.release({130.0, 140.0});
  model.inject();
  begin();
  step(2);
  EXPECT_FALSE(model.reading().has_value()) << "a tape that was let go is not read";
}

TEST_F(TrackModelTest, AStretchedTapeIsLetGoByTheStepAfterACompaction) {
  model.activate();
  model.setSpeed(1);
  injectAndBegin();
  step(245);
  model.takeField(1.0, 1.0);
  step(9995 - 245);
  ASSERT_TRUE(model.simulation().resetting);
  model.press({100.0, 100.0});
  model.drag({130.0, 140.0});
  step();
  EXPECT_FALSE(model.tape().visible);
  EXPECT_EQ(model.reading(), 5.0);
}

TEST_F(TrackModelTest, TellsOfWhatItsStepsChangeAndOfNothingElseInThem) {
  model.activate();
  model.inject();
  begin();
  changes = 0;
  step(20);
  EXPECT_EQ(changes, 0);
  model.drag({30.0, 40.0});
  EXPECT_EQ(changes, 1);
  step(20);
  EXPECT_EQ(changes, 1) << "it reads what it read";
  model.press({30.0, 20.0});
  step();
  EXPECT_EQ(changes, 2) << "now it does not";
  EXPECT_EQ(model.reading(), 2.0);
}

struct TellingCase {
  std::string name;
  void (*change)(TrackModel& model);
};

class TrackModelTelling : public ::testing::TestWithParam<TellingCase> {};

TEST_P(TrackModelTelling, TellsOfTheChange) {
  TrackModel model;
  int changes = 0;
  const Subscription counting = model.changed.add([&changes] { ++changes; });
  GetParam().change(model);
  EXPECT_EQ(changes, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, TrackModelTelling,
    ::testing::Values(
        TellingCase{"particle", [](TrackModel& m) { m.setParticle(TrackParticle::e_plus); }},
        TellingCase{"direction",
                    [](TrackModel& m) { m.setDirection(TrackDirection::right_to_left); }},
        TellingCase{"speed", [](TrackModel& m) { m.setSpeed(3); }},
        TellingCase{"settings", [](TrackModel& m) { m.setSettings({}); }},
        TellingCase{"field", [](TrackModel& m) { m.takeField(0.3, 0.3); }},
        TellingCase{"screen_speed", [](TrackModel& m) { m.setScreenSpeed(ScreenSpeed::faster); }},
        TellingCase{"activation", [](TrackModel& m) { m.activate(); }},
        TellingCase{"deactivation", [](TrackModel& m) { m.deactivate(); }},
        TellingCase{"menus", [](TrackModel& m) { m.doMenus(true); }},
        TellingCase{"injection", [](TrackModel& m) { m.inject(); }},
        TellingCase{"tracking", [](TrackModel& m) { m.setTracking(true); }},
        TellingCase{"end", [](TrackModel& m) { m.endRun(); }},
        TellingCase{"tape",
                    [](TrackModel& m) {
                      m.drag({3.0, 4.0});
                    }}),
    [](const auto& row) { return row.param.name; });

TEST_F(TrackModelTest, ChoicesReachTheParticle) {
  const LiveTrackSettings& settings = model.simulation().settings;
  model.setParticle(TrackParticle::e_plus);
  EXPECT_EQ(model.particle(), TrackParticle::e_plus);
  EXPECT_EQ(settings.charge, 1.0);
  model.setParticle(TrackParticle::e_minus);
  EXPECT_EQ(settings.charge, -1.0);
  model.setDirection(TrackDirection::right_to_left);
  EXPECT_EQ(model.direction(), TrackDirection::right_to_left);
  EXPECT_EQ(settings.direction, 2);
  model.setDirection(TrackDirection::left_to_right);
  EXPECT_EQ(settings.direction, 1);
  for (const int speed : {1, 2, 3}) {
    model.setSpeed(speed);
    EXPECT_EQ(model.speed(), speed);
    EXPECT_EQ(settings.speed, speed);
  }
  for (const int stranger : {0, 4, -1}) {
    model.setSettings({.speed = 7.0});
    model.setSpeed(stranger);
    EXPECT_EQ(model.speed(), 3);
    EXPECT_EQ(settings.speed, 3.0) << "the present choice is set again";
  }
}

TEST_F(TrackModelTest, ChosenDuringARunADirectionAndASpeedWaitForTheNextInjection) {
  injectAndBegin();
  step(10);
  model.setSpeed(3);
  model.setDirection(TrackDirection::right_to_left);
  step();
  EXPECT_EQ(model.simulation().x_points().back(), 22.0F);
  injectAndBegin();
  step();
  EXPECT_EQ(model.simulation().x_points().back(), 487.0F);
}

struct FieldCase {
  double field, tick, taken;
};

class TrackModelField : public ::testing::TestWithParam<FieldCase> {};

TEST_P(TrackModelField, IsThatOfATickMarkThatIsNextToIt) {
  TrackModel model;
  model.takeField(GetParam().field, GetParam().tick);
  EXPECT_EQ(model.simulation().settings.B_field, GetParam().taken);
}

INSTANTIATE_TEST_SUITE_P(Values, TrackModelField,
                         ::testing::Values(FieldCase{0.3, 0.3, 0.3}, FieldCase{0.304, 0.3, 0.3},
                                           FieldCase{0.296, 0.3, 0.3}, FieldCase{0.306, 0.3, 0.306},
                                           FieldCase{0.294, 0.3, 0.294},
                                           FieldCase{0.005, 0.0, 0.005},
                                           FieldCase{-0.0049, 0.0, 0.0},
                                           FieldCase{-0.65, -0.6, -0.65}));

TEST_F(TrackModelTest, AScreenSpeedIsThePeriodOfTheNextRunAndNoneIsThatOfTheStart) {
  using std::chrono_literals::operator""ms;
  EXPECT_EQ(model.stepPeriod(), 10ms);
  model.setScreenSpeed(ScreenSpeed::faster);
  EXPECT_EQ(model.timerSecs(), 0.005);
  EXPECT_EQ(model.stepPeriod(), 5ms);
  model.setScreenSpeed(ScreenSpeed::standard);
  EXPECT_EQ(model.timerSecs(), 0.02);
  model.setScreenSpeed(ScreenSpeed::faster);
  model.setScreenSpeed(ScreenSpeed::slower);
  EXPECT_EQ(model.timerSecs(), 0.02);
  EXPECT_EQ(model.stepPeriod(), 20ms);
}

TEST_F(TrackModelTest, ARunKeepsThePaceWithWhichItStarted) {
  injectAndBegin();
  EXPECT_EQ(model.takeStepsDue(begun + 10'000), 1U);
  model.setScreenSpeed(ScreenSpeed::faster);
  EXPECT_EQ(model.takeStepsDue(begun + 50'000), 4U) << "periods of 10 ms";
  EXPECT_EQ(model.takeStepsDue(begun + 5'000'000), 1U) << "a standstill is not made up for";
  begin();
  EXPECT_EQ(model.takeStepsDue(begun + 5'000), 1U);
  EXPECT_EQ(model.takeStepsDue(begun + 25'000), 4U) << "periods of 5 ms";
}

}  // namespace
}  // namespace velquon
