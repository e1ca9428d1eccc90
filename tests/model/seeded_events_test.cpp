// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/seeded_events.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "model/chamber_model.h"

namespace velquon {
namespace {

constexpr ChamberValues made_values{.B_field = 5.0F, .sides_cm = 300.0F, .kinetic_Mev = 12.0F};
constexpr int many = 40;

TEST(SeededEvents, AreThoseThatTheProcessWideStreamOfTheSeedMakes) {
  for (const EventType& type : event_types()) {
    for (const std::uint32_t seed : {0U, 1U, 42U, 4294967295U}) {
      const auto events = seeded_events(type, made_values, seed, many);
      ASSERT_EQ(events.size(), std::size_t{many});
      std::srand(seed);
      TrackBuffer buffer;
      for (const EventTracks& event : events) {
        ParticleRecord record;
        const bool shown = make_event(type, made_values, buffer, &record) == HandOver::yes;
        const auto points = buffer.points().first(shown ? buffer.points().size() : 0);
        EXPECT_TRUE(std::ranges::equal(event.points, points)) << type.key << ' ' << seed;
        EXPECT_EQ(&event_types()[event.type.value()], &type);
        EXPECT_EQ(event.record.value().particles().size(), record.particles().size());
        EXPECT_EQ(event.record.value().negative, type.flips_field);
      }
    }
  }
}

TEST(SeededEvents, LeaveTheProgramsOwnEventsAsTheyWouldBe) {
  const auto events_of_program = [](bool with_others) {
    ChamberModel model(7);
    model.setEventType(2);
    model.setNext(made_values);
    std::vector<std::vector<PlotPoint>> events;
    for (int i = 0; i < many; ++i) {
      if (with_others) {
        EXPECT_EQ(seeded_events(event_types()[1], made_values, 3, 5).size(), 5U);
      }
      model.makeNewEvent();
      const auto points = model.shown()->points();
      events.emplace_back(points.begin(), points.end());
    }
    return events;
  };
  const auto alone = events_of_program(false);
  EXPECT_TRUE(std::ranges::any_of(alone, [](const auto& event) { return !event.empty(); }));
  EXPECT_EQ(events_of_program(true), alone);
}

}  // namespace
}  // namespace velquon
