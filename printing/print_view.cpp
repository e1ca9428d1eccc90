// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/print_view.h"

#include <QDateTime>
#include <QLocale>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <utility>

#include "printing/page.h"

namespace velquon {

namespace {

constexpr int font_size = 12;  // points

constexpr QPointF date_place(0.0, 700.0);
constexpr QPointF title_place(120.0, 675.0);

QString date_text() {
  return QLocale::c().toString(QDateTime::currentDateTime(),
                               QStringLiteral("ddd MM/dd/yy hh:mm AP"));
}

/// Puts the origin at the page's lower left corner with y upwards.
void place_page(QPainter& painter, QSizeF paper) {
  const double fit = std::min({1.0, (paper.width() - 2.0 * page_margin) / page_size.width(),
                               (paper.height() - 2.0 * page_margin) / page_size.height()});
  painter.translate((paper.width() - fit * page_size.width()) / 2.0,
                    (paper.height() + fit * page_size.height()) / 2.0);
  painter.scale(fit, -fit);
  painter.setClipRect(QRectF(QPointF(0.0, 0.0), page_size));
}

}  // namespace

PrintView::PrintView(Printable& pview, QString title, QString values)
    : pview_(pview), title_(std::move(title)), values_(std::move(values)) {}

bool PrintView::print(QPagedPaintDevice& device) {
  QPainter page;
  if (!page.begin(&device)) {
    return false;
  }
  const QPageLayout layout = device.pageLayout();
  page.scale(device.logicalDpiX() / points_per_inch, device.logicalDpiY() / points_per_inch);
  page.translate(-layout.paintRect(QPageLayout::Point).topLeft());
  draw(page, layout.fullRect(QPageLayout::Point).size());
  return page.end();
}

void PrintView::draw(QPainter& page, QSizeF paper) {
  place_page(page, paper);
  QFont font = page.font();
  font.setPixelSize(font_size);
  page.setFont(font);
  page.setPen(page_pen());
  drawRect(page);
}

void PrintView::drawRect(QPainter& page) {
  print_text(page, date_place, date_text());
  print_text(page, title_place, title_);
  pview_.paint(page);
  if (!values_.isEmpty()) {
    print_values(page, values_);
  }
}

}  // namespace velquon
