// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/track_merging.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/engine/merged_lists.h"
#include "tests/support/case_name.h"

namespace velquon {
namespace {

using test::Codes;
using test::merged;
using test::points;

struct MergeCase {
  const char* name;
  Codes first;
  Codes second;
  std::int16_t limit;
  Codes expected;
};

class CombinePaths : public ::testing::TestWithParam<MergeCase> {};

TEST_P(CombinePaths, Alternates) {
  const MergeCase& row = GetParam();
  EXPECT_EQ(merged(combine_paths, points(row.first), points(row.second), row.limit), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, CombinePaths,
    ::testing::Values(
        MergeCase{"ShorterSecondLeads", {10, 11, 12}, {20, 21}, 350, {20, 10, 21, 11, 12}},
        MergeCase{"ShorterFirstLeads", {10, 11}, {20, 21, 22}, 350, {10, 20, 11, 21, 22}},
        MergeCase{"FirstLeadsOnEqualCounts", {10, 11}, {20, 21}, 350, {10, 20, 11, 21}},
        MergeCase{"ExactLimitTakesAll", {10, 11}, {20, 21}, 4, {10, 20, 11, 21}},
        MergeCase{"EmptyFirstGivesSecond", {}, {20, 21, 22}, 350, {20, 21, 22}},
        MergeCase{"EmptySecondGivesFirst", {10, 11, 12}, {}, 350, {10, 11, 12}},
        MergeCase{"EmptyListStillHasTheLimit", {10, 11, 12}, {}, 2, {10, 11}},
        MergeCase{"BothEmptyGiveNothing", {}, {}, 350, {}},
        MergeCase{"LimitOfOneTakesTheLeadingPoint", {10, 11, 12}, {20, 21}, 1, {20}},
        MergeCase{"LimitOfOneOnEqualCountsTakesTheFirst", {10}, {20}, 1, {10}},
        MergeCase{"LimitInTheAlternation", {10, 11, 12}, {20, 21}, 3, {20, 10, 21}},
        MergeCase{"LimitInTheRest", {10, 11, 12, 13}, {20}, 4, {20, 10, 11, 12}},
        MergeCase{"LimitOfZeroTakesNothing", {10}, {20}, 0, {}}),
    test::case_name<MergeCase>);

TEST(CombinePathsWhole, PointsAreCopiedWithAllTheyHold) {
  const auto first = points({10, 11}, {1.5, 2.5});
  const auto second = points({20, 21}, {3.5, 4.5});
  std::vector<PlotPoint> out(4);
  std::int16_t count = 0;
  combine_paths(first, second, out, count, 4);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(out, (std::vector<PlotPoint>{first[0], second[0], first[1], second[1]}));
}

TEST(CombinePathsWhole, TwoTracksOf175PointsFillAnEventStrictlyAlternating) {
  const Codes first(175, 3);
  const Codes second(175, 4);
  const Codes all = merged(combine_paths, points(first), points(second), 350);
  ASSERT_EQ(all.size(), 350U);
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(all[i], i % 2 == 0 ? 3 : 4);
  }
}

}  // namespace
}  // namespace velquon
