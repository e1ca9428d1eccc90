// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/page_preview.h"

#include <QPainter>

#include "printing/print_view.h"

namespace velquon {

PagePreview::PagePreview(PrintView& view, QWidget* parent) : QWidget(parent), view_(view) {}

void PagePreview::setPaper(QSizeF paper) {
  paper_ = paper;
  stale_ = true;
  update();
}

void PagePreview::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  stale_ = true;
}

void PagePreview::paintEvent(QPaintEvent* /*event*/) {
  // Not before: a page takes a tenth of a second, and a panel that comes up changes its sizes.
  if (stale_) {
    stale_ = false;
    drawPicture();
  }
  QPainter painter(this);
  const QSizeF shown = picture_.deviceIndependentSize();
  const QPointF corner((width() - shown.width()) / 2.0, (height() - shown.height()) / 2.0);
  painter.drawImage(corner, picture_);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(QRectF(corner, shown).adjusted(0.0, 0.0, -1.0, -1.0));
}

void PagePreview::drawPicture() {
  const double ratio = devicePixelRatioF();
  const QSizeF room = QSizeF(size()) * ratio;
  picture_ = QImage(paper_.scaled(room, Qt::KeepAspectRatio).toSize(), QImage::Format_RGB32);
  if (!picture_.isNull()) {
    picture_.fill(Qt::white);
    QPainter page(&picture_);
    page.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double pixels_per_point = picture_.width() / paper_.width();
    page.scale(pixels_per_point, pixels_per_point);
    view_.draw(page, paper_);
    page.end();
    picture_.setDevicePixelRatio(ratio);
  }
}

}  // namespace velquon
