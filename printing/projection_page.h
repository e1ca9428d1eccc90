// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <span>

#include "engine/event_record.h"
#include "model/projector.h"
#include "printing/page.h"

class QPainter;

namespace velquon {

/// Draws an event's projection on a page as the projector shows it: the chamber's outline, a square
/// of one point a point, and what the chosen tool has laid out. Needs no window.
/// \param room of the picture, beyond whose upper edge nothing is drawn
void paint_projection(QPainter& page, std::span<const PlotPoint> points, const Projector& projector,
                      const QRectF& room = page_picture);

/// Where on a page the upper left corner of the projector's picture is, y upwards.
[[nodiscard]] QPointF projection_top_left();

/// Where on a page `paint_projection` draws the chamber's outline, y upwards.
[[nodiscard]] QRectF projection_frame(const Projector& projector);

}  // namespace velquon
