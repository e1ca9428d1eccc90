// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "events/event_types.h"
#include "model/place.h"
#include "tests/model/made_events.h"

namespace velquon::test {

namespace {

Place flat(const PlotPoint& point, double cm_per_unit) {
  return {point.coords[0] * cm_per_unit, point.coords[1] * cm_per_unit};
}

double distance(Place from, Place to) {
  return std::hypot(to.x - from.x, to.y - from.y);
}

/// Radius of the circle through three places: the product of the sides over four times the area.
double radius_through(Place a, Place b, Place c) {
  const double twice_area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
  return distance(a, b) * distance(b, c) * distance(c, a) / (2.0 * std::abs(twice_area));
}

double distance(const Vector3& from, const Vector3& to) {
  return std::hypot(to[0] - from[0], to[1] - from[1], to[2] - from[2]);
}

/// A track from its vertex along the chords between its points, in a chamber of 400 cm.
struct Chords {
  double length = 0.0;    ///< cm
  double straight = 0.0;  ///< from the vertex to the last point, cm
};

Chords chords_of(const EventTracks& event, const EventRow& row, const Vector3& vertex) {
  Chords chords;
  Vector3 at = vertex;
  for (const std::size_t point : row.points) {
    const auto& [x, y, z, w] = event.points[point].coords;
    const Vector3 next{x / 2.0, y / 2.0, z / 2.0};
    chords.length += distance(at, next);
    at = next;
  }
  chords.straight = distance(vertex, at);
  return chords;
}

std::vector<std::string> names_of(const std::vector<EventRow>& rows) {
  std::vector<std::string> names;
  names.reserve(rows.size());
  for (const EventRow& row : rows) {
    names.push_back(std::string(row.name) + " " + std::string(row.symbol));
  }
  return names;
}

/// The first event of a type with so many rows, and these.
std::vector<EventRow> rows_of_event_with(std::size_t type, std::size_t count) {
  constexpr unsigned most_seeds = 3000;
  for (unsigned seed = 1; seed < most_seeds; ++seed) {
    auto rows = event_rows(*made(type, usual, seed).record, usual);
    if (rows.size() == count) {
      return rows;
    }
  }
  ADD_FAILURE() << "no event with " << count << " particles";
  return {};
}

struct Flight {
  double length = 0.0;  ///< what the row says, in cm
  Chords chords;
};

/// The flights of the tracks of forty events, but for those on narrow helices: the chords between their
/// points say little of their length.
std::vector<Flight> flights_in(float field) {
  const ChamberValues values{.B_field = field, .sides_cm = 400.0F, .kinetic_Mev = 30.0F};
  std::vector<Flight> flights;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const EventTracks event = made(negative_pion, values, seed);
    const auto rows = event_rows(*event.record, values);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (!rows[i].points.empty() && rows[i].radius_cm.value_or(100.0) >= 10.0) {
        flights.push_back({rows[i].flight_cm.value(),
                           chords_of(event, rows[i], event.record->particles()[i].place_cm)});
      }
    }
  }
  return flights;
}

}  // namespace

TEST(EventRowsTest, ParticlesHaveTheirNamesAndSymbols) {
  EXPECT_EQ(names_of(rows_of_event_with(negative_pion, 5)),
            (std::vector<std::string>{"Negative pion π⁻", "Negative muon μ⁻", "Antineutrino ν̄",
                                      "Electron e⁻", "Neutrino and antineutrino ν ν̄"}));
  EXPECT_EQ(names_of(rows_of_event_with(positive_pion, 5)),
            (std::vector<std::string>{"Positive pion π⁺", "Positive muon μ⁺", "Neutrino ν",
                                      "Positron e⁺", "Neutrino and antineutrino ν ν̄"}));
  EXPECT_EQ(names_of(rows_of_event_with(neutral_pion, 7)),
            (std::vector<std::string>{"Neutral pion π⁰", "Photon γ", "Electron e⁻", "Positron e⁺",
                                      "Photon γ", "Electron e⁻", "Positron e⁺"}));
  EXPECT_EQ(names_of(rows_of_event_with(lambda_type, 9)),
            (std::vector<std::string>{"Lambda Λ", "Neutron n", "Neutral pion π⁰", "Photon γ",
                                      "Electron e⁻", "Positron e⁺", "Photon γ", "Electron e⁻",
                                      "Positron e⁺"}));
}

TEST(EventRowsTest, EveryParticleOfManyEventsHasANameAFateAndItsParent) {
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
      const EventTracks event = made(type, usual, seed);
      const auto rows = event_rows(*event.record, usual);
      ASSERT_EQ(rows.size(), event.record->particles().size());
      for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_FALSE(rows[i].name.empty());
        EXPECT_FALSE(rows[i].fate.empty());
        EXPECT_EQ(rows[i].parent, event.record->particles()[i].parent);
      }
    }
  }
}

TEST(EventRowsTest, FatesAreToldInWords) {
  const auto rows = rows_of_event_with(neutral_pion, 5);
  std::vector<std::string> fates;
  fates.reserve(rows.size());
  for (const EventRow& row : rows) {
    fates.emplace_back(row.fate);
  }
  EXPECT_EQ(fates[0], "decayed");
  // Of its two photons one left no pair.
  EXPECT_EQ(std::ranges::count(fates, "converted to a pair"), 1);
  EXPECT_EQ(std::ranges::count(fates, "left unseen"), 1);
  EXPECT_EQ(rows_of_event_with(positive_pion, 5)[2].fate, "not detected");
  EXPECT_EQ(rows_of_event_with(positive_pion, 1)[0].fate, "left the chamber");
}

TEST(EventRowsTest, TheRadiusIsThatOfTheCircleThroughThePoints) {
  int compared = 0;
  for (const float field : {3.0F, -3.0F}) {
    const ChamberValues values{.B_field = field, .sides_cm = 300.0F, .kinetic_Mev = 200.0F};
    for (std::size_t type = 0; type < event_types().size(); ++type) {
      const EventTracks event = made(type, values, 11);
      for (const EventRow& row : event_rows(*event.record, values)) {
        if (row.points.size() < 4) {
          continue;
        }
        const double cm_per_unit = 300.0 / 800.0;
        const auto at = [&](std::size_t i) {
          return flat(event.points[row.points[i]], cm_per_unit);
        };
        ASSERT_TRUE(row.radius_cm);
        EXPECT_NEAR(*row.radius_cm / radius_through(at(0), at(1), at(3)), 1.0, 1e-6) << row.name;
        ++compared;
      }
    }
  }
  EXPECT_GT(compared, 10);
}

TEST(EventRowsTest, ThereIsNoRadiusWithoutAChargeOrAField) {
  for (const EventRow& row : event_rows(*made(lambda_type, usual, 1).record, usual)) {
    const bool is_charged = row.name == "Proton" || row.name == "Negative pion" ||
                            row.name == "Negative muon" || row.name == "Electron" ||
                            row.name == "Positron";
    EXPECT_EQ(row.radius_cm.has_value(), is_charged) << row.name;
  }
  const ChamberValues no_field{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 60.0F};
  for (const EventRow& row : event_rows(*made(negative_pion, no_field, 1).record, no_field)) {
    EXPECT_FALSE(row.radius_cm) << row.name;
  }
}

TEST(EventRowsTest, MomentumAndKineticEnergyOfThePrimaryAreThoseOfTheBeam) {
  const auto rows = event_rows(*made(positive_pion, usual, 1).record, usual);
  // E = T + m, p^2 = E^2 - m^2.
  EXPECT_NEAR(rows[0].kinetic_energy, 60.0, 1e-9);
  EXPECT_NEAR(rows[0].momentum, std::sqrt(199.6 * 199.6 - 139.6 * 139.6), 1e-9);
  EXPECT_NEAR(rows[0].transverse_momentum, rows[0].momentum, 1e-9);
}

TEST(EventRowsTest, TheTransverseMomentumIsThatAcrossTheFieldAlongZ) {
  double most_along = 0.0;
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const EventTracks event = made(positive_pion, usual, seed);
    const auto rows = event_rows(*event.record, usual);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const auto& [px, py, pz] = event.record->particles()[i].momentum;
      EXPECT_NEAR(rows[i].transverse_momentum, std::sqrt(px * px + py * py), 1e-9);
      EXPECT_NEAR(rows[i].momentum, std::sqrt(px * px + py * py + pz * pz), 1e-9);
      most_along = std::max(most_along, std::abs(pz));
    }
  }
  EXPECT_GT(most_along, 10.0);
}

TEST(EventRowsTest, AParticleWithoutMassHasItsEnergyAsKineticEnergy) {
  const auto rows = rows_of_event_with(neutral_pion, 5);
  EXPECT_NEAR(rows[1].kinetic_energy, rows[1].momentum, 1e-9);
}

TEST(EventRowsTest, AFlightWithoutFieldIsAsLongAsItsTrack) {
  const auto flights = flights_in(0.0F);
  EXPECT_GE(flights.size(), 40U);
  for (const auto& [length, chords] : flights) {
    EXPECT_NEAR(length / chords.length, 1.0, 1e-9);
  }
}

TEST(EventRowsTest, AFlightOnAHelixIsLittleLongerThanItsChords) {
  int curved = 0;
  for (const auto& [length, chords] : flights_in(4.0F)) {
    EXPECT_GE(length, chords.length * (1.0 - 1e-9));
    EXPECT_LT(length, chords.length * 1.05);
    curved += length > 1.2 * chords.straight ? 1 : 0;
  }
  EXPECT_GT(curved, 5);
}

TEST(EventRowsTest, TheFlightToADecayIsWholeWhereTheEventCutsItsTrack) {
  // Pions that circle beside their proton: an event's 350 points are less than both tracks have.
  const ChamberValues values{.B_field = 100.0F, .sides_cm = 100.0F, .kinetic_Mev = 300.0F};
  int cut = 0;
  std::srand(1);
  for (int number = 0; number < 20'000; ++number) {
    TrackBuffer buffer;
    ParticleRecord record;
    static_cast<void>(make_event(event_types()[lambda_type], values, buffer, &record));
    const auto rows = event_rows(record, values);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const RecordedParticle& particle = record.particles()[i];
      if (particle.pdg != -pdg::pion || particle.fate != Fate::decayed) {
        continue;
      }
      // A helix goes along z at an even pace.
      const double along_z = (*particle.end_cm)[2] - particle.place_cm[2];
      ASSERT_TRUE(rows[i].flight_cm);
      EXPECT_NEAR(*rows[i].flight_cm * particle.momentum[2] / rows[i].momentum, along_z, 1e-6);
      cut += particle.points < particle.steps ? 1 : 0;
    }
  }
  EXPECT_GE(cut, 3);
}

TEST(EventRowsTest, ANeutralFlightIsTheWayToItsEnd) {
  const EventTracks event = made(lambda_type, usual, 1);
  const auto rows = event_rows(*event.record, usual);
  const RecordedParticle& primary = event.record->particles()[0];
  ASSERT_TRUE(primary.end_cm);
  EXPECT_NEAR(*rows[0].flight_cm, distance(primary.place_cm, *primary.end_cm), 1e-9);
  EXPECT_GT(*rows[0].flight_cm, 0.1);
  // A neutrino is not followed.
  EXPECT_FALSE(rows_of_event_with(positive_pion, 5)[2].flight_cm);
}

TEST(EventRowsTest, TheMeanDecayLengthGrowsWithMomentum) {
  const auto pion_rows = rows_of_event_with(positive_pion, 5);
  EXPECT_NEAR(*pion_rows[0].decay_length_cm, pion_rows[0].momentum / 139.6 * 780.0, 1e-9);
  EXPECT_NEAR(*pion_rows[1].decay_length_cm, pion_rows[1].momentum / 105.7 * 65868.0, 1e-6);
  EXPECT_FALSE(pion_rows[2].decay_length_cm);
  EXPECT_FALSE(pion_rows[3].decay_length_cm);
  const auto lambda_rows = rows_of_event_with(lambda_type, 9);
  EXPECT_NEAR(*lambda_rows[0].decay_length_cm, lambda_rows[0].momentum / 1115.6 * 7.89, 1e-9);
  EXPECT_FALSE(lambda_rows[1].decay_length_cm);
  EXPECT_NEAR(*lambda_rows[2].decay_length_cm, lambda_rows[2].momentum / 135.0 * 2.5e-6, 1e-12);
  EXPECT_FALSE(lambda_rows[3].decay_length_cm);
}

TEST(EventRowsTest, ThePointsOfAllRowsAreThoseOfTheEvent) {
  for (std::size_t type = 0; type < event_types().size(); ++type) {
    const EventTracks event = made(type, usual, 5);
    const auto rows = event_rows(*event.record, usual);
    std::vector<int> owners(event.points.size(), 0);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const RecordedParticle& particle = event.record->particles()[i];
      ASSERT_EQ(rows[i].points.size(), static_cast<std::size_t>(particle.points));
      EXPECT_TRUE(std::ranges::is_sorted(rows[i].points));
      if (particle.points > 0) {
        EXPECT_EQ(rows[i].points.front(), static_cast<std::size_t>(particle.first_point));
        EXPECT_EQ(event.points[rows[i].points.front()].code, particle.code);
      }
      for (const std::size_t point : rows[i].points) {
        ++owners[point];
      }
    }
    EXPECT_TRUE(std::ranges::all_of(owners, [](int count) { return count == 1; }));
  }
}

TEST(EventRowsTest, AnEmptyRecordHasNoRows) {
  EXPECT_TRUE(event_rows(ParticleRecord(), usual).empty());
}

TEST(VisibleTracksTest, AreTheCodesWithTheirColorsAndPoints) {
  std::vector<PlotPoint> points;
  for (const std::int16_t code : std::array<std::int16_t, 9>{4, 3, 4, 5, 6, 7, 9, 2, 3}) {
    points.push_back({.code = code});
  }
  struct Expected {
    std::int16_t code;
    const char* color;
    std::vector<std::size_t> points;
  };
  const std::vector<Expected> expected{
      {4, "Yellow", {0, 2}},  {3, "Red", {1, 8}},     {5, "Green", {3}},     {6, "Blue", {4}},
      {7, "Light blue", {5}}, {9, "Light blue", {6}}, {2, "Light blue", {7}}};
  const auto tracks = visible_tracks(points);
  ASSERT_EQ(tracks.size(), expected.size());
  for (std::size_t i = 0; i < tracks.size(); ++i) {
    EXPECT_EQ(tracks[i].code, expected[i].code);
    EXPECT_EQ(tracks[i].color, expected[i].color);
    EXPECT_EQ(tracks[i].points, expected[i].points);
  }
  EXPECT_TRUE(visible_tracks({}).empty());
}

}  // namespace velquon::test
