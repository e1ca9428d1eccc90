// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/event_text.h"

#include <gtest/gtest.h>

#include "tests/support/type_places.h"

namespace velquon::test {

namespace {

ShownEvent event_named(const std::string& name, std::optional<std::size_t> type,
                       std::size_t points = 0) {
  auto tracks = std::make_shared<EventTracks>();
  tracks->points.resize(points);
  tracks->type = type;
  return {.tracks = std::move(tracks), .values = {}, .name = name, .has_event = true};
}

SeenTrack track_of(int pdg, std::int16_t code, double length_cm, Bend bend) {
  return {.code = code,
          .particle = pdg == 0 ? nullptr : &particle_kind(pdg),
          .points = 20,
          .length_cm = length_cm,
          .bend = bend};
}

UnseenParticles missing(int pdg, Fate fate, std::size_t count = 1) {
  return {.particle = &particle_kind(pdg), .fate = fate, .count = count};
}

std::string status(const ShownEvent& event, const EventInWords& words,
                   const StatusFacts& facts = {.number = 3}) {
  return status_text(event, words, facts).toStdString();
}

const EventInWords two_tracks{.tracks = {track_of(-pdg::pion, 3, 123.4, Bend::anticlockwise),
                                         track_of(pdg::muon, 4, 8.25, Bend::straight)},
                              .unseen = {}};

}  // namespace

TEST(StatusTextTest, TellsKindNumberSeedPointsAndTracks) {
  const ShownEvent event = event_named("Untitled Type 1 Decay", 0, 41);
  EXPECT_EQ(status(event, two_tracks), "Negative Pion · event 3 · 41 points · 2 tracks");
  EXPECT_EQ(status(event, two_tracks, {.number = 1, .seed = 7, .answers_shown = true}),
            "Negative Pion · event 1 · seed 7 · 41 points · 2 tracks");
}

TEST(StatusTextTest, DoesNotTellTheKindWhileAnswersAreHidden) {
  const ShownEvent event = event_named("Untitled Type 1 Decay", 0, 41);
  EXPECT_EQ(status(event, two_tracks, {.number = 3, .seed = {}, .answers_shown = false}),
            "Untitled Type 1 Decay · event 3 · 41 points · 2 tracks");
}

TEST(StatusTextTest, AFileHasItsName) {
  EXPECT_EQ(status(event_named("pion 100%.cwd", {}, 41), two_tracks),
            "pion 100%.cwd · event 3 · 41 points · 2 tracks");
}

TEST(StatusTextTest, TellsWhyThereIsNoTrackForEveryFate) {
  const ShownEvent event = event_named("Untitled Type 6 Decay", lambda_type);
  struct Case {
    UnseenParticles unseen;
    const char* reason = nullptr;
  };
  const std::array cases{
      Case{missing(pdg::lambda, Fate::escaped), "the Λ left the chamber"},
      Case{missing(pdg::photon, Fate::escaped, 2), "2 γ left the chamber"},
      Case{missing(pdg::neutron, Fate::undetected), "the n is not detected"},
      Case{missing(pdg::neutron, Fate::undetected, 2), "2 n are not detected"},
      Case{missing(pdg::electron, Fate::left), "the e⁻ left the chamber at once"},
      Case{missing(pdg::electron, Fate::left, 2), "2 e⁻ left the chamber at once"},
      Case{missing(pdg::electron, Fate::full), "the event holds no points of the e⁻"},
      Case{missing(pdg::electron, Fate::full, 2), "the event holds no points of 2 e⁻"},
      Case{missing(pdg::pizero, Fate::decayed), "the π⁰ decayed"},
      Case{missing(pdg::pizero, Fate::decayed, 2), "2 π⁰ decayed"},
      Case{missing(pdg::photon, Fate::converted), "the γ converted to a pair"},
      Case{missing(pdg::photon, Fate::converted, 2), "2 γ converted to pairs"}};
  for (const auto& [unseen, reason] : cases) {
    EXPECT_EQ(status(event, {.tracks = {}, .unseen = {unseen}}),
              std::string("Lambda · event 3 · No visible track: ") + reason);
  }
}

TEST(StatusTextTest, SeveralReasonsStandBehindOneAnother) {
  const ShownEvent event = event_named("Untitled Type 6 Decay", lambda_type);
  EXPECT_EQ(status(event, {.tracks = {},
                           .unseen = {missing(pdg::neutron, Fate::undetected),
                                      missing(pdg::photon, Fate::escaped, 2)}}),
            "Lambda · event 3 · No visible track: the n is not detected, 2 γ left the chamber");
}

TEST(StatusTextTest, WithoutAReasonThereIsJustNoTrack) {
  EXPECT_EQ(status(event_named("empty.cwd", {}), {}), "empty.cwd · event 3 · No visible track");
}

TEST(StatusTextTest, AParticleThatIsMissedBesideTracksIsTold) {
  EventInWords words = two_tracks;
  words.unseen = {missing(-pdg::electron, Fate::left)};
  EXPECT_EQ(status(event_named("Untitled Type 3 Decay", 2, 41), words),
            "Neutral Pion · event 3 · 41 points · 2 tracks · the e⁺ left the chamber at once");
}

TEST(SpokenEventTest, TellsEachTrackItsLengthAndItsTurn) {
  EXPECT_EQ(spoken_event(two_tracks, TrackColoring::by_code).toStdString(),
            "2 tracks on the xy plane. Negative pion, red: 123 cm, turns anticlockwise. Negative "
            "muon, yellow: 8.2 cm, straight.");
  EXPECT_EQ(spoken_event(two_tracks, TrackColoring::white).toStdString(),
            "2 tracks on the xy plane. Negative pion: 123 cm, turns anticlockwise. Negative muon: "
            "8.2 cm, straight.");
}

TEST(SpokenEventTest, NumbersTracksThatAreNotKnown) {
  const EventInWords words{
      .tracks = {track_of(0, 3, 50.0, Bend::clockwise), track_of(0, 7, 12.0, Bend::not_seen)},
      .unseen = {}};
  EXPECT_EQ(
      spoken_event(words, TrackColoring::by_code).toStdString(),
      "2 tracks on the xy plane. Track 1, red: 50 cm, turns clockwise. Track 2, light blue: 12 "
      "cm, too short to tell which way it turns.");
}

TEST(SpokenEventTest, TellsWhyNothingIsSeen) {
  EXPECT_EQ(spoken_event({.tracks = {}, .unseen = {missing(pdg::lambda, Fate::escaped)}},
                         TrackColoring::by_code)
                .toStdString(),
            "No visible track: the Λ left the chamber");
}

}  // namespace velquon::test
