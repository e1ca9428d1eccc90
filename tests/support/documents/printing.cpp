// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/documents/printing.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPageLayout>
#include <QPdfWriter>
#include <cmath>

#include "chamber/chamber_view.h"
#include "printing/print_view.h"

namespace velquon::test {

PdfPage print_to_pdf(Printable& view, ChamberView& chamber, const Paper& paper,
                     const QString& path) {
  constexpr double margin = 36.0;
  {
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(paper.id));
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Point);
    EXPECT_TRUE(PrintView(view, QStringLiteral("Some Title"),
                          QString::fromStdString(chamber.valuesOnPageOf(view)))
                    .print(writer));
  }
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return read_pdf(file.readAll());
}

QString line_at(const std::vector<PaperWord>& words, const Paper& paper, double height) {
  constexpr double tolerance = 0.1;
  QStringList line;
  for (const PaperWord& word : words) {
    if (std::fabs(word.corner.y() - paper.origin.y() - height) < tolerance) {
      line << word.text;
    }
  }
  return line.join(QLatin1Char(' '));
}

bool is_near(QPointF left, QPointF right, double tolerance) {
  return std::fabs(left.x() - right.x()) <= tolerance &&
         std::fabs(left.y() - right.y()) <= tolerance;
}

}  // namespace velquon::test
