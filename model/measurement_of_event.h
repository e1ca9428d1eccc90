// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <string>

#include "model/measurement.h"
#include "model/projection_mapping.h"
#include "model/shown_event.h"

namespace velquon {

/// The rows for what a tool of the projector reads, in the order of the readings. A length is noted
/// with the chamber's side as the longest that a track along its entry can have.
/// \param event name and number of the event
[[nodiscard]] MeasurementTable rows_of_readings(std::span<const Reading> readings,
                                                ProjectionPlane plane, const ShownEvent& shown,
                                                const std::string& event);

}  // namespace velquon
