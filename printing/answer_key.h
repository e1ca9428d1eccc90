// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSizeF>
#include <QString>
#include <vector>

#include "model/track_answers.h"
#include "printing/worksheet_order.h"

class QPainter;

namespace velquon {

/// A line of the answer key, as the texts of its columns.
using AnswerLine = std::vector<QString>;

/// The lines of one worksheet: one for each track, or a single one that says that none is visible.
[[nodiscard]] std::vector<AnswerLine> answer_lines(int number,
                                                   const std::vector<TrackAnswer>& answers);

/// How many lines a page of the key holds.
[[nodiscard]] int lines_on_key_page(QSizeF paper);

/// Draws a page of the key.
/// \param page  a point as its unit, y upwards, the origin at the paper's lower left corner
/// \param lines of the whole key
/// \param index of the page, from 0
void paint_key_page(QPainter& page, QSizeF paper, const WorksheetOrder& order,
                    const std::vector<AnswerLine>& lines, int index);

}  // namespace velquon
