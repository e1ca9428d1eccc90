// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>
#include <span>

#include "model/place.h"

namespace velquon {

/// A circle that may be as wide as a straight line: by the place of it that is nearest to an origin
/// and by its curvature there, which is 0 for a line. Unlike centre and radius these numbers stay
/// finite, and the errors of a fit stay normal, when the points lie on a line.
struct BentLine {
  Place origin;
  double curvature = 0.0;  ///< 1 / radius; below 0 when the circle bends away from the normal
  double normal = 0.0;    ///< direction of the normal at the nearest place, radians from the x axis
  double distance = 0.0;  ///< of the nearest place from the origin along the normal

  /// Of a line that is curved.
  [[nodiscard]] Place centre() const;
};

/// A circle fitted to places, with what is known of its errors. Lengths in the unit of the places.
struct CircleFit {
  BentLine line;
  /// Of curvature, normal and distance.
  std::array<std::array<double, 3>, 3> covariance{};
  /// Standard deviation of a place from the circle that the covariance is worked out with.
  double spread = 0.0;
};

/// The circle with the least sum of squared distances to three or more places: through them when
/// there are three. An algebraic fit (G. Taubin, IEEE Trans. PAMI 13 (1991) 1115) gives the start, and
/// Levenberg's and Marquardt's method the minimum.
/// \param least_spread the smallest standard deviation that a place is taken to have; what the
///                     distances to the circle show counts when it is larger
/// \return none when the places are too few or do not lie apart
[[nodiscard]] std::optional<CircleFit> fit_circle(std::span<const Place> places,
                                                  double least_spread);

}  // namespace velquon
