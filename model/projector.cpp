// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/projector.h"

#include <cmath>
#include <utility>

#include "engine/charged_track.h"

namespace velquon {

namespace {

constexpr double default_offset_up = 420.0;
constexpr double default_offset_across = 470.0;
constexpr double snap_reach = 4.0;  // view units

/// Momentum across the field of a particle of charge 1 on a circle of 1 cm, MeV/c: 0.3 MeV/c a kG,
/// by the radius that the tracks are made with.
double momentum_per_cm(double field_kG) {
  return 1.0 / helix_radius_cm(1.0, std::fabs(field_kG));
}

}  // namespace

void Projector::show(std::shared_ptr<const ShownEvent> event) {
  const bool has_other_tracks = event->tracks != event_->tracks;
  const bool has_other_field = event->values.B_field != event_->values.B_field;
  event_ = std::move(event);
  if (has_other_tracks) {
    curve_.points.clear();
    angle_.points.clear();
  }
  const double scaler = projection_scaler(event_->values);
  const bool has_other_scale = scaler != scaler_;
  if (has_other_scale) {
    takeScaler(scaler);
  }
  if (has_other_tracks || has_other_field || has_other_scale) {
    changed.tell();
  }
}

void Projector::setPlane(ProjectionPlane plane) {
  clearTools();
  plane_ = plane;
  resetOffsets();
  changed.tell();
}

void Projector::setZoom(float zoom) {
  clearTools();
  zoom_ = zoom;
  changed.tell();
}

void Projector::setTool(ProjectorTool tool) {
  tool_ = tool;
  clearTools();
  changed.tell();
}

void Projector::setSnaps(bool snaps) {
  snaps_ = snaps;
  changed.tell();
}

void Projector::takeScaler(double scaler) {
  scaler_ = scaler;
  if (tape_.visible) {
    reading_ = tapeLength();
  }
}

void Projector::resetOffsets() {
  OffV_ = default_offset_up;
  OffH_ = default_offset_across;
}

void Projector::restore() {
  resetOffsets();
  clearTools();
  changed.tell();
}

void Projector::press(Place place) {
  if (PlacedPoints* const set = points()) {
    set->press(place, snap());
    changed.tell();
    return;
  }
  is_pressed_ = true;
  pressed_at_ = place;
  (tool_ == ProjectorTool::tape ? tape_.start : last_grab_) = place;
}

void Projector::drag(Place place) {
  if (PlacedPoints* const set = points()) {
    set->drag(place, snap());
    changed.tell();
  } else if (is_pressed_ && tool_ == ProjectorTool::tape) {
    tape_.visible = true;
    stretchTape(place);
  } else if (is_pressed_) {
    grabTo(place);
  }
}

void Projector::release(Place place) {
  const bool was_pressed = std::exchange(is_pressed_, false);
  if (PlacedPoints* const set = points()) {
    set->drag(place, snap());
    set->release();
    changed.tell();
  } else if (was_pressed && tool_ == ProjectorTool::tape) {
    stretchTape(place);
  } else if (was_pressed) {
    grabTo(place);
  }
}

bool Projector::isHolding() const {
  const PlacedPoints* const set = points();
  return set != nullptr ? set->holds() : is_pressed_;
}

bool Projector::setsPointAt(Place place) const {
  const PlacedPoints* const set = points();
  return set != nullptr && !set->hasPointAt(place);
}

bool Projector::giveUp() {
  PlacedPoints* const set = points();
  if (!isHolding() && (set == nullptr || set->places().empty())) {
    return false;
  }
  if (set != nullptr) {
    set->holds() ? set->putBack() : set->clear();
  } else if (tool_ == ProjectorTool::tape) {
    hideTape();
  } else {
    grabTo(pressed_at_);
  }
  is_pressed_ = false;
  changed.tell();
  return true;
}

void Projector::removeLastPoint() {
  if (PlacedPoints* const set = points()) {
    set->removeLast();
    changed.tell();
  }
}

double Projector::tapeLength() const {
  return tape_.length() * scaler_ / static_cast<double>(zoom_);
}

std::vector<Reading> Projector::readings() const {
  switch (tool_) {
    case ProjectorTool::tape:
      return tape_.visible ? std::vector<Reading>{{.quantity = Quantity::length, .value = reading_}}
                           : std::vector<Reading>();
    case ProjectorTool::grab:
      return {};
    case ProjectorTool::curve:
      return curveReadings();
    case ProjectorTool::angle:
      break;
  }
  const auto opening = angle_.opening();
  return opening ? std::vector<Reading>{{Quantity::angle, opening->value, opening->error}}
                 : std::vector<Reading>();
}

std::vector<Reading> Projector::curveReadings() const {
  const auto arc = curve_.arc();
  if (!arc) {
    return {};
  }
  std::vector<Reading> readings;
  if (!arc->is_straight) {
    const Reading radius = inCm(Quantity::radius, arc->radius);
    const auto field_kG = static_cast<double>(event_->values.B_field);
    if (plane_ == ProjectionPlane::xy && field_kG != 0.0) {
      const double momentum = momentum_per_cm(field_kG);
      readings.push_back({.quantity = Quantity::transverse_momentum,
                          .value = radius.value * momentum,
                          .error = radius.error * momentum});
    }
    readings.push_back(radius);
  }
  readings.push_back(inCm(Quantity::sagitta, arc->sagitta));
  readings.push_back(inCm(Quantity::chord, arc->chord));
  return readings;
}

Reading Projector::inCm(Quantity quantity, Estimate length) const {
  const double cm = scaler_ / static_cast<double>(zoom_);
  return {.quantity = quantity, .value = length.value * cm, .error = length.error * cm};
}

void Projector::setViewHeight(double height) {
  const Place moved{0.0, height - view_height_};
  view_height_ = height;
  tape_.moveBy(moved);
  curve_.points.moveBy(moved);
  angle_.points.moveBy(moved);
  last_grab_ = last_grab_ + moved;
  pressed_at_ = pressed_at_ + moved;
}

ProjectionMapping Projector::mappingAt(double height) const {
  return {.zoom = static_cast<double>(zoom_),
          .offset_across = OffH_,
          .offset_up = OffV_,
          .view_height = height};
}

void Projector::hideTape() {
  tape_.visible = false;
  reading_ = 0.0;
}

void Projector::clearTools() {
  hideTape();
  is_pressed_ = false;
  curve_.points.clear();
  angle_.points.clear();
}

const PlacedPoints* Projector::points() const {
  switch (tool_) {
    case ProjectorTool::curve:
      return &curve_.points;
    case ProjectorTool::angle:
      return &angle_.points;
    case ProjectorTool::tape:
    case ProjectorTool::grab:
      break;
  }
  return nullptr;
}

PlacedPoints* Projector::points() {
  return const_cast<PlacedPoints*>(std::as_const(*this).points());
}

Place Projector::snapped(Place place) const {
  const ProjectionMapping to_view = mapping();
  Place nearest = place;
  double least = snap_reach;
  for (const PlotPoint& point : event_->points()) {
    const Place displayed = to_view.map(project(point, plane_));
    const double distance = std::hypot(displayed.x - place.x, displayed.y - place.y);
    if (distance <= least) {
      least = distance;
      nearest = displayed;
    }
  }
  return nearest;
}

PlacedPoints::Snap Projector::snap() const {
  return [this](Place place) { return snaps_ ? snapped(place) : place; };
}

void Projector::stretchTape(Place place) {
  tape_.end = place;
  reading_ = tapeLength();
  changed.tell();
}

void Projector::grabTo(Place place) {
  hideTape();
  const Place moved = last_grab_ - place;
  last_grab_ = place;
  OffV_ += moved.y;
  OffH_ -= moved.x;
  changed.tell();
}

}  // namespace velquon
