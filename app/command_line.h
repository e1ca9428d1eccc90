// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "app/worksheet_request.h"

namespace velquon {

/// What the program is started with.
struct CommandLine {
  std::optional<std::uint32_t> seed;
  QString file;      ///< absolute path of the event file to open, or empty
  QString language;  ///< one of language_codes(), or empty for the desktop's
  QString pictures;  ///< absolute path of the folder to leave pictures in, or empty
  std::optional<WorksheetRequest> worksheets;
  QString display;           ///< the X display to show windows on, or empty for the usual one
  QStringList qt_arguments;  ///< the program's name and the options that are Qt's
};

/// Outcome of reading a command line: what it says, or what to print and the status to end with.
struct ParsedCommandLine {
  std::optional<CommandLine> options;
  QString message;
  int status = 0;
};

/// The text with a question mark for every control character.
[[nodiscard]] QString as_one_line(const QString& text);

/// Reads the command line. Needs no application object. Options that Qt takes, with one dash or
/// two, are left to it.
/// \param arguments the program's name first
[[nodiscard]] ParsedCommandLine parse_command_line(const QStringList& arguments);

}  // namespace velquon
