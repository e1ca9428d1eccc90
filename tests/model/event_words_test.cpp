// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <set>
#include <string>

#include "events/event_types.h"
#include "tests/model/made_events.h"

namespace velquon::test {

namespace {

constexpr ChamberValues fast_in_small{.B_field = 3.0F, .sides_cm = 50.0F, .kinetic_Mev = 5000.0F};
constexpr double step_cm = 12.5;  // 20 drawing units in a chamber of 500 cm

ShownEvent shown(std::size_t type, const ChamberValues& values, unsigned seed) {
  return {.tracks = std::make_shared<EventTracks>(made(type, values, seed)),
          .values = values,
          .name = {},
          .has_event = true};
}

ShownEvent of_file(std::vector<PlotPoint> points, float side_cm = 500.0F) {
  auto tracks = std::make_shared<EventTracks>();
  tracks->points = std::move(points);
  return {.tracks = std::move(tracks),
          .values = {.B_field = 1.0F, .sides_cm = side_cm, .kinetic_Mev = 1.0F},
          .name = "some.cwd",
          .has_event = true};
}

/// The same event as a file has it.
ShownEvent without_record(const ShownEvent& event) {
  return of_file({event.points().begin(), event.points().end()}, event.values.sides_cm);
}

/// The first event of a type that is as wanted.
ShownEvent first_event(std::size_t type, const ChamberValues& values,
                       const std::function<bool(const ShownEvent&)>& is_wanted) {
  constexpr unsigned most_seeds = 3000;
  for (unsigned seed = 1; seed < most_seeds; ++seed) {
    ShownEvent event = shown(type, values, seed);
    if (is_wanted(event)) {
      return event;
    }
  }
  ADD_FAILURE() << "no such event";
  return {};
}

std::size_t particles_of(const ShownEvent& event) {
  return event.tracks->record->particles().size();
}

PlotPoint point(double x, double y, double z, std::int16_t code = 3) {
  return {.coords = {x, y, z, 1.0}, .code = code};
}

/// Points on a circle in the xy plane, a step of 20 apart.
/// \param sense 1 for anticlockwise where z comes towards the viewer
std::vector<PlotPoint> circle(double radius, int count, double sense) {
  std::vector<PlotPoint> points;
  for (int i = 0; i < count; ++i) {
    const double angle = sense * i * 20.0 / radius;
    points.push_back(point(radius * std::cos(angle), radius * std::sin(angle), 2.0 * i));
  }
  return points;
}

}  // namespace

TEST(EventWordsTest, ATurnIsSeenWithZTowardsTheViewer) {
  EXPECT_EQ(event_in_words(of_file(circle(200.0, 20, 1.0)), true).tracks[0].bend,
            Bend::anticlockwise);
  EXPECT_EQ(event_in_words(of_file(circle(200.0, 20, -1.0)), true).tracks[0].bend, Bend::clockwise);
}

TEST(EventWordsTest, AFullTurnAndMoreIsStillATurnOfOneSense) {
  EXPECT_EQ(event_in_words(of_file(circle(50.0, 60, -1.0)), true).tracks[0].bend, Bend::clockwise);
}

TEST(EventWordsTest, ATurnThatIsLessThanAPixelIsNone) {
  // Twenty points turn by 18 steps of 20 / radius.
  EXPECT_EQ(event_in_words(of_file(circle(360.0 / 0.019, 20, 1.0)), true).tracks[0].bend,
            Bend::straight);
  EXPECT_EQ(event_in_words(of_file(circle(360.0 / 0.021, 20, 1.0)), true).tracks[0].bend,
            Bend::anticlockwise);
}

TEST(EventWordsTest, TwoPointsOrATrackAlongZTurnNeitherWay) {
  EXPECT_EQ(event_in_words(of_file({point(0, 0, 0), point(20, 0, 0)}), true).tracks[0].bend,
            Bend::not_seen);
  EXPECT_EQ(event_in_words(of_file({point(0, 0, 0), point(0, 0, 20), point(0, 0, 40)}), true)
                .tracks[0]
                .bend,
            Bend::not_seen);
  EXPECT_EQ(event_in_words(of_file({point(0, 0, 0)}), true).tracks[0].length_cm, 0.0);
}

TEST(EventWordsTest, OppositeChargesTurnOppositeWays) {
  const auto bend_of_primary = [](std::size_t type) {
    return event_in_words(shown(type, usual, 1), true).tracks.at(0).bend;
  };
  EXPECT_EQ(bend_of_primary(positive_pion), Bend::clockwise);
  EXPECT_EQ(bend_of_primary(negative_pion), Bend::anticlockwise);
  EXPECT_EQ(event_in_words(shown(positive_pion, without_field, 1), true).tracks.at(0).bend,
            Bend::straight);
}

TEST(EventWordsTest, ALengthIsThatOfTheStepsBetweenThePointsInCentimetres) {
  for (const bool answers_shown : {true, false}) {
    const ShownEvent event = shown(positive_pion, usual, 1);
    const SeenTrack track = event_in_words(event, answers_shown).tracks.at(0);
    EXPECT_GT(track.points, 5U);
    EXPECT_NEAR(track.length_cm, static_cast<double>(track.points - 1) * step_cm,
                0.01 * track.length_cm);
  }
  const ShownEvent small = of_file({point(0, 0, 0), point(0, 20, 0), point(0, 40, 0)}, 50.0F);
  EXPECT_NEAR(event_in_words(small, true).tracks.at(0).length_cm, 2.5, 1e-12);
}

TEST(EventWordsTest, EachParticleThatLeftPointsIsATrack) {
  const ShownEvent event = first_event(negative_pion, usual, [](const ShownEvent& tried) {
    return particles_of(tried) == 3 && tried.tracks->record->particles()[1].points > 3;
  });
  const auto tracks = event_in_words(event, true).tracks;
  ASSERT_EQ(tracks.size(), 2U);
  EXPECT_EQ(tracks[0].particle->symbol, "π⁻");
  EXPECT_EQ(tracks[0].code, 3);
  EXPECT_EQ(tracks[1].particle->symbol, "μ⁻");
  EXPECT_EQ(tracks[1].code, 4);
  EXPECT_EQ(tracks[0].points + tracks[1].points, event.points().size());
}

TEST(EventWordsTest, TwoPairsAreFourTracksWithAndWithoutARecord) {
  const auto has_four_long_tracks = [](const ShownEvent& tried) {
    const auto particles = tried.tracks->record->particles();
    return particles.size() == 7 && std::ranges::count_if(particles, [](const auto& particle) {
                                      return particle.points > 6;
                                    }) == 4;
  };
  const ShownEvent event = first_event(neutral_pion, usual, has_four_long_tracks);
  EXPECT_EQ(event_in_words(event, true).tracks.size(), 4U);
  EXPECT_EQ(event_in_words(event, false).tracks.size(), 4U);
  EXPECT_EQ(event_in_words(without_record(event), true).tracks.size(), 4U);
}

TEST(EventWordsTest, TheLinesOfAFilesPointsAreTheTracksOfItsEvent) {
  // Every sort of event: what is counted by eye is what the record knows, but for a decay point whose
  // daughter left no track.
  int alike = 0;
  int events = 0;
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
      const ShownEvent event = shown(type, usual, seed);
      const auto known = event_in_words(event, true).tracks;
      const auto seen = event_in_words(without_record(event), true).tracks;
      ++events;
      alike += known.size() == seen.size() ? 1 : 0;
    }
  }
  EXPECT_GE(alike, events * 97 / 100) << alike << " of " << events;
}

TEST(EventWordsTest, PointsThatAreFarApartAreOneTrackOfTheirCode) {
  const ShownEvent event =
      of_file({point(-300, 0, 0), point(-100, 0, 0), point(100, 0, 0), point(300, 0, 0),
               point(0, 300, 0, 4), point(0, 100, 0, 4), point(0, -100, 0, 4)});
  const auto tracks = event_in_words(event, true).tracks;
  ASSERT_EQ(tracks.size(), 2U);
  EXPECT_EQ(tracks[0].points, 4U);
  EXPECT_EQ(tracks[1].code, 4);
}

TEST(EventWordsTest, ALambdaThatLeavesIsAllThatThereIsToTell) {
  const ShownEvent event = first_event(lambda_type, fast_in_small, [](const ShownEvent& tried) {
    return particles_of(tried) == 1 && tried.points().empty();
  });
  const EventInWords words = event_in_words(event, true);
  EXPECT_TRUE(words.tracks.empty());
  ASSERT_EQ(words.unseen.size(), 1U);
  EXPECT_EQ(words.unseen[0].particle->symbol, "Λ");
  EXPECT_EQ(words.unseen[0].fate, Fate::escaped);
  EXPECT_EQ(words.unseen[0].count, 1U);
}

TEST(EventWordsTest, OfAnEventWithoutPointsTheEndsOfItsChainsAreTold) {
  const ShownEvent event = first_event(lambda_type, usual, [](const ShownEvent& tried) {
    return particles_of(tried) == 5 && tried.points().empty();
  });
  const auto unseen = event_in_words(event, true).unseen;
  ASSERT_EQ(unseen.size(), 2U);
  EXPECT_EQ(unseen[0].particle->symbol, "n");
  EXPECT_EQ(unseen[0].fate, Fate::undetected);
  EXPECT_EQ(unseen[1].particle->symbol, "γ");
  EXPECT_EQ(unseen[1].fate, Fate::escaped);
  EXPECT_EQ(unseen[1].count, 2U);
}

TEST(EventWordsTest, BesideTracksOnlyChargedParticlesAreMissed) {
  const auto has_missing_lepton = [](const ShownEvent& tried) {
    return !tried.points().empty() &&
           std::ranges::count_if(tried.tracks->record->particles(), [](const auto& particle) {
             return std::abs(particle.pdg) == pdg::electron && particle.points == 0;
           }) == 1;
  };
  const ShownEvent event = first_event(neutral_pion, usual, has_missing_lepton);
  const auto unseen = event_in_words(event, true).unseen;
  ASSERT_EQ(unseen.size(), 1U);
  EXPECT_NE(unseen[0].particle->charge, 0);
  EXPECT_EQ(unseen[0].fate, Fate::left);
}

TEST(EventWordsTest, HiddenAnswersLeaveWhatIsSeen) {
  const ShownEvent empty = first_event(
      lambda_type, usual, [](const ShownEvent& tried) { return tried.points().empty(); });
  EXPECT_TRUE(event_in_words(empty, false).unseen.empty());
  const auto tracks = event_in_words(shown(negative_pion, usual, 1), false).tracks;
  ASSERT_FALSE(tracks.empty());
  for (const SeenTrack& track : tracks) {
    EXPECT_EQ(track.particle, nullptr);
  }
}

TEST(EventWordsTest, AnEventOfNothingHasNothingToTell) {
  const EventInWords words = event_in_words(ShownEvent{}, true);
  EXPECT_TRUE(words.tracks.empty());
  EXPECT_TRUE(words.unseen.empty());
}

}  // namespace velquon::test
