// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "render/camera.h"

namespace velquon {

// Marks in the picture of the chamber. They are drawn in lines as wide as the present ones; the context
// must be current, and its matrices change. Letters stand upright however the chamber is turned.

/// The letters x, y and z beyond the tips of the axes, each in its axis's colour.
void draw_axis_letters(const Camera& camera);

/// An arrow beside the chamber's edge along the magnetic field, with the letter B at its tip.
/// \param field_kG component along z, not 0
void draw_field_arrow(const Camera& camera, double field_kG);

}  // namespace velquon
