// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPageSize>
#include <QString>
#include <vector>

#include "tests/support/documents/pdf_page.h"

namespace velquon {
class ChamberView;
class Printable;
}  // namespace velquon

namespace velquon::test {

/// A kind of paper and where on it the page of 500 by 720 points has its origin, in points.
struct Paper {
  QPageSize::PageSizeId id = QPageSize::A4;
  QSizeF size;
  QPointF origin;
};

inline const Paper a4{QPageSize::A4, {595.0, 842.0}, {47.5, 61.0}};
inline const Paper letter{QPageSize::Letter, {612.0, 792.0}, {56.0, 36.0}};

/// Colour of what is printed in black.
inline constexpr PaperColor ink{0.0, 0.0, 0.0};

/// Prints a view into a PDF file.
/// \return what the page shows
PdfPage print_to_pdf(Printable& view, ChamberView& chamber, const Paper& paper,
                     const QString& path);

/// The words of a printed page in the order of reading, joined by blanks, from a height of the page
/// of 500 by 720 points.
QString line_at(const std::vector<PaperWord>& words, const Paper& paper, double height);

/// Whether two places agree as closely as the numbers in a PDF file and of the screen do.
bool is_near(QPointF left, QPointF right, double tolerance = 0.02);

}  // namespace velquon::test
