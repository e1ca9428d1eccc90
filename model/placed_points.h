// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "model/place.h"

namespace velquon {

/// Points that a person sets on a picture one after the other and may drag afterwards. Places in
/// the picture's units.
class PlacedPoints {
 public:
  /// How near to a point a press takes hold of it.
  static constexpr double reach = 5.0;
  /// Where a point comes to lie that is put at a place.
  using Snap = std::function<Place(Place)>;

  /// \param most so many points are all; one more begins anew
  explicit PlacedPoints(std::size_t most = std::numeric_limits<std::size_t>::max()) : most_(most) {}

  [[nodiscard]] std::span<const Place> places() const { return places_; }
  [[nodiscard]] bool holds() const { return held_.has_value(); }
  /// Whether a press at a place would take hold of a point that is there.
  [[nodiscard]] bool hasPointAt(Place place) const { return nearest(place).has_value(); }

  /// Takes hold of the nearest point in reach, or of a new one that it sets.
  void press(Place place, const Snap& snap);
  /// Moves the point that is held along with the place: a new one to it, another one by as much.
  void drag(Place place, const Snap& snap);
  void release() { held_.reset(); }
  /// Lets go of the point that is held, at the place where it was before.
  void putBack();

  void removeLast();
  void clear();
  /// Moves all points, for a picture that has moved.
  void moveBy(Place distance);

 private:
  struct Hold {
    std::size_t point = 0;
    Place pressed;  ///< where the press was
    Place before;   ///< where the point was then
    Place offset;   ///< of the point from the place that is dragged
  };
  [[nodiscard]] std::optional<std::size_t> nearest(Place place) const;

  std::size_t most_;
  std::vector<Place> places_;
  std::optional<Hold> held_;
};

}  // namespace velquon
