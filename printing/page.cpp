// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/page.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QString>

namespace velquon {

QPen page_pen() {
  constexpr double line_width = 1.0;
  return {Qt::black, line_width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

void print_text(QPainter& page, QPointF place, const QString& text) {
  page.save();
  page.translate(place);
  page.scale(1.0, -1.0);
  page.drawText(QPointF(0.0, -QFontMetricsF(page.font()).descent()), text);
  page.restore();
}

void print_values(QPainter& page, const QString& values) {
  constexpr QPointF values_place{120.0, 645.0};
  print_text(page, values_place, values);
}

}  // namespace velquon
