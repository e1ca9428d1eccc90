#pragma once

#include <QByteArray>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <array>
#include <string>
#include <vector>

namespace velquon::test {

/// Red, green and blue, 0 to 1.
using PaperColor = std::array<double, 3>;

struct PaperLine {
  QPointF from;
  QPointF to;
  PaperColor color;
};

struct PaperFill {
  QRectF area;
  PaperColor color;
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

/// Reads the drawing of a PDF file as Qt writes it.
PdfPage read_pdf(const QByteArray& document);

/// Reads the words of a PDF file with the tool pdftotext.
std::vector<PaperWord> words_of_pdf(const QString& path);

}  // namespace velquon::test
