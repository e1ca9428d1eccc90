// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/legacy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engine/kinematics.h"
#include "tests/engine/merged_lists.h"
#include "tests/support/case_name.h"

namespace velquon {
namespace {

using test::Codes;
using test::merged;
using test::points;

struct TimedCase {
  const char* name;
  Codes first;
  std::vector<double> first_times;
  Codes second;
  std::vector<double> second_times;
  std::int16_t limit;
  Codes expected;
};

class CombinePathsTimed : public ::testing::TestWithParam<TimedCase> {};

TEST_P(CombinePathsTimed, MergesByTime) {
  const TimedCase& row = GetParam();
  EXPECT_EQ(merged(combine_paths_timed, points(row.first, row.first_times),
                   points(row.second, row.second_times), row.limit),
            row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, CombinePathsTimed,
    ::testing::Values(
        TimedCase{"EarlierFirstLeads", {10, 11}, {1, 3}, {20, 21}, {2, 4}, 9, {10, 20, 11, 21}},
        TimedCase{"EarlierSecondLeads", {10, 11}, {2, 4}, {20, 21}, {1, 3}, 9, {20, 10, 21, 11}},
        TimedCase{"SecondLeadsOnEqualFirstTimes", {10}, {1}, {20}, {1}, 9, {20, 10}},
        TimedCase{"LeadingListGoesFirstOnEqualTimes",
                  {10, 11},
                  {0, 2},
                  {20, 21},
                  {2, 3},
                  9,
                  {10, 11, 20, 21}},
        TimedCase{"ManyOthersBetweenTwoLeadingPoints",
                  {10, 11},
                  {0, 9},
                  {20, 21, 22},
                  {1, 2, 8},
                  9,
                  {10, 20, 21, 22, 11}},
        TimedCase{"RestOfTheOtherListFollows", {10}, {0}, {20, 21}, {1, 2}, 9, {10, 20, 21}},
        TimedCase{"EmptyFirst", {}, {}, {20, 21}, {1, 2}, 9, {20, 21}},
        TimedCase{"EmptySecond", {10, 11}, {1, 2}, {}, {}, 9, {10, 11}},
        TimedCase{"BothEmpty", {}, {}, {}, {}, 9, {}},
        TimedCase{"StopsAtTheLimit", {10, 11}, {1, 3}, {20, 21}, {2, 4}, 3, {10, 20, 11}}),
    test::case_name<TimedCase>);

TEST(CompareTimes, IsOneOnlyForTheLaterPoint) {
  const PlotPoint early{.time = 1.0};
  const PlotPoint late{.time = 2.0};
  const PlotPoint also_early{.coords = {5.0}, .time = 1.0, .code = 4};
  EXPECT_EQ(compare_times(late, early), 1);
  EXPECT_EQ(compare_times(early, late), 0);
  EXPECT_EQ(compare_times(early, also_early), 0);
  EXPECT_EQ(compare_times(also_early, early), 0);
}

TEST(GetQuadrant, HasItsOwnNumbering) {
  struct Case {
    double angle;
    int quadrant;
  };
  for (const Case& row :
       {Case{0.0, 3}, Case{-0.0, 3}, Case{PI / 2, 1}, Case{-PI / 2, 3}, Case{3.0, 2}, Case{-3.0, 4},
        Case{1e-300, 1}, Case{-1e-300, 3}, Case{std::nextafter(PI / 2, 4.0), 2},
        Case{std::nextafter(-PI / 2, -4.0), 4}}) {
    EXPECT_EQ(get_quadrant(row.angle), row.quadrant) << row.angle;
  }
}

}  // namespace
}  // namespace velquon
