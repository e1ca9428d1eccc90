// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace velquon::test {

/// Red, green and blue, 0 to 1.
using PaperColor = std::array<double, 3>;

struct PaperLine {
  QPointF from;
  QPointF to;
  PaperColor color{};
};

struct PaperFill {
  QRectF area;
  PaperColor color{};
};

struct PaperWord {
  QString text;
  QPointF corner;  ///< lower left
};

/// What a PDF file of one page shows, in points from the lower left corner of the paper.
struct PdfPage {
  QSizeF paper;
  std::vector<PaperLine> lines;
  std::vector<PaperFill> rectangles;
  int other_fills = 0;    ///< filled shapes that are not single rectangles
  std::string operators;  ///< the page's drawing as it stands in the file
};

/// How the page's lines end and meet: each "number J" and "number j" that it sets.
std::set<std::string> line_styles_of(const PdfPage& page);

/// Reads the drawing of a PDF file as Qt writes it: that of its first page.
PdfPage read_pdf(const QByteArray& document);
/// The same of all its pages.
std::vector<PdfPage> read_pdf_pages(const QByteArray& document);

/// The title by which a PDF file names itself.
QString title_of_pdf(const QString& path);

/// The first page of a PDF file as it comes out on paper, four pixels to a point.
QImage picture_of_pdf(const QString& path);
/// How many pixels of a page's picture are not white in an area of the paper, points from its lower
/// left corner.
int ink_in(const QImage& picture, const QRectF& area);

/// Reads the words of a PDF file with the tool pdftotext.
std::vector<PaperWord> words_of_pdf(const QString& path);

}  // namespace velquon::test
