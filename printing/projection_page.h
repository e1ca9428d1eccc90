// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRectF>
#include <span>

#include "engine/event_record.h"
#include "model/projector.h"

class QPainter;

namespace velquon {

/// Draws an event's projection on a page as the projector shows it: the chamber's outline, a square
/// of one point a point, and the tape while it is laid out. Needs no window.
void paint_projection(QPainter& page, std::span<const PlotPoint> points,
                      const Projector& projector);

/// Where on a page `paint_projection` draws the chamber's outline, y upwards.
[[nodiscard]] QRectF projection_frame(const Projector& projector);

}  // namespace velquon
