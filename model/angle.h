// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>

#include "model/opening_angle.h"
#include "model/placed_points.h"

namespace velquon {

/// An angle laid over a picture, in the picture's units: its vertex, a point of the first arm and a
/// point of the second.
struct Angle {
  static constexpr std::size_t all_points = 3;

  PlacedPoints points{all_points};

  /// None while a point is missing or an arm has no length.
  [[nodiscard]] std::optional<Estimate> opening() const {
    const auto places = points.places();
    return places.size() < all_points ? std::nullopt
                                      : opening_angle(places[0], places[1], places[2]);
  }
};

}  // namespace velquon
