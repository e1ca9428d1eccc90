// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

#include "model/place.h"

namespace velquon {

/// A tape measure laid over a picture, in the picture's units.
struct Tape {
  Place start;
  Place end;
  bool visible = false;

  /// Distance between its ends.
  [[nodiscard]] double length() const {
    const Place span = end - start;
    return std::sqrt(span.x * span.x + span.y * span.y);
  }

  /// Moves both ends, for a picture that has moved.
  void moveBy(Place distance) {
    start = start + distance;
    end = end + distance;
  }
};

}  // namespace velquon
