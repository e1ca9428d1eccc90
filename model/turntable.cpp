// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/turntable.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velquon {

namespace {

constexpr float step_degrees = 0.5F;
constexpr double microseconds_per_second = 1.0e6;
constexpr std::array<double, 3> delays{0.005, 0.01, 0.02};  // seconds, of the rates in their order

}  // namespace

bool Turntable::start(RotationDirection direction, std::uint64_t now) {
  angle_ = direction == RotationDirection::reverse ? -step_degrees : step_degrees;
  if (is_rotating_) {
    return false;
  }
  is_rotating_ = true;
  pace_.start(now);
  return true;
}

void Turntable::setAxis(int axis) {
  axis_ = std::clamp(axis, 1, 3);
}

double Turntable::delay() const {
  return delays.at(static_cast<std::size_t>(rate_));
}

std::uint64_t Turntable::takeStepsDue(std::uint64_t now) {
  const auto microseconds =
      static_cast<std::uint64_t>(std::llround(delay() * microseconds_per_second));
  const std::uint64_t steps = pace_.takeStepsDue(now, microseconds);
  steps_ += static_cast<std::int64_t>(steps);
  return steps;
}

}  // namespace velquon
