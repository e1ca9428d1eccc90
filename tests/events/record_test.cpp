// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "events/event_types.h"
#include "tests/events/record_checks.h"
#include "tests/support/event_making.h"
#include "tests/support/scripted_rand.h"

// What the record of an event says, against the laws of the decays and against the points.

namespace velquon {
namespace {

using test::event_type;
using test::next_recorded_event;
using test::RecordedEvent;

RecordedEvent seeded(std::string_view key, const ChamberValues& values, unsigned seed) {
  std::srand(seed);
  return next_recorded_event(event_type(key), values);
}

std::vector<int> numbers_of(const RecordedEvent& event) {
  std::vector<int> numbers;
  for (const RecordedParticle& row : event.record.particles()) {
    numbers.push_back(row.pdg);
  }
  return numbers;
}

std::vector<int> parents_of(const RecordedEvent& event) {
  std::vector<int> parents;
  for (const RecordedParticle& row : event.record.particles()) {
    parents.push_back(row.parent);
  }
  return parents;
}

/// Settings over the range of the controls, fields of 0 and chambers of 50 cm among them.
class SomeValues {
 public:
  ChamberValues next() {
    const auto between = [this](float low, float high) {
      return low + (high - low) * static_cast<float>(engine_() % 1000001) / 1e6F;
    };
    return {.B_field = engine_() % 5 == 0 ? 0.0F : between(-10.0F, 10.0F),
            .sides_cm = engine_() % 8 == 0 ? 50.0F : between(50.0F, 1000.0F),
            .kinetic_Mev = std::pow(10.0F, between(-3.0F, 4.0F))};
  }

 private:
  std::mt19937 engine_{2026};
};

class EveryRecord : public ::testing::TestWithParam<const char*> {};

TEST_P(EveryRecord, KeepsFourMomentumAndGoesWithThePoints) {
  SomeValues settings;
  test::CircleCount circles;
  for (unsigned seed = 1; seed <= 400; ++seed) {
    const ChamberValues values = settings.next();
    std::srand(seed);
    for (int i = 0; i < 5; ++i) {
      const RecordedEvent event = next_recorded_event(event_type(GetParam()), values);
      const auto where = [&] {
        return std::string("seed ") + std::to_string(seed) + ", event " + std::to_string(i) +
               ", field " + std::to_string(values.B_field) + ", side " +
               std::to_string(values.sides_cm) + ", energy " + std::to_string(values.kinetic_Mev);
      };
      ASSERT_EQ(test::problem_in(event), "") << where();
      ASSERT_EQ(test::problem_in_circles(event, circles), "") << where();
    }
  }
  EXPECT_GT(circles.exact, 200U);
}

TEST_P(EveryRecord, ChangesNeitherPointsNorDraws) {
  SomeValues settings;
  for (unsigned seed = 1; seed <= 200; ++seed) {
    const ChamberValues values = settings.next();
    const RecordedEvent event = seeded(GetParam(), values, seed);
    const int next_draw = std::rand();
    EXPECT_EQ(test::seeded_event(GetParam(), values, seed), event.points);
    EXPECT_EQ(std::rand(), next_draw);
  }
}

INSTANTIATE_TEST_SUITE_P(Types, EveryRecord,
                         ::testing::Values("pi-", "pi+", "pi0", "mu-", "mu+", "lambda"));

/// Looks for an event that `wanted` accepts.
template <typename Wanted>
RecordedEvent first_event(std::string_view key, const ChamberValues& values, Wanted wanted) {
  for (unsigned seed = 1; seed < 20000; ++seed) {
    RecordedEvent event = seeded(key, values, seed);
    if (wanted(event)) {
      return event;
    }
  }
  ADD_FAILURE() << "no such event";
  return {};
}

const auto has_rows = [](std::size_t number) {
  return [number](const RecordedEvent& event) { return event.record.particles().size() == number; };
};

// Slow in a strong field: muons at rest almost, which stay until they decay.
constexpr ChamberValues slow{.B_field = 5.0F, .sides_cm = 500.0F, .kinetic_Mev = 0.001F};
constexpr ChamberValues usual{.B_field = 0.6F, .sides_cm = 500.0F, .kinetic_Mev = 100.0F};

TEST(RecordOrder, OfAPionTheMuonAndItsNeutrinoThenTheElectronAndBothOthers) {
  const RecordedEvent minus = first_event("pi-", slow, has_rows(5));
  EXPECT_EQ(numbers_of(minus), (std::vector<int>{-211, 13, -14, 11, 0}));
  EXPECT_EQ(parents_of(minus), (std::vector<int>{-1, 0, 0, 1, 1}));
  const RecordedEvent plus = first_event("pi+", slow, has_rows(5));
  EXPECT_EQ(numbers_of(plus), (std::vector<int>{211, -13, 14, -11, 0}));
}

TEST(RecordOrder, OfAMuonTheElectronAndBothNeutrinosInOneRow) {
  EXPECT_EQ(numbers_of(first_event("mu-", slow, has_rows(3))), (std::vector<int>{13, 11, 0}));
  EXPECT_EQ(numbers_of(first_event("mu+", slow, has_rows(3))), (std::vector<int>{-13, -11, 0}));
}

TEST(RecordOrder, OfANeutralPionEachPhotonWithItsPairBehindIt) {
  const RecordedEvent both = first_event("pi0", usual, has_rows(7));
  EXPECT_EQ(numbers_of(both), (std::vector<int>{111, 22, 11, -11, 22, 11, -11}));
  EXPECT_EQ(parents_of(both), (std::vector<int>{-1, 0, 1, 1, 0, 4, 4}));
  const RecordedEvent second = first_event("pi0", usual, [](const RecordedEvent& event) {
    return event.record.particles().size() == 5 &&
           event.record.particles()[1].fate == Fate::escaped;
  });
  EXPECT_EQ(numbers_of(second), (std::vector<int>{111, 22, 22, 11, -11}));
  EXPECT_EQ(parents_of(second), (std::vector<int>{-1, 0, 0, 2, 2}));
}

TEST(RecordOrder, OfALambdaBothDaughtersAndThenThePionsDescendants) {
  const ChamberValues values{.B_field = 5.0F, .sides_cm = 500.0F, .kinetic_Mev = 50.0F};
  const RecordedEvent charged = first_event("lambda", values, [](const RecordedEvent& event) {
    return event.record.particles().size() == 7 && event.record.particles()[1].pdg == 2212;
  });
  EXPECT_EQ(numbers_of(charged), (std::vector<int>{3122, 2212, -211, 13, -14, 11, 0}));
  EXPECT_EQ(parents_of(charged), (std::vector<int>{-1, 0, 0, 2, 2, 3, 3}));
  const RecordedEvent neutral = first_event("lambda", values, has_rows(9));
  EXPECT_EQ(numbers_of(neutral), (std::vector<int>{3122, 2112, 111, 22, 11, -11, 22, 11, -11}));
  EXPECT_EQ(parents_of(neutral), (std::vector<int>{-1, 0, 0, 2, 3, 3, 2, 6, 6}));
}

TEST(RecordFates, ASecondPhotonOfALambdaThatIsNotTriedEscapes) {
  const RecordedEvent event = first_event("lambda", usual, [](const RecordedEvent& candidate) {
    const auto rows = candidate.record.particles();
    return rows.size() == 5 && rows[3].fate == Fate::escaped;
  });
  const auto rows = event.record.particles();
  EXPECT_EQ(numbers_of(event), (std::vector<int>{3122, 2112, 111, 22, 22}));
  EXPECT_EQ(rows[1].fate, Fate::undetected);
  EXPECT_EQ(rows[2].fate, Fate::decayed);
  EXPECT_EQ(rows[2].place_cm, rows[2].end_cm) << "the neutral pion decays where it is made";
  EXPECT_EQ(rows[4].fate, Fate::escaped);
  EXPECT_FALSE(rows[4].end_cm.has_value());
  EXPECT_TRUE(event.points.empty());
}

TEST(RecordFates, APrimaryThatLeavesHasItsTrackAndNothingElse) {
  const ChamberValues straight{.B_field = 0.0F, .sides_cm = 500.0F, .kinetic_Mev = 50.0F};
  const test::ScriptedRand script({}, test::lowest_draw);
  const RecordedEvent event = next_recorded_event(event_type("mu+"), straight);
  ASSERT_EQ(event.record.particles().size(), 1U);
  const RecordedParticle& muon = event.record.particles()[0];
  EXPECT_EQ(muon.fate, Fate::left);
  EXPECT_EQ(muon.place_cm, (Vector3{0.0, -250.0, 0.0})) << "the middle of the lower face";
  EXPECT_EQ(muon.first_point, 0);
  EXPECT_EQ(muon.points, 40);
  EXPECT_EQ(muon.code, 3);
  ASSERT_TRUE(muon.end_cm.has_value());
  EXPECT_NEAR((*muon.end_cm)[1], 250.0, 1e-9) << "forty steps of 12.5 cm";
}

TEST(RecordFates, ATrackThatFillsTheEventIsFull) {
  const ChamberValues spiral{.B_field = 10.0F, .sides_cm = 1000.0F, .kinetic_Mev = 0.4F};
  const test::ScriptedRand script({}, test::lowest_draw);
  const RecordedEvent event = next_recorded_event(event_type("pi+"), spiral);
  ASSERT_EQ(event.record.particles().size(), 1U);
  EXPECT_EQ(event.record.particles()[0].fate, Fate::full);
  EXPECT_EQ(event.record.particles()[0].points, 350);
}

TEST(RecordFates, ADaughterWithoutRoomIsFullAndHasNoPointsAndNoEnd) {
  const ChamberValues spiral{.B_field = 10.0F, .sides_cm = 1000.0F, .kinetic_Mev = 0.4F};
  std::vector<int> draws(348, test::lowest_draw);
  draws.push_back(test::highest_draw);
  const test::ScriptedRand script(draws, test::draw_of(0.5));
  const RecordedEvent event = next_recorded_event(event_type("pi+"), spiral);
  ASSERT_EQ(event.points.size(), 350U);
  const auto rows = event.record.particles();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].fate, Fate::decayed);
  EXPECT_EQ(rows[0].points, 350);
  EXPECT_EQ(rows[1].fate, Fate::full);
  EXPECT_EQ(rows[1].points, 0);
  EXPECT_FALSE(rows[1].end_cm.has_value());
}

TEST(RecordFates, ALeptonThatLeavesOnItsFirstStepHasNeitherPointsNorEnd) {
  const ChamberValues small{.B_field = 0.6F, .sides_cm = 100.0F, .kinetic_Mev = 500.0F};
  const RecordedEvent event = first_event("pi0", small, [](const RecordedEvent& candidate) {
    for (const RecordedParticle& row : candidate.record.particles()) {
      if (test::charge_of(row.pdg) != 0 && row.points == 0) {
        return true;
      }
    }
    return false;
  });
  for (const RecordedParticle& row : event.record.particles()) {
    if (test::charge_of(row.pdg) != 0 && row.points == 0) {
      EXPECT_EQ(row.fate, Fate::left);
      EXPECT_FALSE(row.end_cm.has_value());
    }
  }
  EXPECT_EQ(test::problem_in(event), "");
}

TEST(RecordFates, ATrackThatIsCutWhereTwoAreMergedIsFullAndEndsAtItsLastPoint) {
  // Two pairs that circle in a strong field leave 350 points each, and the event holds 350 in all.
  const ChamberValues strong{.B_field = 10.0F, .sides_cm = 1000.0F, .kinetic_Mev = 1.0F};
  const RecordedEvent event = first_event("pi0", strong, [](const RecordedEvent& candidate) {
    return candidate.record.particles().size() == 7 && candidate.points.size() == 350;
  });
  EXPECT_EQ(test::problem_in(event), "");
  int full = 0;
  for (std::size_t i = 0; i < 7; ++i) {
    const RecordedParticle& row = event.record.particles()[i];
    if (row.fate != Fate::full) {
      continue;
    }
    ++full;
    const auto own = test::points_of(event, i);
    ASSERT_FALSE(own.empty());
    EXPECT_EQ((*row.end_cm)[0], event.points[own.back()].coords[0] * 1000.0 / 800.0);
  }
  EXPECT_GE(full, 2);
}

TEST(RecordFates, AnEventThatIsNotHandedOverHasNoRecord) {
  // So large a chamber that an electron's ten million km are a few steps.
  const ChamberValues huge{.B_field = 0.0F, .sides_cm = 1e12F, .kinetic_Mev = 0.4F};
  int lost = 0;
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const RecordedEvent event = seeded("mu+", huge, seed);
    ASSERT_EQ(test::problem_in(event), "");
    lost += event.handed_over == HandOver::no ? 1 : 0;
  }
  EXPECT_GT(lost, 10);
}

TEST(RecordFates, AStableDaughterOfALambdaThatDecaysAllTheSameEndsThere) {
  const ChamberValues huge{.B_field = 0.0F, .sides_cm = 1e13F, .kinetic_Mev = 0.4F};
  const RecordedEvent event = first_event("lambda", huge, [](const RecordedEvent& candidate) {
    const auto rows = candidate.record.particles();
    return rows.size() > 1 && rows[1].pdg == pdg::proton && rows[1].fate == Fate::decayed;
  });
  EXPECT_EQ(test::problem_in(event), "");
  EXPECT_TRUE(event.record.particles()[1].end_cm.has_value());
}

TEST(RecordFates, AnEnergyThatMakesNoEventMakesAnEmptyRecord) {
  RecordedEvent event = seeded("pi+", usual, 1);
  TrackBuffer buffer;
  EXPECT_EQ(make_event(event_type("pi+"), {.kinetic_Mev = 0.0F}, buffer, &event.record),
            HandOver::yes);
  EXPECT_TRUE(event.record.particles().empty());
  EXPECT_TRUE(event.record.owners().empty());
}

TEST(FateNames, AreThoseOfTheTable) {
  std::vector<std::string> names;
  for (const Fate fate :
       {Fate::decayed, Fate::converted, Fate::left, Fate::full, Fate::escaped, Fate::undetected}) {
    names.emplace_back(name_of(fate));
  }
  EXPECT_EQ(names, (std::vector<std::string>{"decayed", "converted", "left", "full", "escaped",
                                             "undetected"}));
}

}  // namespace
}  // namespace velquon
