// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include "model/estimate.h"
#include "model/place.h"

namespace velquon {

/// The angle between two arms that go out from a vertex, degrees from 0 to 180, with the error that
/// follows from those of the three places.
/// \param spread standard deviation of a place in each direction
/// \return none for an arm without length
[[nodiscard]] std::optional<Estimate> opening_angle(Place vertex, Place first, Place second,
                                                    double spread = placing_error);

}  // namespace velquon
