// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_sample.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

#include "events/event_types.h"
#include "files/particle_table.h"
#include "files/particle_table_reader.h"
#include "model/chamber_model.h"
#include "model/event_numbering.h"
#include "model/event_rows.h"
#include "model/measured_sample.h"
#include "model/measurement_of_event.h"
#include "tests/support/type_places.h"

namespace velquon {

namespace {

constexpr ChamberValues lively{.B_field = 2.0F, .sides_cm = 500.0F, .kinetic_Mev = 40.0F};

/// Records of events of a type, one behind the other; without those of which nothing is known.
std::vector<ParticleRecord> records(std::size_t type, int events, const ChamberValues& values) {
  std::srand(11);
  std::vector<ParticleRecord> made;
  TrackBuffer event;
  for (int i = 0; i < events; ++i) {
    ParticleRecord record;
    make_event(event_types()[type], values, event, &record);
    made.push_back(record);
  }
  return made;
}

std::string table_of(const std::vector<ParticleRecord>& records) {
  std::string text;
  ParticleTable table([&text](std::span<const std::byte> bytes) {
    for (const std::byte byte : bytes) {
      text += static_cast<char>(byte);
    }
    return std::error_code();
  });
  for (std::size_t i = 0; i < records.size(); ++i) {
    EXPECT_FALSE(table.write(i + 1, records[i]));
  }
  EXPECT_FALSE(table.finish());
  return text;
}

struct ReadEvents {
  bool is_whole = false;
  std::size_t line = 0;
  std::vector<std::uint64_t> numbers;
  std::vector<std::vector<RecordedParticle>> events;
};

/// Reads a table in pieces of a size.
ReadEvents read_table(const std::string& text, std::size_t piece) {
  ReadEvents read;
  ParticleTableReader reader(
      [&read](std::uint64_t number, std::span<const RecordedParticle> particles) {
        read.numbers.push_back(number);
        read.events.emplace_back(particles.begin(), particles.end());
      });
  bool is_good = true;
  for (std::size_t at = 0; at < text.size() && is_good; at += piece) {
    is_good = reader.take(std::string_view{text}.substr(at, piece));
  }
  read.is_whole = reader.finish();
  read.line = reader.line();
  return read;
}

bool same(const RecordedParticle& left, const RecordedParticle& right) {
  const bool same_track =
      left.points == right.points &&
      (left.points == 0 || (left.code == right.code && left.first_point == right.first_point));
  return same_track && left.pdg == right.pdg && left.parent == right.parent &&
         left.fate == right.fate && left.place_cm == right.place_cm &&
         left.momentum == right.momentum && left.energy == right.energy &&
         left.end_cm == right.end_cm;
}

}  // namespace

TEST(ParticleTableReaderTest, ReadsBackEveryParticleInPiecesOfAnySize) {
  for (const std::size_t type : {test::positive_pion, test::lambda_type}) {
    const auto made = records(type, 30, lively);
    for (const std::size_t piece : {std::size_t{1}, std::size_t{100}, std::size_t{1U << 20U}}) {
      const ReadEvents read = read_table(table_of(made), piece);
      EXPECT_TRUE(read.is_whole);
      ASSERT_EQ(read.events.size(), made.size());
      for (std::size_t i = 0; i < made.size(); ++i) {
        EXPECT_EQ(read.numbers[i], i + 1);
        EXPECT_TRUE(std::ranges::equal(read.events[i], made[i].particles(), same)) << i;
      }
    }
  }
}

TEST(ParticleTableReaderTest, RefusesWhatIsDamagedAndSaysWhere) {
  const std::string whole = table_of(records(test::positive_pion, 3, lively));
  const std::size_t second = whole.find('\n') + 1;
  const auto with = [&](const std::string& line) { return whole.substr(0, second) + line + "\n"; };
  const std::string tail = ",0,0,0,1,0,0,140,,,";
  EXPECT_TRUE(read_table(with("1,0,211,-1,decayed,,," + tail), 7).is_whole);
  struct Case {
    std::string text;
    std::size_t line;
  };
  const std::vector<Case> cases{
      {"", 1},
      {"event,point,x,y,z,code\n", 1},
      {whole.substr(0, whole.size() - 1), 0},
      {with("1,0,211,-1,vanished,,," + tail), 2},
      {with("1,0,211,-1,decayed,,,,0,0,0,1,0,nan,140,,,"), 2},
      {with("1,0,211,-1,decayed,,,,0,0,0,1,0,0,140,,"), 2},
      {with("1,0,211,-1,decayed,,,,0,0,0,1,0,0,140,,,,"), 2},
      {with("0,0,211,-1,decayed,,," + tail), 2},
      {with("1,1,211,-1,decayed,,," + tail), 2},
      {with("1,0,211,0,decayed,,," + tail), 2},
      {with("1,0,pi,-1,decayed,,," + tail), 2},
      {with("1,0,211,-1,decayed,x,0,5,0,0,0,1,0,0,140,,,"), 2},
      {with("1,0,211,-1,decayed,,," + tail + "\n1,0,211,-1,decayed,,," + tail), 3},
      {with("1,0,211,-1,decayed,,," + tail + "\n1,2,211,0,decayed,,," + tail), 3},
      {with(std::string(5000, '1')), 2}};
  for (const auto& [text, line] : cases) {
    for (const std::size_t piece : {std::size_t{50}, std::size_t{1U << 20U}}) {
      const ReadEvents read = read_table(text, piece);
      EXPECT_FALSE(read.is_whole) << text.substr(0, 300);
      if (line > 0) {
        EXPECT_EQ(read.line, line) << text.substr(0, 300);
      }
    }
  }
}

TEST(EventSampleTest, ADecayLengthIsTheFlightOfThePrimaryAndWhatLeftIsMarked) {
  int decayed = 0;
  int left = 0;
  for (const ParticleRecord& record : records(test::positive_pion, 200, lively)) {
    const auto noted = measurement_of(SampledQuantity::decay_length, record.particles(), lively);
    if (record.particles().empty()) {
      EXPECT_FALSE(noted);
      continue;
    }
    ASSERT_TRUE(noted);
    EXPECT_EQ(noted->quantity, Quantity::decay_length);
    EXPECT_EQ(noted->field_kG, 2.0);
    EXPECT_DOUBLE_EQ(noted->value, *event_rows(record, lively).front().flight_cm);
    const bool has_decayed = record.particles().front().fate == Fate::decayed;
    EXPECT_EQ(noted->ending, has_decayed ? Ending::decayed : Ending::left);
    ++(has_decayed ? decayed : left);
  }
  EXPECT_GT(decayed, 20);
  EXPECT_GT(left, 20);
}

TEST(EventSampleTest, AnUnseenPrimaryFliesToTheWall) {
  RecordedParticle neutral;
  neutral.pdg = pdg::lambda;
  neutral.fate = Fate::escaped;
  neutral.place_cm = {-250.0, 0.0, 100.0};
  neutral.momentum = {3.0, 0.0, 4.0};
  // To the wall at z = 250: 150 / 0.8.
  const auto noted = measurement_of(SampledQuantity::decay_length, std::span(&neutral, 1), lively);
  ASSERT_TRUE(noted);
  EXPECT_DOUBLE_EQ(noted->value, 187.5);
  EXPECT_EQ(noted->ending, Ending::left);
}

TEST(EventSampleTest, MomentaAreThoseOfThePrimaryAndOfTheFirstChargedProduct) {
  std::array<RecordedParticle, 3> event;
  event[0].pdg = pdg::lambda;
  event[0].momentum = {3.0, 4.0, 12.0};
  event[1].pdg = pdg::pizero;
  event[1].momentum = {100.0, 0.0, 0.0};
  event[2].pdg = -pdg::pion;
  event[2].momentum = {6.0, 8.0, 24.0};
  event[2].points = 5;
  const auto value = [&](SampledQuantity sampled) {
    return measurement_of(sampled, event, lively)->value;
  };
  EXPECT_DOUBLE_EQ(value(SampledQuantity::primary_momentum), 13.0);
  EXPECT_DOUBLE_EQ(value(SampledQuantity::primary_transverse_momentum), 5.0);
  EXPECT_DOUBLE_EQ(value(SampledQuantity::product_momentum), 26.0);
  EXPECT_DOUBLE_EQ(value(SampledQuantity::product_transverse_momentum), 10.0);
  EXPECT_EQ(value(SampledQuantity::tracks), 1.0);
  EXPECT_FALSE(
      measurement_of(SampledQuantity::product_momentum, std::span(event).first(2), lively));
  event[1].pdg = 4711;
  EXPECT_FALSE(measurement_of(SampledQuantity::tracks, event, lively));
}

TEST(EventSampleTest, TheDecayLengthOfManyPionsIsFoundAgain) {
  // Most pions of 40 MeV leave a chamber of 5 m.
  MeasurementTable rows;
  double expected = 0.0;
  for (const ParticleRecord& record : records(test::positive_pion, 4000, lively)) {
    if (auto noted = measurement_of(SampledQuantity::decay_length, record.particles(), lively)) {
      rows.push_back(*noted);
      expected = *event_rows(record, lively).front().decay_length_cm;
    }
  }
  const auto fit = fit_decay(sample_of(rows, Quantity::decay_length).lengths);
  ASSERT_TRUE(fit);
  EXPECT_EQ(fit->cut, ChamberCut::censored);
  EXPECT_GT(fit->left, 500U);
  EXPECT_NEAR(fit->length, expected, 4.0 * fit->error);
  EXPECT_LT(fit->error, 0.05 * expected);
}

TEST(EventNumberingTest, NumbersEachEventThatIsShown) {
  ChamberModel model(1);
  const EventNumbering numbering(model);
  EXPECT_EQ(numbering.nameOfShown(), "");
  model.setEventType(test::positive_pion);
  model.setNext(lively);
  model.makeNewEvent();
  EXPECT_EQ(numbering.nameOfShown(), "Untitled Type 2 Decay 1");
  model.showName("kept.cwd");
  model.mark({0});
  EXPECT_EQ(numbering.nameOfShown(), "kept.cwd 1");
  model.makeNewEvent();
  EXPECT_EQ(numbering.nameOfShown(), "Untitled Type 2 Decay 2");
}

TEST(EventNumberingTest, AnEventThatIsShownAgainKeepsItsNumber) {
  ChamberModel model(1);
  const EventNumbering numbering(model);
  model.setEventType(test::positive_pion);
  model.setNext(lively);
  for (int i = 0; i < 3; ++i) {
    model.makeNewEvent();
  }
  model.showPreviousEvent();
  EXPECT_EQ(numbering.nameOfShown(), "Untitled Type 2 Decay 2");
  model.makeNewEvent();
  EXPECT_EQ(numbering.nameOfShown(), "Untitled Type 2 Decay 4");
}

TEST(RowsOfReadingsTest, HaveEventPlaneFieldAndTheSideAsTheLongestLength) {
  ShownEvent shown;
  shown.values = {.B_field = 1.5F, .sides_cm = 400.0F, .kinetic_Mev = 1.0F};
  const std::vector<Reading> readings{{Quantity::length, 12.5}, {Quantity::radius, 40.0, 2.0}};
  const MeasurementTable rows =
      rows_of_readings(readings, ProjectionPlane::xz, shown, "Untitled Type 1 Decay 3");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].event, "Untitled Type 1 Decay 3");
  EXPECT_EQ(rows[0].plane, "xz");
  EXPECT_EQ(rows[0].value, 12.5);
  EXPECT_TRUE(std::isnan(rows[0].error));
  EXPECT_EQ(rows[0].field_kG, 1.5);
  EXPECT_EQ(rows[0].longest_cm, 400.0);
  EXPECT_EQ(rows[1].quantity, Quantity::radius);
  EXPECT_EQ(rows[1].error, 2.0);
  EXPECT_TRUE(std::isnan(rows[1].longest_cm));
}

}  // namespace velquon
