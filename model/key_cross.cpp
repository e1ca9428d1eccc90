// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/key_cross.h"

#include <algorithm>
#include <cmath>

namespace velquon {

void KeyCross::appear(const KeyField& field) {
  visible_ = true;
  if (!place_) {
    const auto& [low, high] = field;
    place_ = Place{std::floor(0.5 * (low.x + high.x)), std::floor(0.5 * (low.y + high.y))};
  }
  keepWithin(field);
}

void KeyCross::move(Place distance, const KeyField& field) {
  appear(field);
  *place_ = *place_ + distance;
  keepWithin(field);
  if (projector_.isHolding()) {
    projector_.drag(*place_);
  }
}

void KeyCross::act(const KeyField& field) {
  if (!visible_) {
    appear(field);
    return;
  }
  if (projector_.isHolding()) {
    projector_.release(*place_);
    return;
  }
  const bool sets_a_point = projector_.setsPointAt(*place_);
  projector_.press(*place_);
  // A tape begins here, and one that lies elsewhere ends.
  projector_.drag(*place_);
  if (sets_a_point) {
    projector_.release(*place_);
  }
}

bool KeyCross::giveUp() {
  if (projector_.giveUp()) {
    return true;
  }
  const bool was_visible = visible_;
  hide();
  return was_visible;
}

void KeyCross::moveBy(Place distance) {
  if (place_) {
    *place_ = *place_ + distance;
  }
}

void KeyCross::keepWithin(const KeyField& field) {
  const auto& [low, high] = field;
  place_->x = std::clamp(place_->x, low.x, std::max(low.x, high.x));
  place_->y = std::clamp(place_->y, low.y, std::max(low.y, high.y));
}

}  // namespace velquon
