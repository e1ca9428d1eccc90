// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/placed_points.h"

#include <cmath>

namespace velquon {

void PlacedPoints::press(Place place, const Snap& snap) {
  if (const auto point = nearest(place)) {
    const Place before = places_[*point];
    held_ = Hold{.point = *point, .pressed = place, .before = before, .offset = before - place};
    return;
  }
  if (places_.size() >= most_) {
    places_.clear();
  }
  places_.push_back(snap(place));
  held_ =
      Hold{.point = places_.size() - 1, .pressed = place, .before = places_.back(), .offset = {}};
}

void PlacedPoints::drag(Place place, const Snap& snap) {
  if (held_) {
    // Without a movement the point stays, though one of the picture be near.
    places_[held_->point] = place == held_->pressed ? held_->before : snap(place + held_->offset);
  }
}

void PlacedPoints::putBack() {
  if (held_) {
    places_[held_->point] = held_->before;
  }
  release();
}

void PlacedPoints::removeLast() {
  release();
  if (!places_.empty()) {
    places_.pop_back();
  }
}

void PlacedPoints::clear() {
  release();
  places_.clear();
}

void PlacedPoints::moveBy(Place distance) {
  for (Place& place : places_) {
    place = place + distance;
  }
  if (held_) {
    held_->pressed = held_->pressed + distance;
    held_->before = held_->before + distance;
  }
}

std::optional<std::size_t> PlacedPoints::nearest(Place place) const {
  std::optional<std::size_t> found;
  double least = reach;
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const Place way = places_[i] - place;
    const double distance = std::hypot(way.x, way.y);
    if (distance <= least) {
      least = distance;
      found = i;
    }
  }
  return found;
}

}  // namespace velquon
