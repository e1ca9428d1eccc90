// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSizeF>
#include <span>

#include "engine/event_record.h"
#include "printing/worksheet_order.h"

class QPainter;

namespace velquon {

/// Draws one worksheet: the event's xy projection to scale with a ruler, what the pupils are told of
/// it, and room for their answers. Needs no window.
/// \param page   a point as its unit, y upwards, the origin at the paper's lower left corner
/// \param paper  size of the paper, points
/// \param number of the worksheet and of its event, from 1
void paint_worksheet(QPainter& page, QSizeF paper, const WorksheetOrder& order, int number,
                     std::span<const PlotPoint> points);

}  // namespace velquon
