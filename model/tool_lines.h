// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include "model/place.h"
#include "model/projector.h"

namespace velquon {

/// A line that a measuring tool lays over the projection.
struct ToolLine {
  std::vector<Place> places;  ///< each joined to the next, view units with y upwards
  bool is_faint = false;      ///< beside what is measured
};

/// The lines of what the chosen tool has laid over the picture: the tape, or points with their circle
/// or their arms. A later one lies over those before it.
[[nodiscard]] std::vector<ToolLine> tool_lines(const Projector& projector);

}  // namespace velquon
