// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <functional>
#include <optional>

#include "printing/worksheet_order.h"

namespace velquon {

/// Worksheets and their answers as PDF files.
struct WorksheetDocuments {
  QByteArray sheets;   ///< a page an event
  QByteArray answers;  ///< one line a track
};

/// Makes the worksheets of an order, and their answers. Needs a QGuiApplication, but no window, and
/// leaves the process-wide random stream as it is.
/// \param goes_on told after each worksheet how many are made; false ends the work
/// \return nothing when the work was ended
[[nodiscard]] std::optional<WorksheetDocuments> make_worksheets(
    const WorksheetOrder& order, const std::function<bool(int)>& goes_on);

}  // namespace velquon
