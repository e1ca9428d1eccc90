// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/projector.h"

namespace velquon {

namespace {

constexpr double default_offset_up = 420.0;
constexpr double default_offset_across = 470.0;

}  // namespace

void Projector::setPlane(ProjectionPlane plane) {
  hideTape();
  plane_ = plane;
  resetOffsets();
  changed.tell();
}

void Projector::setZoom(float zoom) {
  hideTape();
  zoom_ = zoom;
  changed.tell();
}

void Projector::setTool(ProjectorTool tool) {
  tool_ = tool;
  hideTape();
  changed.tell();
}

void Projector::setScaler(double scaler) {
  scaler_ = scaler;
  if (tape_.visible) {
    reading_ = tapeLength();
  }
  changed.tell();
}

void Projector::resetOffsets() {
  OffV_ = default_offset_up;
  OffH_ = default_offset_across;
}

void Projector::restore() {
  resetOffsets();
  hideTape();
  changed.tell();
}

void Projector::press(Place place) {
  (tool_ == ProjectorTool::tape ? tape_.start : last_grab_) = place;
}

void Projector::drag(Place place) {
  if (tool_ == ProjectorTool::tape) {
    tape_.visible = true;
    stretchTape(place);
  } else {
    grabTo(place);
  }
}

void Projector::release(Place place) {
  if (tool_ == ProjectorTool::tape) {
    stretchTape(place);
  } else {
    grabTo(place);
  }
}

double Projector::tapeLength() const {
  return tape_.length() * scaler_ / static_cast<double>(zoom_);
}

std::vector<Reading> Projector::readings() const {
  if (tool_ != ProjectorTool::tape || !tape_.visible) {
    return {};
  }
  return {{.quantity = Quantity::length, .value = reading_}};
}

void Projector::setViewHeight(double height) {
  const Place moved{0.0, height - view_height_};
  view_height_ = height;
  tape_.moveBy(moved);
  last_grab_ = last_grab_ + moved;
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
