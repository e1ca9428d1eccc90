// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include "engine/event_record.h"
#include "render/camera.h"

class QPainter;

namespace velquon {

/// Draws the chamber with an event on a page: its lines and a rectangle a point, in the page's pen.
/// Needs no window; says on standard error and on the page when the graphics driver does not hand the
/// picture over.
void paint_chamber(QPainter& page, std::span<const PlotPoint> points, const Camera& camera,
                   bool axes);

}  // namespace velquon
