// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The events of a run, one after the other and back.

#include "model/event_history.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "model/chamber_model.h"

namespace velquon::test {

namespace {

/// Makes events of every type in turn and keeps what is shown after each.
std::vector<std::shared_ptr<const ShownEvent>> make_events(ChamberModel& model, int count) {
  std::vector<std::shared_ptr<const ShownEvent>> events;
  for (int i = 0; i < count; ++i) {
    model.setEventType(i % static_cast<int>(event_types().size()));
    model.makeNewEvent();
    events.push_back(model.shown());
  }
  return events;
}

}  // namespace

TEST(EventHistoryTest, ThereIsNoOtherEventBeforeTheSecond) {
  ChamberModel model(5);
  EXPECT_FALSE(model.hasPreviousEvent());
  EXPECT_FALSE(model.hasNextEvent());
  make_events(model, 1);
  EXPECT_FALSE(model.hasPreviousEvent());
  EXPECT_FALSE(model.hasNextEvent());
}

TEST(EventHistoryTest, PreviousAndNextShowTheVeryEventsAgain) {
  ChamberModel model(5);
  const auto events = make_events(model, 7);
  for (std::size_t i = events.size() - 1; i-- > 0;) {
    model.showPreviousEvent();
    EXPECT_EQ(model.shown(), events[i]);
  }
  EXPECT_FALSE(model.hasPreviousEvent());
  for (std::size_t i = 1; i < events.size(); ++i) {
    model.showNextEvent();
    EXPECT_EQ(model.shown(), events[i]);
  }
  EXPECT_FALSE(model.hasNextEvent());
}

TEST(EventHistoryTest, WhereThereIsNoOtherNothingChanges) {
  ChamberModel model(5);
  const auto events = make_events(model, 1);
  int told = 0;
  const Subscription changes = model.changed.add([&told] { ++told; });
  model.showPreviousEvent();
  model.showNextEvent();
  EXPECT_EQ(model.shown(), events.front());
  EXPECT_EQ(told, 0);
}

TEST(EventHistoryTest, ANewEventComesLastWhereverOneIs) {
  ChamberModel model(5);
  const auto events = make_events(model, 3);
  model.showPreviousEvent();
  model.showPreviousEvent();
  model.makeNewEvent();
  EXPECT_FALSE(model.hasNextEvent());
  model.showPreviousEvent();
  EXPECT_EQ(model.shown(), events.back());
}

TEST(EventHistoryTest, ANameGivenLaterIsKept) {
  ChamberModel model(5);
  make_events(model, 1);
  model.showName("first.cwd");
  make_events(model, 1);
  model.showPreviousEvent();
  EXPECT_EQ(model.shown()->name, "first.cwd");
}

TEST(EventHistoryTest, MarksAndRevealedAnswersGoWithTheEvent) {
  ChamberModel model(5);
  model.setPreferences({.hide_answers = true});
  make_events(model, 2);
  model.mark({0});
  model.revealAnswers();
  model.showPreviousEvent();
  EXPECT_TRUE(model.marked().empty());
  EXPECT_FALSE(model.answersShown());
}

TEST(EventHistoryTest, MarksGoEvenWhenTheOtherEventHasTheSameTracks) {
  ChamberModel model(5);
  make_events(model, 1);
  const auto tracks = model.shown()->tracks;
  // There are no more than six: nothing is made, and the tracks stay.
  model.setEventType(6);
  model.makeNewEvent();
  ASSERT_EQ(model.shown()->tracks, tracks);
  model.mark({0});
  model.showPreviousEvent();
  EXPECT_TRUE(model.marked().empty());
}

TEST(EventHistoryTest, TheNextValuesStay) {
  ChamberModel model(5);
  model.setNext({.B_field = 1.0F, .sides_cm = 400.0F, .kinetic_Mev = 3.0F});
  make_events(model, 1);
  model.setNext({.B_field = 2.0F, .sides_cm = 300.0F, .kinetic_Mev = 5.0F});
  make_events(model, 1);
  model.showPreviousEvent();
  EXPECT_EQ(model.shown()->values.B_field, 1.0F);
  EXPECT_EQ(model.next().B_field, 2.0F);
}

TEST(EventHistoryTest, TheLastHundredEventsAreKept) {
  ChamberModel model(5);
  const auto events = make_events(model, 103);
  int back = 0;
  for (; model.hasPreviousEvent(); ++back) {
    model.showPreviousEvent();
  }
  EXPECT_EQ(back, 99);
  EXPECT_EQ(model.shown(), events[3]);
}

TEST(EventHistoryTest, EventsComeFromTheSameDraws) {
  ChamberModel one(9);
  const auto straight = make_events(one, 4);
  ChamberModel other(9);
  make_events(other, 2);
  other.showPreviousEvent();
  other.setEventType(2);
  other.makeNewEvent();
  EXPECT_TRUE(std::ranges::equal(other.shown()->points(), straight[2]->points()));
}

}  // namespace velquon::test
