// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>

#include "engine/event_record.h"

namespace velquon::bench {

/// What no stored point of a helix can do without, and nothing else: a sine and a cosine of a new
/// angle, a draw of the C library's generator, three bound tests, and a record of 48 bytes stored.
/// The loop stands in a file of its own, so its caller cannot fold it for the constants it passes.
/// \param out   one record is stored in each
/// \param angle of the first point; each further one is a `turn` on
/// \return records stored, which is all of them unless a coordinate passes the bound
std::size_t store_points(std::span<PlotPoint> out, double angle, double turn, double bound);

}  // namespace velquon::bench
