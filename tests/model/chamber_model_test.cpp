// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whole situations of the chamber without a window: a new event, one that is not handed over, an opened
// file.

#include "model/chamber_model.h"
#include "tests/model/made_events.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace velquon::test {

namespace {

constexpr std::uint32_t seed = 20'240'611;

const std::vector some_points{PlotPoint{.coords = {1.0, 2.0, 3.0, 1.0}, .code = 4},
                              PlotPoint{.coords = {4.0, 5.0, 6.0, 1.0}, .code = 1}};
constexpr ChamberValues some_values{.B_field = 1.5F, .sides_cm = 33.3F, .kinetic_Mev = 7.0F};

void never() {
  ADD_FAILURE() << "no field was negative";
}

std::vector<PlotPoint> copy_of(std::span<const PlotPoint> points) {
  return {points.begin(), points.end()};
}

/// The event that the generators make of the seed as their first.
std::vector<PlotPoint> first_event(std::size_t type, const ChamberValues& values) {
  std::srand(seed);
  TrackBuffer buffer;
  EXPECT_EQ(make_event(event_types()[type], values, buffer), HandOver::yes);
  return copy_of(buffer.points());
}

}  // namespace

TEST(ChamberModelTest, ShowsNoEventAtFirst) {
  const ChamberModel model(seed);
  EXPECT_FALSE(model.shown()->has_event);
  EXPECT_TRUE(model.shown()->points().empty());
  EXPECT_EQ(model.event_type(), 0);
}

TEST(ChamberModelTest, TheSeedDecidesTheEventsOfEveryType) {
  const ChamberValues values{.B_field = 2.0F, .sides_cm = 300.0F, .kinetic_Mev = 50.0F};
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    ChamberModel model(seed);
    model.setNext(values);
    model.setEventType(static_cast<int>(type));
    model.makeNewEvent();
    const std::vector<PlotPoint> shown = copy_of(model.shown()->points());
    EXPECT_EQ(shown, first_event(type, values)) << type;
    EXPECT_EQ(model.shown()->tracks->type, type);
    EXPECT_EQ(model.shown()->name, "Untitled Type " + std::to_string(type + 1) + " Decay");
    EXPECT_TRUE(model.shown()->has_event);
  }
}

TEST(ChamberModelTest, TellsOfOtherChosenValuesAndLeavesTheNextOnes) {
  ChamberModel model(seed);
  int told = 0;
  const Subscription changes = model.changed.add([&told] { ++told; });
  const ChamberValues chosen{.B_field = 3.0F, .sides_cm = 300.0F, .kinetic_Mev = 50.0F};
  model.setChosen(chosen);
  model.setChosen(chosen);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(model.chosen(), chosen);
  EXPECT_EQ(model.next(), ChamberValues{});
}

TEST(ChamberModelTest, ANegativeParticleLeavesTheFieldThatIsTold) {
  ChamberModel model(seed);
  model.setNext({.B_field = 3.0F, .sides_cm = 300.0F, .kinetic_Mev = 50.0F});
  model.setEventType(negative_pion);
  model.makeNewEvent();
  EXPECT_EQ(model.shown()->values.B_field, 3.0F);
  EXPECT_EQ(model.next().B_field, 3.0F);
}

TEST(ChamberModelTest, KnowsWhatHappenedInANewEvent) {
  ChamberModel model(seed);
  model.setNext({.B_field = 3.0F, .sides_cm = 300.0F, .kinetic_Mev = 50.0F});
  model.makeNewEvent();
  ASSERT_TRUE(model.shown()->tracks->record);
  EXPECT_FALSE(model.shown()->tracks->record->particles().empty());
}

TEST(ChamberModelTest, AnEventThatIsNotHandedOverChangesValuesAndNameAlone) {
  ChamberModel model(seed);
  model.setEventType(positive_muon);
  // So large a chamber that an electron's ten million km are a few steps: it decays, too.
  const ChamberValues values{.B_field = 0.0F, .sides_cm = 1e12F, .kinetic_Mev = 0.4F};
  // Which events of the seed are not handed over.
  std::srand(seed);
  std::vector<bool> handed_over;
  for (int event = 0; event < 50; ++event) {
    TrackBuffer buffer;
    handed_over.push_back(make_event(event_types()[positive_muon], values, buffer) ==
                          HandOver::yes);
  }
  std::srand(seed);
  int kept = 0;
  for (const bool is_handed_over : handed_over) {
    const auto before = model.shown()->tracks;
    model.showName("before");
    model.setNext(values);
    model.makeNewEvent();
    EXPECT_EQ(model.shown()->tracks != before, is_handed_over);
    EXPECT_EQ(model.shown()->name, "Untitled Type 5 Decay");
    EXPECT_EQ(model.shown()->values.sides_cm, 1e12F);
    kept += is_handed_over ? 0 : 1;
  }
  EXPECT_GT(kept, 10);
}

TEST(ChamberModelTest, ANewEventIsToldOfOnceAndWhole) {
  ChamberModel model(seed);
  int told = 0;
  const Subscription changes = model.changed.add([&] {
    ++told;
    EXPECT_TRUE(model.shown()->has_event);
    EXPECT_EQ(model.shown()->name, "Untitled Type 1 Decay");
    EXPECT_FALSE(model.shown()->points().empty());
  });
  model.makeNewEvent();
  EXPECT_EQ(told, 1);
}

TEST(ChamberModelTest, AnOpenedEventHasNoRecordAndNoType) {
  ChamberModel model(seed);
  model.makeNewEvent();
  EXPECT_EQ(model.open(encode_event(some_points, some_values), "some.cwd", never), std::nullopt);
  EXPECT_EQ(copy_of(model.shown()->points()), some_points);
  EXPECT_FALSE(model.shown()->tracks->type);
  EXPECT_FALSE(model.shown()->tracks->record);
}

TEST(ChamberModelTest, AnOpenedEventIsToldOfOnceAndWhole) {
  ChamberModel model(seed);
  const ChamberValues held = as_controls_hold(some_values);
  int told = 0;
  const Subscription changes = model.changed.add([&] {
    ++told;
    EXPECT_TRUE(model.shown()->has_event);
    EXPECT_EQ(model.shown()->name, "some.cwd");
    EXPECT_EQ(copy_of(model.shown()->points()), some_points);
    EXPECT_EQ(model.shown()->values, held);
    EXPECT_EQ(model.next(), held);
  });
  model.open(encode_event(some_points, some_values), "some.cwd", never);
  EXPECT_EQ(told, 1);
}

TEST(ChamberModelTest, AnOpenedEventComesAfterTheOneBefore) {
  ChamberModel model(seed);
  model.makeNewEvent();
  const auto made = model.shown();
  model.open(encode_event(some_points, some_values), "some.cwd", never);
  const auto opened = model.shown();
  model.showPreviousEvent();
  EXPECT_EQ(model.shown(), made);
  model.showNextEvent();
  EXPECT_EQ(model.shown(), opened);
  EXPECT_FALSE(model.hasNextEvent());
}

TEST(ChamberModelTest, ARefusedFileChangesNothingAndIsNotToldOf) {
  std::vector<std::byte> cut_off = encode_event(some_points, some_values);
  cut_off.pop_back();
  const std::vector<std::pair<std::vector<std::byte>, Refusal>> files{
      {{}, Refusal::wrong_format},
      {{std::byte{'x'}}, Refusal::wrong_format},
      {cut_off, Refusal::bad_data}};
  ChamberModel model(seed);
  model.makeNewEvent();
  const auto shown = model.shown();
  const ChamberValues next = model.next();
  int told = 0;
  const Subscription changes = model.changed.add([&told] { ++told; });
  for (const auto& [file, reason] : files) {
    EXPECT_EQ(model.open(file, "some.cwd", never), reason);
  }
  EXPECT_EQ(model.shown(), shown);
  EXPECT_EQ(model.next(), next);
  EXPECT_FALSE(model.hasPreviousEvent());
  EXPECT_EQ(told, 0);
}

TEST(ChamberModelTest, ANegativeFieldOfAFileIsToldOfBetweenThePointsAndTheValues) {
  ChamberModel model(seed);
  model.makeNewEvent();
  const ShownEvent before = *model.shown();
  int told = 0;
  const auto tell = [&] {
    ++told;
    EXPECT_EQ(copy_of(model.shown()->points()), some_points);
    EXPECT_EQ(model.shown()->values, before.values);
    EXPECT_EQ(model.shown()->name, before.name);
    EXPECT_EQ(model.next(), before.values);
  };
  model.show({.points = some_points, .values = some_values, .field_was_negative = true}, "old.cwd",
             tell);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(model.shown()->values, as_controls_hold(some_values));
  EXPECT_EQ(model.shown()->name, "old.cwd");
  model.showPreviousEvent();
  EXPECT_EQ(model.shown()->tracks, before.tracks);
  EXPECT_FALSE(model.hasPreviousEvent());
}

TEST(ChamberModelTest, AnotherNameIsThatOfTheShownEvent) {
  ChamberModel model(seed);
  model.makeNewEvent();
  const auto tracks = model.shown()->tracks;
  model.showName("kept.cwd");
  EXPECT_EQ(model.shown()->name, "kept.cwd");
  EXPECT_EQ(model.shown()->tracks, tracks);
  EXPECT_FALSE(model.hasPreviousEvent());
}

TEST(ChamberModelTest, ControlsHoldTheSideInMetres) {
  // A side that does not survive its way through metres.
  const float side = 33.3F;
  const float held = as_controls_hold({.sides_cm = side}).sides_cm;
  EXPECT_EQ(held, cm_from_metres(metres_from_cm(side)));
  EXPECT_EQ(as_controls_hold({.sides_cm = held}).sides_cm, held);
}

TEST(ChamberModelTest, AnEventOnceShownNeverChanges) {
  ChamberModel model(seed);
  model.setNext({.B_field = 3.0F, .sides_cm = 300.0F, .kinetic_Mev = 50.0F});
  model.makeNewEvent();
  const auto first = model.shown();
  const std::vector<PlotPoint> points = copy_of(first->points());
  model.makeNewEvent();
  model.showName("other");
  EXPECT_EQ(copy_of(first->points()), points);
  EXPECT_EQ(first->name, "Untitled Type 1 Decay");
}

TEST(ChamberModelTest, TellsOfEachChange) {
  ChamberModel model(seed);
  int told = 0;
  const Subscription changes = model.changed.add([&told] { ++told; });
  model.setEventType(2);
  model.setPreferences({.show_axes = false});
  model.setNext({});
  EXPECT_EQ(told, 3);
  model.makeNewEvent();
  EXPECT_EQ(told, 4);
}

TEST(ChamberModelTest, TellsUnderWhatItsTracksWereMade) {
  ChamberModel model(seed);
  EXPECT_EQ(model.seed(), seed);
  model.setNext({.B_field = 3.0F, .sides_cm = 300.0F, .kinetic_Mev = 50.0F});
  model.makeNewEvent();
  model.setNext({.B_field = 4.0F, .sides_cm = 310.0F, .kinetic_Mev = 60.0F});
  model.showNextValues();
  const ChamberValues& values = model.shown()->tracks->values;
  EXPECT_EQ(values.B_field, 3.0F);
  EXPECT_EQ(values.sides_cm, 300.0F);
  EXPECT_EQ(values.kinetic_Mev, 50.0F);
}

TEST(ChamberModelTest, MarksStayUntilThereIsAnotherEvent) {
  ChamberModel model(seed);
  model.makeNewEvent();
  model.mark({0, 2});
  model.showName("other");
  model.setNext({});
  EXPECT_EQ(model.marked(), (std::vector<std::size_t>{0, 2}));
  model.makeNewEvent();
  EXPECT_TRUE(model.marked().empty());
  model.mark({1});
  model.showTracks({});
  EXPECT_TRUE(model.marked().empty());
}

TEST(ChamberModelTest, TellsOfMarksWhenTheUserChangesThemAndNotOfANewEvent) {
  ChamberModel model(seed);
  int told = 0;
  std::vector<std::size_t> seen;
  bool first_changed = false;
  const Subscription changes = model.changed.add([&] { first_changed = true; });
  const Subscription changed_marks = model.marks_changed.add([&] {
    ++told;
    seen = model.marked();
    EXPECT_TRUE(first_changed);
  });
  model.makeNewEvent();
  EXPECT_EQ(told, 0);
  model.mark({3, 4});
  EXPECT_EQ(told, 1);
  EXPECT_EQ(seen, (std::vector<std::size_t>{3, 4}));
  model.mark({3, 4});
  EXPECT_EQ(told, 1);
  model.makeNewEvent();
  EXPECT_EQ(told, 1);
  model.mark({});
  EXPECT_EQ(told, 1);
}

TEST(ChamberModelTest, HiddenAnswersAreShownOnRequestUntilThereIsAnotherEvent) {
  ChamberModel model(seed);
  model.makeNewEvent();
  EXPECT_TRUE(model.answersShown());
  model.setPreferences({.hide_answers = true});
  EXPECT_FALSE(model.answersShown());
  model.revealAnswers();
  EXPECT_TRUE(model.answersShown());
  model.showName("other");
  EXPECT_TRUE(model.answersShown());
  model.makeNewEvent();
  EXPECT_FALSE(model.answersShown());
  model.revealAnswers();
  model.setPreferences({.slomo = true, .hide_answers = true});
  EXPECT_TRUE(model.answersShown());
  model.setPreferences({.hide_answers = false});
  model.setPreferences({.hide_answers = true});
  EXPECT_FALSE(model.answersShown());
}

TEST(ChamberModelTest, AnEnergyOf0MakesAnEventWithoutPoints) {
  ChamberModel model(seed);
  model.setNext({.B_field = 1.0F, .sides_cm = 100.0F, .kinetic_Mev = 0.0F});
  model.makeNewEvent();
  EXPECT_TRUE(model.shown()->points().empty());
  EXPECT_TRUE(model.shown()->has_event);
}

}  // namespace velquon::test
