// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_answers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

#include "model/seeded_events.h"

namespace velquon {
namespace {

/// A place on the paper, cm: x of the chamber as the real part and y as the imaginary one.
using Place2 = std::complex<double>;

/// The charged particles of an event that left points, each with the places of its track, from the
/// vertex on, as they are on the paper. Taken from the points alone.
struct MeasuredTrack {
  const RecordedParticle* particle;
  std::vector<Place2> places;
};

std::vector<MeasuredTrack> measured_tracks(const EventTracks& event, double side_cm) {
  std::vector<MeasuredTrack> tracks;
  const auto particles = event.record->particles();
  for (std::size_t row = 0; row < particles.size(); ++row) {
    if (particles[row].points == 0) {
      continue;
    }
    MeasuredTrack track{&particles[row],
                        {{particles[row].place_cm[0], particles[row].place_cm[1]}}};
    for (std::size_t i = 0; i < event.points.size(); ++i) {
      if (event.record->owners()[i] == row) {
        const auto& coords = event.points[i].coords;
        track.places.emplace_back(coords[0] * side_cm / 800.0, coords[1] * side_cm / 800.0);
      }
    }
    tracks.push_back(std::move(track));
  }
  return tracks;
}

/// The centre of the circle through three places.
Place2 centre_of(Place2 a, Place2 b, Place2 c) {
  const Place2 w = (c - a) / (b - a);
  return a + (b - a) * (w - std::norm(w)) / Place2(0.0, 2.0 * w.imag());
}

/// The direction in which a circle is run through at a place of it, on the way from `from` to `to`.
Place2 tangent(Place2 centre, Place2 at, Place2 from, Place2 to) {
  const Place2 across = (at - centre) * Place2(0.0, 1.0);
  return (across * std::conj(to - from)).real() > 0.0 ? across : -across;
}

double angle_deg(Place2 a, Place2 b) {
  return std::fabs(std::arg(a / b)) * 180.0 / std::numbers::pi;
}

class TrackAnswersTest : public testing::TestWithParam<ChamberValues> {
 protected:
  static constexpr std::size_t many = 150;
};

/// Whether a circle can be laid through a track's places by eye: enough of them, some way round and
/// in steps that show where it goes.
bool is_measurable(const MeasuredTrack& track, double radius_cm, double side_cm) {
  const double step_cm = side_cm / 40.0;
  const std::size_t steps = track.places.size() - 1;
  return steps >= 4 && radius_cm > step_cm && static_cast<double>(steps) * step_cm > radius_cm / 20;
}

double arc_through(const std::vector<Place2>& places, double radius) {
  double arc = 0.0;
  for (std::size_t k = 1; k < places.size(); ++k) {
    arc += 2.0 * radius * std::asin(std::abs(places[k] - places[k - 1]) / (2.0 * radius));
  }
  return arc;
}

/// The track of a particle's parent, or the end.
std::vector<MeasuredTrack>::const_iterator parent_of(const MeasuredTrack& track,
                                                     const std::vector<MeasuredTrack>& tracks,
                                                     const EventTracks& event) {
  const auto number = track.particle->parent;
  return number < 0 ? tracks.end()
                    : std::ranges::find(
                          tracks, &event.record->particles()[static_cast<std::size_t>(number)],
                          &MeasuredTrack::particle);
}

TEST_P(TrackAnswersTest, RadiusLengthAndAngleAreThoseOfTheCirclesThroughThePoints) {
  const ChamberValues values = GetParam();
  const auto side_cm = static_cast<double>(values.sides_cm);
  int radii = 0;
  int angles = 0;
  for (const EventType& type : event_types()) {
    for (const EventTracks& event : seeded_events(type, values, 11, many)) {
      const auto answers = answers_of(*event.record, values);
      const auto tracks = measured_tracks(event, side_cm);
      ASSERT_EQ(answers.size(), tracks.size()) << type.key;
      std::vector<Place2> centres(tracks.size());
      for (std::size_t i = 0; i < tracks.size(); ++i) {
        const TrackAnswer& answer = answers[i];
        const auto& places = tracks[i].places;
        ASSERT_EQ(answer.pdg, tracks[i].particle->pdg);
        if (!is_measurable(tracks[i], answer.radius_cm.value(), side_cm)) {
          continue;
        }
        centres[i] = centre_of(places.front(), places[places.size() / 2], places.back());
        const double radius = std::abs(places.front() - centres[i]);
        EXPECT_NEAR(*answer.radius_cm / radius, 1.0, 1e-6) << type.key;
        EXPECT_NEAR(answer.transverse_momentum,
                    0.3 * std::fabs(static_cast<double>(values.B_field)) * radius,
                    1e-6 * answer.momentum);
        EXPECT_NEAR(answer.paper_length_cm / arc_through(places, radius), 1.0, 1e-5) << type.key;
        ++radii;
        const auto parent = parent_of(tracks[i], tracks, event);
        if (parent == tracks.end()) {
          continue;
        }
        const Place2 centre = centres[static_cast<std::size_t>(parent - tracks.begin())];
        if (centre == Place2()) {
          continue;
        }
        const auto& way = parent->places;
        EXPECT_NEAR(*answer.paper_angle_deg,
                    angle_deg(tangent(centres[i], places[0], places[0], places[1]),
                              tangent(centre, way.back(), way[way.size() - 2], way.back())),
                    1e-3)
            << type.key;
        ++angles;
      }
    }
  }
  EXPECT_GT(radii, 200);
  EXPECT_GT(angles, 10);
}

TEST_P(TrackAnswersTest, LengthsInSpaceAreTheStepsOfThePoints) {
  const ChamberValues values = GetParam();
  for (const EventType& type : event_types()) {
    for (const EventTracks& event : seeded_events(type, values, 5, many)) {
      for (const TrackAnswer& answer : answers_of(*event.record, values)) {
        EXPECT_NEAR(answer.paper_length_cm / answer.length_cm,
                    answer.transverse_momentum / answer.momentum, 1e-9);
        const double steps = answer.length_cm / (static_cast<double>(values.sides_cm) / 40.0);
        EXPECT_NEAR(steps, std::round(steps), 1e-9);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    BothFields, TrackAnswersTest,
    testing::Values(ChamberValues{.B_field = 10.0F, .sides_cm = 300.0F, .kinetic_Mev = 30.0F},
                    ChamberValues{.B_field = -4.0F, .sides_cm = 1000.0F, .kinetic_Mev = 20.0F}));

TEST(TrackAnswers, NameTheParentsAndLeaveOutWhatLeavesNoTrack) {
  const ChamberValues values{.B_field = 10.0F, .sides_cm = 2000.0F, .kinetic_Mev = 5.0F};
  std::size_t whole_chains = 0;
  for (const EventTracks& event : seeded_events(event_types()[0], values, 1, 100)) {
    const auto answers = answers_of(*event.record, values);
    if (answers.size() == 3) {
      ++whole_chains;
      EXPECT_EQ(answers[0].pdg, -pdg::pion);
      EXPECT_EQ(answers[0].parent_pdg, std::nullopt);
      EXPECT_EQ(answers[0].angle_deg, std::nullopt);
      EXPECT_EQ(answers[0].fate, Fate::decayed);
      EXPECT_EQ(answers[1].pdg, pdg::muon);
      EXPECT_EQ(answers[1].parent_pdg, -pdg::pion);
      EXPECT_EQ(answers[2].pdg, pdg::electron);
      EXPECT_EQ(answers[2].parent_pdg, pdg::muon);
    }
  }
  EXPECT_GT(whole_chains, 0U);
}

TEST(TrackAnswers, WithoutAFieldTracksHaveNoRadiusAndStraightLengths) {
  const ChamberValues values{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 20.0F};
  int tracks_seen = 0;
  for (const EventType& type : event_types()) {
    for (const EventTracks& event : seeded_events(type, values, 3, 50)) {
      const auto answers = answers_of(*event.record, values);
      const auto tracks = measured_tracks(event, 500.0);
      ASSERT_EQ(answers.size(), tracks.size());
      for (std::size_t i = 0; i < answers.size(); ++i) {
        EXPECT_EQ(answers[i].radius_cm, std::nullopt);
        EXPECT_NEAR(answers[i].paper_length_cm,
                    std::abs(tracks[i].places.back() - tracks[i].places.front()), 1e-9);
        ++tracks_seen;
      }
    }
  }
  EXPECT_GT(tracks_seen, 100);
}

}  // namespace
}  // namespace velquon
