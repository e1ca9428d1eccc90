// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <span>

#include "model/circle_fit.h"
#include "model/estimate.h"
#include "model/place.h"

namespace velquon {

/// The part of a fitted circle from the first to the last of its places, by way of those between.
/// Lengths in the unit of the places.
struct Arc {
  /// The curvature is not larger than its error: nothing is known of centre and radius.
  bool is_straight = false;
  Place centre;        ///< of an arc that is not straight
  double start = 0.0;  ///< direction of the first place from the centre, radians
  double sweep = 0.0;  ///< from there to the last, counter-clockwise when above 0, radians
  Estimate radius;     ///< of an arc that is not straight
  Estimate sagitta;    ///< greatest height of the arc above its chord
  Estimate chord;      ///< between the arc's ends
};

/// The arc through three places, or fitted to more of them, with errors that follow from those of
/// the places: from `least_spread` in each direction, or from the distances of the places to the
/// circle when these show more.
/// \return none when the places are too few or do not lie apart
[[nodiscard]] std::optional<Arc> arc_through(std::span<const Place> places,
                                             double least_spread = placing_error);

}  // namespace velquon
