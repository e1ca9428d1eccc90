// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_simulation.h"

#include <algorithm>
#include <cmath>

namespace velquon {

namespace {

// The particle may be that far outside of the area and still counts as inside, view units.

// Radians that a field of 1 turns a charge of 1 in a unit of time.
constexpr double turn_rate = 0.05;

constexpr std::int32_t most_points = 9996;  // a track that has so many is compacted
constexpr std::int32_t dropped_points = 5000;
constexpr std::int32_t kept_points = most_points - dropped_points;

bool is_inside(double place, double length) {
  return -track_area_margin < place && place < length + track_area_margin;
}

}  // namespace

void TrackSimulation::launch() {
  vx_ = settings.direction == 1 ? settings.speed : -settings.speed;
  vy_ = 0.0;
}

void TrackSimulation::enter(const TrackStart& start) {
  stepping_.old_x = settings.direction == 1 ? 0.0 : track_area_width;
  stepping_.old_y = start.y;
  x_points_.front() = static_cast<float>(stepping_.old_x);
  y_points_.front() = static_cast<float>(stepping_.old_y);
  show_points_ = 1;
  stepping_.istep = 1;
  time_interval_ = start.time_interval;
  stepping_.rot_fac = turn_rate * time_interval_;
}

bool TrackSimulation::canStep() const {
  return stepping_.istep < static_cast<std::int32_t>(capacity) &&
         is_inside(stepping_.old_x, track_area_width) &&
         is_inside(stepping_.old_y, track_area_height);
}

void TrackSimulation::advance() {
  SteppingState& s = stepping_;
  show_points_ = s.istep + 1;
  s.old_x += time_interval_ * vx_;
  s.old_y += time_interval_ * vy_;
  const auto index = static_cast<std::size_t>(s.istep);
  x_points_.at(index) = static_cast<float>(s.old_x);
  y_points_.at(index) = static_cast<float>(s.old_y);

  s.old_vx = vx_;
  s.old_vy = vy_;
  s.B_rot = settings.B_field * s.rot_fac * settings.charge;
  s.sn = std::sin(s.B_rot);
  s.cs = std::cos(s.B_rot);
  vx_ = s.cs * s.old_vx + s.sn * s.old_vy;
  vy_ = s.cs * s.old_vy - s.sn * s.old_vx;
}

bool TrackSimulation::takeClearSignal() {
  if (!clear_signal_) {
    return false;
  }
  const auto present = static_cast<std::size_t>(stepping_.istep);
  x_points_.front() = x_points_.at(present);
  y_points_.front() = y_points_.at(present);
  stepping_.istep = 0;
  show_points_ = 1;
  clear_signal_ = false;
  return true;
}

void TrackSimulation::goOn() {
  ++stepping_.istep;
  if (resetting) {
    resetting = false;
    stretching = false;
  }
  if (stepping_.istep >= most_points) {
    compact();
  }
}

void TrackSimulation::compact() {
  for (Points* points : {&x_points_, &y_points_}) {
    std::copy(points->begin() + dropped_points, points->begin() + most_points, points->begin());
  }
  stepping_.istep = kept_points;
  show_points_ = kept_points;
  resetting = true;
}

}  // namespace velquon
