// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/particles.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "engine/chamber_values.h"
#include "engine/chamber_wall.h"
#include "engine/event_record.h"
#include "tests/support/case_name.h"

namespace velquon {
namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Template {
  const char* name;
  const ParticleState& particle;
  double mass;
  double decay_length;
};

TEST(ParticleTemplates, HaveTheirMassesAndDecayLengthsAndAllElseZero) {
  const Template table[] = {
      {"pion", pion, 139.6, 780.0},         {"pizero", pizero, 135.0, 2.5e-6},
      {"muon", muon, 105.7, 65868.0},       {"electron", electron, 0.51, 1.0e10},
      {"positron", positron, 0.51, 1.0e10}, {"photon", photon, 0.0, 200.0},
      {"lambda", lambda, 1115.6, 7.89},     {"proton", proton, 938.28, 1.0e10},
      {"neutron", neutron, 939.57, 1.0e10}};
  for (const Template& row : table) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(row.particle.mass, row.mass);
    EXPECT_EQ(row.particle.decay_length, row.decay_length);
    EXPECT_EQ(row.particle.momentum, Vector3{});
    EXPECT_EQ(row.particle.energy, 0.0);
    EXPECT_EQ(row.particle.position, Vector3{});
  }
}

struct WallCase {
  const char* name;
  double bound;
  double coordinate;
  bool outside;
};

class ChamberWallOf : public ::testing::TestWithParam<WallCase> {};

TEST_P(ChamberWallOf, TruncatesTheCoordinateBeforeItComparesIt) {
  const WallCase& wall = GetParam();
  EXPECT_EQ(ChamberWall(wall.bound).outside(wall.coordinate), wall.outside);
  EXPECT_EQ(ChamberWall(wall.bound).outside(-wall.coordinate), wall.outside)
      << "the wall is the same on both sides";
}

INSTANTIATE_TEST_SUITE_P(
    Coordinates, ChamberWallOf,
    ::testing::Values(WallCase{"TrackAt404_99IsInside", 404.0, 404.99, false},
                      WallCase{"TrackAt405IsOutside", 404.0, 405.0, true},
                      WallCase{"TrackJustBelow405IsInside", 404.0, 404.99999999999994, false},
                      WallCase{"TrackAt404IsInside", 404.0, 404.0, false},
                      WallCase{"VertexAt400_99IsInside", 400.0, 400.99, false},
                      WallCase{"VertexAt401IsOutside", 400.0, 401.0, true},
                      WallCase{"CentreIsInside", 400.0, 0.0, false},
                      WallCase{"BeyondTheRangeOf32BitsIsOutside", 404.0, 4294967296.0, true},
                      WallCase{"BeyondTheRangeOf64BitsIsOutside", 404.0, 1.0e300, true},
                      WallCase{"InfinityIsOutside", 404.0, infinity, true},
                      WallCase{"NotANumberIsInside", 404.0, not_a_number, false},
                      WallCase{"BoundBetweenWholeNumbersKeepsTheNextOneOut", 404.5, 405.0, true},
                      WallCase{"BoundBetweenWholeNumbersLetsFractionsIn", 404.5, 404.9, false}),
    test::case_name<WallCase>);

TEST(EventRecord, AnEventHasRoomFor350Points) {
  const TrackBuffer event;
  EXPECT_EQ(event.limit(), 350);
  EXPECT_EQ(event.count, 0);
  EXPECT_TRUE(event.points().empty());
}

TEST(EventRecord, FreeSlotsBeginBehindTheLastPoint) {
  TrackBuffer event(5);
  event.free_slots()[0].code = 3;
  event.free_slots()[1].code = 4;
  event.count = 2;
  EXPECT_EQ(event.points().size(), 2U);
  EXPECT_EQ(event.last().code, 4);
  EXPECT_EQ(event.free_slots().size(), 3U);
}

struct ValuesCase {
  const char* name;
  ChamberValues values;
  bool possible;
};

class ChamberValuesOf : public ::testing::TestWithParam<ValuesCase> {};

TEST_P(ChamberValuesOf, ArePossibleOrNot) {
  EXPECT_EQ(is_chamber_possible(GetParam().values), GetParam().possible);
}

constexpr float nan_f = std::numeric_limits<float>::quiet_NaN();
constexpr float inf_f = std::numeric_limits<float>::infinity();
constexpr float smallest_f = std::numeric_limits<float>::denorm_min();

INSTANTIATE_TEST_SUITE_P(
    Values, ChamberValuesOf,
    ::testing::Values(ValuesCase{"StartUp", {}, true},
                      ValuesCase{"NegativeField", {.B_field = -5.0F}, true},
                      ValuesCase{"FieldOfNegativeZero", {.B_field = -0.0F}, true},
                      ValuesCase{"FieldNotANumber", {.B_field = nan_f}, false},
                      ValuesCase{"FieldInfinite", {.B_field = -inf_f}, false},
                      ValuesCase{"SideOfZero", {.sides_cm = 0.0F}, false},
                      ValuesCase{"NegativeSide", {.sides_cm = -500.0F}, false},
                      ValuesCase{"SideThatVanishesInMetres", {.sides_cm = smallest_f}, false},
                      ValuesCase{"SideNotANumber", {.sides_cm = nan_f}, false},
                      ValuesCase{"SideInfinite", {.sides_cm = inf_f}, false},
                      ValuesCase{"EnergyOfZero", {.kinetic_Mev = 0.0F}, true},
                      ValuesCase{"SmallestEnergy", {.kinetic_Mev = smallest_f}, true},
                      ValuesCase{"NegativeEnergy", {.kinetic_Mev = -smallest_f}, false},
                      ValuesCase{"EnergyNotANumber", {.kinetic_Mev = nan_f}, false},
                      ValuesCase{"EnergyInfinite", {.kinetic_Mev = inf_f}, false}),
    test::case_name<ValuesCase>);

TEST(ChamberValues, TheSidesOfTheSliderComeThroughMetresUnchanged) {
  for (int tick = 1; tick <= 20; ++tick) {
    const float side = 50.0F * static_cast<float>(tick);
    EXPECT_EQ(cm_from_metres(metres_from_cm(side)), side);
  }
}

}  // namespace
}  // namespace velquon
