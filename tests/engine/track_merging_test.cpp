// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/track_merging.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/case_name.h"
#include "tests/support/event_making.h"

namespace velquon {
namespace {

using Codes = std::vector<std::int16_t>;
using Merge = void (*)(std::span<const PlotPoint>, std::span<const PlotPoint>, std::span<PlotPoint>,
                       std::int16_t&, std::int16_t);

/// Points with these codes, so that a merged list can be read off; times as given, else 0.
std::vector<PlotPoint> points(const Codes& codes, const std::vector<double>& times = {}) {
  std::vector<PlotPoint> list(codes.size());
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const auto x = static_cast<double>(codes[i]);
    list[i] = {
        .coords = {x, 2 * x, 3 * x, 1.0}, .time = times.empty() ? 0.0 : times[i], .code = codes[i]};
  }
  return list;
}

/// Codes of the merged list; a guard point behind the limit must stay untouched.
Codes merged(Merge merge, const std::vector<PlotPoint>& first, const std::vector<PlotPoint>& second,
             std::int16_t limit) {
  constexpr std::int16_t guard = -99;
  std::vector<PlotPoint> out(static_cast<std::size_t>(limit) + 1);
  out.back().code = guard;
  std::int16_t count = 1234;
  merge(first, second, out, count, limit);
  EXPECT_EQ(out.back().code, guard);
  return test::codes_of(std::span(out).first(static_cast<std::size_t>(count)));
}

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

}  // namespace
}  // namespace velquon
