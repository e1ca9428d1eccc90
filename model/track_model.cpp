// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_model.h"

#include <cmath>

namespace velquon {

namespace {

constexpr double faster_period = 0.005;  // seconds
constexpr double slower_period = 0.02;   // seconds

// A field that near to a tick mark is the tick mark's.
constexpr double snapping_distance = 0.005;

constexpr double reading_per_view_unit = 0.1;

}  // namespace

float charge_of(TrackParticle particle) {
  return particle == TrackParticle::e_plus ? 1.0F : -1.0F;
}

std::int32_t number_of(TrackDirection direction) {
  return direction == TrackDirection::right_to_left ? 2 : 1;
}

TrackModel::TrackModel() {
  simulation_.settings = {.speed = static_cast<double>(speed_),
                          .charge = static_cast<double>(charge_of(particle_)),
                          .direction = number_of(direction_)};
}

void TrackModel::setParticle(TrackParticle particle) {
  particle_ = particle;
  simulation_.settings.charge = static_cast<double>(charge_of(particle));
  changed.tell();
}

void TrackModel::setDirection(TrackDirection direction) {
  direction_ = direction;
  simulation_.settings.direction = number_of(direction);
  changed.tell();
}

void TrackModel::setSpeed(int speed) {
  if (1 <= speed && speed <= 3) {
    speed_ = speed;
  }
  simulation_.settings.speed = static_cast<double>(speed_);
  changed.tell();
}

void TrackModel::setSettings(const LiveTrackSettings& settings) {
  simulation_.settings = settings;
  changed.tell();
}

void TrackModel::takeField(double field, double closest_tick) {
  simulation_.settings.B_field =
      std::fabs(closest_tick - field) < snapping_distance ? closest_tick : field;
  changed.tell();
}

void TrackModel::setScreenSpeed(ScreenSpeed speed) {
  setTimerSecs(speed == ScreenSpeed::faster ? faster_period : slower_period);
}

void TrackModel::setTimerSecs(double seconds) {
  timerSecs_ = seconds;
  changed.tell();
}

std::chrono::milliseconds TrackModel::stepPeriod() const {
  return std::chrono::milliseconds(std::lround(timerSecs_ * 1000.0));
}

void TrackModel::activate() {
  activated_ = true;
  doMenus(true);
}

void TrackModel::deactivate() {
  activated_ = false;
  doMenus(false);
}

void TrackModel::doMenus(bool on) {
  menus_on_ = on;
  changed.tell();
}

bool TrackModel::isEnabled(TrackItem item) const {
  switch (item) {
    case TrackItem::activate:  // else the window could never be activated
    case TrackItem::clear:
      return true;
    case TrackItem::inject:
      return menus_on_;
    case TrackItem::choice:
      return activated_ && !is_tracking();
    case TrackItem::screen_speed:
    case TrackItem::window:
      return activated_;
    case TrackItem::rest_of_program:
      return !menus_on_;
  }
  return false;
}

void TrackModel::inject() {
  simulation_.launch();
  reading_.reset();
  simulation_.setTracking(true);
  doMenus(false);
}

void TrackModel::enter(const TrackStart& start) {
  simulation_.enter(start);
}

void TrackModel::setTracking(bool tracking) {
  simulation_.setTracking(tracking);
  changed.tell();
}

void TrackModel::startPace(std::uint64_t now) {
  run_period_ = static_cast<std::uint64_t>(std::chrono::microseconds(stepPeriod()).count());
  pace_.start(now + run_period_);
}

std::uint64_t TrackModel::takeStepsDue(std::uint64_t now) {
  return pace_.takeStepsDue(now, run_period_);
}

void TrackModel::endRun() {
  simulation_.setTracking(false);
  // Out of an inactive window the rest of the program stays allowed.
  doMenus(menus_on_ || activated_);
}

void TrackModel::advance() {
  simulation_.advance();
  if (simulation_.stretching) {
    readTape();
  }
}

void TrackModel::drag(Place place) {
  simulation_.stretching = true;
  tape_end_ = place;
  readTape();
}

void TrackModel::release(Place place) {
  simulation_.stretching = false;
  tape_end_ = place;
}

double TrackModel::tapeLength() const {
  return reading_per_view_unit * tape().length();
}

void TrackModel::readTape() {
  if (reading_ != tapeLength()) {
    reading_ = tapeLength();
    changed.tell();
  }
}

}  // namespace velquon
