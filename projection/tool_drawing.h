// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/key_cross.h"
#include "model/projector.h"

namespace velquon {

// Drawn by OpenGL in view units, into the projection's picture.

/// What the chosen tool has laid over the picture, in red: the tape, or points with their circle or
/// their arms.
void draw_tool(const Projector& projector);

/// The cross that keys move, while it is seen.
void draw_cross(const KeyCross& cross);

}  // namespace velquon
