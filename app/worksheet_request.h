// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <optional>

#include "printing/worksheet_order.h"

class QCommandLineParser;

namespace velquon {

/// Worksheets that the program is started for.
struct WorksheetRequest {
  WorksheetOrder order;
  QString sheets;   ///< path of the PDF file
  QString answers;  ///< path of the answers' PDF file, or empty for none
};

/// The options with which worksheets are asked for, but for the seed.
[[nodiscard]] QList<QCommandLineOption> worksheet_options();

/// Outcome of reading them: a request, or none, or a reason for refusal.
struct ReadWorksheetOptions {
  std::optional<WorksheetRequest> request;
  QString reason;
};

/// \param parser has read a command line with `worksheet_options`
/// \param seed   of the order
[[nodiscard]] ReadWorksheetOptions read_worksheet_options(const QCommandLineParser& parser,
                                                          std::optional<std::uint32_t> seed);

/// Makes the worksheets without a display and writes their files.
/// \param language one of language_codes(), or empty for the desktop's
/// \return status to end the program with; a file that cannot be written is named on standard error
int leave_worksheets(const WorksheetRequest& request, const QString& language);

}  // namespace velquon
