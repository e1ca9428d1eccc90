// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/worksheet_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>
#include <cmath>

#include "printing/page.h"

namespace velquon {

namespace {

double width_of(const QPainter& page, const QString& text) {
  return QFontMetricsF(page.font()).horizontalAdvance(text);
}

}  // namespace

void set_text_size(QPainter& page, int size, TextWeight weight) {
  QFont font = page.font();
  font.setPixelSize(size);
  font.setBold(weight == TextWeight::bold);
  // Letters that stand apart are not joined to ligatures, in which a reader's search finds no "field".
  constexpr double least_spacing = 1.0 / 64.0;
  font.setLetterSpacing(QFont::AbsoluteSpacing, least_spacing);
  page.setFont(font);
}

void print_text_right(QPainter& page, QPointF place, const QString& text) {
  print_text(page, place - QPointF(width_of(page, text), 0.0), text);
}

void print_text_centred(QPainter& page, QPointF place, const QString& text) {
  print_text(page, place - QPointF(width_of(page, text) / 2.0, 0.0), text);
}

QString sheet_number(double value) {
  constexpr int digits = 4;
  constexpr double long_number = 1e3;
  constexpr double too_long_number = 1e7;
  const double size = std::fabs(value);
  return size >= long_number && size < too_long_number ? QString::number(value, 'f', 0)
                                                       : QString::number(value, 'g', digits);
}

}  // namespace velquon
