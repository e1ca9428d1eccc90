// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/page_preview.h"

#include <QPainter>
#include <QTimer>

#include "printing/print_view.h"

namespace velquon {

PagePreview::PagePreview(PrintView& view, QWidget* parent) : QWidget(parent), view_(view) {}

void PagePreview::setPaper(QSizeF paper) {
  paper_ = paper;
  picture_ = {};
  stale_ = true;
  update();
}

void PagePreview::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  stale_ = true;
}

void PagePreview::paintEvent(QPaintEvent* /*event*/) {
  // Not before: a panel that comes up changes its sizes. And not here: a page takes a tenth of a
  // second, and the panel is there before it.
  if (stale_ && !due_) {
    due_ = true;
    QTimer::singleShot(0, this, &PagePreview::drawPicture);
  }
  QPainter painter(this);
  const QSizeF shown = stale_ ? paper_.scaled(QSizeF(size()), Qt::KeepAspectRatio)
                              : picture_.deviceIndependentSize();
  const QRectF sheet(QPointF((width() - shown.width()) / 2.0, (height() - shown.height()) / 2.0),
                     shown);
  if (picture_.isNull()) {
    painter.fillRect(sheet, Qt::white);
  } else {
    // Of another size until it is drawn anew.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, stale_);
    painter.drawImage(sheet, picture_);
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(sheet.adjusted(0.0, 0.0, -1.0, -1.0));
}

void PagePreview::drawPicture() {
  due_ = false;
  stale_ = false;
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
  update();
}

}  // namespace velquon
