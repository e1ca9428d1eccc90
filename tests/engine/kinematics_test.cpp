// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "engine/kinematics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "engine/random.h"
#include "tests/support/event_making.h"
#include "tests/support/float_traps.h"

namespace velquon {
namespace {

void expect_near(const Vector3& actual, const Vector3& expected, double tolerance) {
  for (std::size_t axis = 0; axis < 3; ++axis) {
    EXPECT_NEAR(actual[axis], expected[axis], tolerance) << "component " << axis;
  }
}

Vector3 random_vector(double size) {
  return {my_rand(-size, size), my_rand(-size, size), my_rand(-size, size)};
}

TEST(ToTheLab, AlongZTurnsBothAcrossComponentsRound) {
  Vector3 out{};
  to_the_lab({0.0, 0.0, 5.0}, out, 7.0, 2.0, 3.0);
  EXPECT_EQ(out, (Vector3{-3.0, -2.0, 7.0}));
}

TEST(ToTheLab, AlongXGivesAlongThenMinusFirstThenSecondAcross) {
  Vector3 out{};
  to_the_lab({5.0, 0.0, 0.0}, out, 7.0, 2.0, 3.0);
  expect_near(out, {7.0, -2.0, 3.0}, 1e-14);
}

TEST(ToTheLab, AlongYGivesFirstAcrossThenAlongThenSecondAcross) {
  Vector3 out{};
  to_the_lab({0.0, 5.0, 0.0}, out, 7.0, 2.0, 3.0);
  expect_near(out, {2.0, 7.0, 3.0}, 1e-14);
}

TEST(ToTheLab, AgainstZMirrorsTheSecondAcrossComponent) {
  Vector3 out{};
  to_the_lab({0.0, 0.0, -5.0}, out, 7.0, 2.0, 3.0);
  expect_near(out, {3.0, -2.0, -7.0}, 1e-14);
}

TEST(ToTheLab, TheAcrossComponentsLieAgainstThePolarAndAzimuthalUnitVectors) {
  const test::FloatTraps traps;
  std::srand(11);
  for (int i = 0; i < 2000; ++i) {
    const Vector3 direction = random_vector(100.0);
    const double theta = std::atan2(std::hypot(direction[0], direction[1]), direction[2]);
    const double phi = std::atan2(direction[1], direction[0]);
    const Vector3 polar{std::cos(theta) * std::cos(phi), std::cos(theta) * std::sin(phi),
                        -std::sin(theta)};
    const Vector3 azimuthal{-std::sin(phi), std::cos(phi), 0.0};
    const auto [along, across_1, across_2] = random_vector(50.0);
    Vector3 out{};
    to_the_lab(direction, out, along, across_1, across_2);
    Vector3 expected{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
      expected[axis] = along * direction[axis] / test::length(direction) - across_2 * polar[axis] -
                       across_1 * azimuthal[axis];
    }
    expect_near(out, expected, 1e-11);
  }
}

TEST(ToTheLab, IsAPureRotation) {
  const test::FloatTraps traps;
  std::srand(12);
  for (int i = 0; i < 2000; ++i) {
    const Vector3 direction = random_vector(1.0);
    const Vector3 components = random_vector(30.0);
    Vector3 out{};
    to_the_lab(direction, out, components[0], components[1], components[2]);
    EXPECT_NEAR(test::length(out), test::length(components), 1e-12);
    EXPECT_NEAR(test::scalar(out, direction) / test::length(direction), components[0], 1e-11);
  }
}

TEST(ToTheLab, OnlyTheDirectionCounts) {
  Vector3 near{};
  Vector3 far{};
  to_the_lab({1.0, 2.0, -2.0}, near, 3.0, 4.0, 5.0);
  to_the_lab({1024.0, 2048.0, -2048.0}, far, 3.0, 4.0, 5.0);
  EXPECT_EQ(near, far);
}

TEST(ToTheLab, ResultMayReplaceTheDirection) {
  Vector3 vector{1.0, 2.0, 2.0};
  Vector3 expected{};
  to_the_lab(vector, expected, 3.0, 4.0, 5.0);
  to_the_lab(vector, vector, 3.0, 4.0, 5.0);
  EXPECT_EQ(vector, expected);
}

TEST(DotProduct, IsSummedInTheOrderXYZ) {
  // In this order the ones are lost beside 1e16 in turn; summed from the end they add up first.
  EXPECT_EQ(dot_product({1e16, 1.0, 1.0}, {1.0, 1.0, 1.0}), 1e16);
  EXPECT_EQ(dot_product({1.0, 1.0, 1e16}, {1.0, 1.0, 1.0}), 1e16 + 2.0);
  EXPECT_EQ(dot_product({1.0, 2.0, 3.0}, {4.0, -5.0, 6.0}), 12.0);
}

TEST(TotalEnergy, OfAParticleAtRestIsItsMass) {
  EXPECT_EQ(total_energy(105.7, 0.0), 105.7);
  EXPECT_EQ(total_energy(0.0, 3.0), 3.0);
  EXPECT_EQ(total_energy(3.0, 4.0), 5.0);
}

}  // namespace
}  // namespace velquon
