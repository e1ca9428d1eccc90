// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <span>

namespace velquon {

using Corner = std::array<float, 3>;

// Lines in the current colour, sent as arrays of places: a software renderer makes a program for each
// kind of vertices it meets and a buffer for each way they come, which a view's first picture waits for.

void draw_line_strip(std::span<const Corner> corners);
void draw_line_loop(std::span<const Corner> corners);

/// The edges of a cube round the origin, the same pixels as glutWireCube's.
/// \param side drawing units
void draw_wire_cube(float side);

}  // namespace velquon
