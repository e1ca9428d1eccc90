// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <array>
#include <map>
#include <vector>

#include "tests/support/documents/pdf_page.h"

namespace velquon::test {

/// The arguments of a command line without quotes.
QStringList words(const char* text);

/// How a program without a display ended.
struct QuietEnding {
  int status = -1;
  QString output;
  QString errors;  ///< the program's own lines, not those of Qt
};

/// Runs a program where there is no display.
QuietEnding run_without_display(const char* program, const QStringList& arguments);

/// Rows of a table that `velquon-events` prints, each a list of its fields, without the header.
std::vector<QStringList> rows_of_events(const QStringList& arguments);

/// x, y and z of an event's points, drawing units.
using EventPlaces = std::vector<std::array<double, 3>>;

/// Places of the points of each event that `velquon-events` makes, by the event's number; an event
/// without points is missing.
std::map<int, EventPlaces> places_of_events(const QStringList& arguments);

/// The chamber's outline on a worksheet, y upwards: the gray lines.
QRectF frame_of(const PdfPage& page);

/// The words of one page of a PDF file as lines of text, each line's runs of blanks made one.
QStringList lines_of_pdf_page(const QString& path, int page);

/// Makes worksheets in a folder of the test's own.
class WorksheetTest : public ::testing::Test {
 protected:
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
  [[nodiscard]] QString sheets() const { return path(QStringLiteral("sheets.pdf")); }
  [[nodiscard]] QString answers() const { return path(QStringLiteral("answers.pdf")); }
  /// Names of all that is in the folder.
  [[nodiscard]] QStringList files() const;
  /// Runs the program with arguments more than the name of the worksheets.
  [[nodiscard]] QuietEnding leave(const QStringList& arguments) const;
  /// Makes worksheets that can be made.
  /// \return their pages
  [[nodiscard]] std::vector<PdfPage> pages(const QStringList& arguments) const;

  static QByteArray read(const QString& path);

 private:
  QTemporaryDir folder_;
};

}  // namespace velquon::test
