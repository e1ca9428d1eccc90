// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include "engine/event_record.h"

namespace velquon::bench {

/// An event to be drawn: points on helices all over the chamber, in all colours, the same in each
/// run.
[[nodiscard]] std::vector<PlotPoint> points_on_tracks(int points);

}  // namespace velquon::bench
