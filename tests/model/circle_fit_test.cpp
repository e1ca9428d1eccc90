// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Circles through places: what is read of them, and whether the errors are those that placing makes.

#include "model/circle_fit.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "model/arc.h"
#include "tests/model/degree.h"

namespace velquon::test {

namespace {

/// Places on a circle, evenly from one direction to another.
std::vector<Place> places_on(Place centre, double radius, double from_deg, double to_deg,
                             int count) {
  std::vector<Place> places;
  for (int i = 0; i < count; ++i) {
    const double direction = (from_deg + (to_deg - from_deg) * i / (count - 1)) * degree;
    places.push_back(centre + Place{radius * std::cos(direction), radius * std::sin(direction)});
  }
  return places;
}

class ShakyHand {
 public:
  explicit ShakyHand(double error) : error_(0.0, error) {}

  std::vector<Place> place(std::vector<Place> places) {
    for (Place& place : places) {
      place = place + Place{error_(random_), error_(random_)};
    }
    return places;
  }

 private:
  std::mt19937 random_{20'261'122};
  std::normal_distribution<double> error_;
};

/// Mean and standard deviation of repeated numbers.
struct Spread {
  double mean = 0.0;
  double deviation = 0.0;
};

Spread spread_of(const std::vector<double>& numbers) {
  double sum = 0.0;
  for (const double number : numbers) {
    sum += number;
  }
  const auto count = static_cast<double>(numbers.size());
  Spread spread{.mean = sum / count};
  for (const double number : numbers) {
    spread.deviation += (number - spread.mean) * (number - spread.mean);
  }
  spread.deviation = std::sqrt(spread.deviation / (count - 1.0));
  return spread;
}

struct ArcCase {
  double radius;
  double from_deg;
  double to_deg;
  int count;
};

constexpr std::array arcs{ArcCase{100.0, 0.0, 120.0, 3},    ArcCase{100.0, 0.0, 120.0, 12},
                          ArcCase{55.0, 30.0, -230.0, 3},   ArcCase{55.0, 30.0, -230.0, 9},
                          ArcCase{700.0, 80.0, 100.0, 3},   ArcCase{700.0, 80.0, 100.0, 25},
                          ArcCase{40.0, -170.0, 170.0, 3},  ArcCase{40.0, -170.0, 170.0, 20},
                          ArcCase{5000.0, -93.0, -89.0, 4}, ArcCase{150.0, 10.0, 190.0, 5}};

}  // namespace

TEST(ArcTest, PlacesOnACircleGiveItsCentreRadiusSagittaAndChord) {
  const Place centre{213.0, -71.5};
  for (const auto& [radius, from, to, count] : arcs) {
    SCOPED_TRACE(testing::Message() << radius << " over " << to - from << " by " << count);
    const auto arc = arc_through(places_on(centre, radius, from, to, count));
    ASSERT_TRUE(arc.has_value());
    EXPECT_FALSE(arc->is_straight);
    const double accuracy = 1.0e-7 * radius;
    const double half = 0.5 * std::fabs(to - from) * degree;
    EXPECT_NEAR(arc->centre.x, centre.x, accuracy);
    EXPECT_NEAR(arc->centre.y, centre.y, accuracy);
    EXPECT_NEAR(arc->radius.value, radius, accuracy);
    EXPECT_NEAR(arc->sagitta.value, radius * (1.0 - std::cos(half)), accuracy);
    EXPECT_NEAR(arc->chord.value, 2.0 * radius * std::sin(half), accuracy);
    EXPECT_NEAR(arc->sweep, (to - from) * degree, 1.0e-7);
    EXPECT_NEAR(std::remainder(arc->start - from * degree, 2.0 * std::numbers::pi), 0.0, 1.0e-7);
  }
}

TEST(ArcTest, TheErrorsAreThoseThatPlacingMakes) {
  constexpr double hand_error = 0.5;
  constexpr int repetitions = 1000;
  for (const auto& [radius, from, to, count] : arcs) {
    if (radius > 1000.0) {
      continue;  // its radius is no longer spread as a normal error is
    }
    SCOPED_TRACE(testing::Message() << radius << " over " << to - from << " by " << count);
    const auto places = places_on({20.0, 300.0}, radius, from, to, count);
    const auto told = arc_through(places, hand_error);
    ASSERT_TRUE(told.has_value());
    ShakyHand hand(hand_error);
    std::array<std::vector<double>, 3> seen;
    for (int i = 0; i < repetitions; ++i) {
      const auto arc = arc_through(hand.place(places), hand_error);
      ASSERT_TRUE(arc.has_value());
      seen[0].push_back(arc->radius.value);
      seen[1].push_back(arc->sagitta.value);
      seen[2].push_back(arc->chord.value);
    }
    const std::array estimates{told->radius, told->sagitta, told->chord};
    for (std::size_t i = 0; i < estimates.size(); ++i) {
      const Spread spread = spread_of(seen[i]);
      EXPECT_NEAR(spread.deviation / estimates[i].error, 1.0, 0.08) << i;
      EXPECT_NEAR(spread.mean, estimates[i].value, 0.25 * estimates[i].error) << i;
    }
  }
}

TEST(ArcTest, MorePlacesTellTheirSpreadThemselves) {
  // Placed four times as badly as is taken for granted, by 40 places each.
  constexpr double hand_error = 2.0;
  const auto places = places_on({0.0, 0.0}, 180.0, 0.0, 110.0, 40);
  ShakyHand hand(hand_error);
  std::vector<double> pulls;
  for (int i = 0; i < 1500; ++i) {
    const auto arc = arc_through(hand.place(places));
    ASSERT_TRUE(arc.has_value());
    pulls.push_back((arc->radius.value - 180.0) / arc->radius.error);
  }
  EXPECT_NEAR(spread_of(pulls).deviation, 1.0, 0.08);
}

TEST(ArcTest, PlacesThatHappenToFitAreNotTakenForExact) {
  const auto places = places_on({0.0, 0.0}, 180.0, 0.0, 110.0, 6);
  const auto rough = arc_through(places, 1.0);
  const auto fine = arc_through(places, 0.25);
  ASSERT_TRUE(rough && fine);
  EXPECT_GT(fine->radius.error, 0.0);
  EXPECT_NEAR(rough->radius.error / fine->radius.error, 4.0, 1.0e-6);
}

TEST(ArcTest, ItsFitHasTheLeastSquaresOfDistances) {
  ShakyHand hand(3.0);
  const auto places = hand.place(places_on({10.0, 20.0}, 60.0, 0.0, 150.0, 8));
  const auto arc = arc_through(places);
  ASSERT_TRUE(arc.has_value());
  const auto squares = [&](Place centre, double radius) {
    double sum = 0.0;
    for (const Place place : places) {
      const double distance = std::hypot(place.x - centre.x, place.y - centre.y) - radius;
      sum += distance * distance;
    }
    return sum;
  };
  const double least = squares(arc->centre, arc->radius.value);
  EXPECT_GT(least, 1.0);
  for (const double step : {-0.05, 0.05}) {
    EXPECT_GT(squares(arc->centre + Place{step, 0.0}, arc->radius.value), least);
    EXPECT_GT(squares(arc->centre + Place{0.0, step}, arc->radius.value), least);
    EXPECT_GT(squares(arc->centre, arc->radius.value + step), least);
  }
}

TEST(ArcTest, PlacesOnALineAreStraight) {
  struct Case {
    const char* name;
    std::vector<Place> places;
    double chord;
  };
  const std::array cases{
      Case{"across", {{0.0, 5.0}, {100.0, 5.0}, {250.0, 5.0}}, 250.0},
      Case{"up", {{7.0, 300.0}, {7.0, 100.0}, {7.0, 60.0}, {7.0, 0.0}}, 300.0},
      Case{"slanting", {{0.0, 0.0}, {30.0, 40.0}, {60.0, 80.0}}, 100.0},
      Case{"steep", {{0.1, 0.3}, {10.1, 30.3}, {20.1, 60.3}, {30.1, 90.3}}, 94.868'329'805},
      Case{"within the error", {{0.0, 0.0}, {50.0, 0.3}, {100.0, 0.0}}, 100.0}};
  for (const auto& [name, places, chord] : cases) {
    SCOPED_TRACE(name);
    const auto arc = arc_through(places);
    ASSERT_TRUE(arc.has_value());
    EXPECT_TRUE(arc->is_straight);
    EXPECT_NEAR(arc->chord.value, chord, 1.0e-6);
    EXPECT_NEAR(arc->chord.error, 0.5 * std::numbers::sqrt2, 1.0e-3);
    EXPECT_LE(arc->sagitta.value, arc->sagitta.error);
    EXPECT_GT(arc->sagitta.error, 0.3);
    EXPECT_LT(arc->sagitta.error, 1.0);
  }
}

TEST(ArcTest, ABendLargerThanItsErrorIsNotStraight) {
  // The error of the sagitta is √1.5 times that of a place.
  const auto bent = arc_through(std::vector<Place>{{0.0, 0.0}, {50.0, 0.7}, {100.0, 0.0}});
  ASSERT_TRUE(bent.has_value());
  EXPECT_FALSE(bent->is_straight);
  EXPECT_NEAR(bent->sagitta.value, 0.7, 1.0e-9);
}

TEST(ArcTest, PlacesThatAreTooFewOrNotApartGiveNone) {
  EXPECT_FALSE(arc_through({}));
  EXPECT_FALSE(arc_through(std::vector<Place>{{1.0, 2.0}, {3.0, 4.0}}));
  EXPECT_FALSE(arc_through(std::vector<Place>{{1.0, 2.0}, {1.0, 2.0}, {3.0, 4.0}}));
  EXPECT_FALSE(arc_through(std::vector<Place>{{1.0, 2.0}, {3.0, 4.0}, {1.0, 2.0}}));
  EXPECT_FALSE(arc_through(std::vector<Place>(4, Place{5.0, 5.0})));
  EXPECT_FALSE(arc_through(std::vector<Place>{{1.0, 2.0}, {3.0, 4.0}, {3.0, 4.0}, {1.0, 2.0}}));
}

TEST(CircleFitTest, ItsErrorsDoNotDependOnWhereThePictureIs) {
  const auto near = fit_circle(places_on({0.0, 0.0}, 120.0, 0.0, 90.0, 7), 0.5);
  const auto far = fit_circle(places_on({4000.0, -9000.0}, 120.0, 0.0, 90.0, 7), 0.5);
  ASSERT_TRUE(near && far);
  EXPECT_NEAR(far->covariance[0][0] / near->covariance[0][0], 1.0, 1.0e-6);
}

}  // namespace velquon::test
