// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/view_scroll_area.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "widgets/gl_view.h"

namespace velquon {

namespace {

// On a screen with a broken scale a window comes out that much smaller than what was asked for.
constexpr int rounding = 2;

}  // namespace

ViewScrollArea::ViewScrollArea(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
}

void ViewScrollArea::setView(GLView* view, QSize document) {
  view_ = view;
  document_ = document;
  updateGeometry();
  placeView();
}

void ViewScrollArea::scrollPoint(QPointF point) {
  lower_left_ = point;
  placeView();
  view_->display();
}

QSize ViewScrollArea::sizeHint() const {
  return document_;
}

void ViewScrollArea::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  placeView();
}

void ViewScrollArea::scrollContentsBy(int /*dx*/, int /*dy*/) {
  if (placing_) {
    return;
  }
  lower_left_.reset();
  placeView();
  view_->display();
}

void ViewScrollArea::placeView() {
  const QScopedValueRollback placing(placing_, true);
  // A scroll bar that is there takes room that the whole document may not need once it is gone.
  const QSize without_bars = maximumViewportSize();
  const QSize short_of = document_ - without_bars;
  const bool all_fits = short_of.width() <= rounding && short_of.height() <= rounding;
  showBars(!all_fits);
  const QSize seen = all_fits ? without_bars : viewport()->size();
  const QSize hidden = all_fits ? QSize(0, 0) : (document_ - seen).expandedTo(QSize(0, 0));
  horizontalScrollBar()->setRange(0, hidden.width());
  verticalScrollBar()->setRange(0, hidden.height());
  horizontalScrollBar()->setPageStep(seen.width());
  verticalScrollBar()->setPageStep(seen.height());
  goToPoint();
  view_->setVisibleOrigin(
      {static_cast<qreal>(horizontalScrollBar()->value()),
       static_cast<qreal>(std::max(hidden.height() - verticalScrollBar()->value(), 0))});
  view_->setGeometry(viewport()->rect());
}

void ViewScrollArea::goToPoint() {
  if (lower_left_) {
    horizontalScrollBar()->setValue(qRound(lower_left_->x()));
    verticalScrollBar()->setValue(verticalScrollBar()->maximum() - qRound(lower_left_->y()));
  }
}

void ViewScrollArea::showBars(bool needed) {
  // Keys have something to do here only while a part is out of sight.
  setFocusPolicy(needed ? Qt::StrongFocus : Qt::NoFocus);
  if (!needed) {
    clearFocus();
  }
  // Taken away at once: by itself a bar goes later, and the view would be drawn at two sizes.
  const auto bars = needed ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
  if (horizontalScrollBarPolicy() != bars) {
    setHorizontalScrollBarPolicy(bars);
    setVerticalScrollBarPolicy(bars);
  }
}

}  // namespace velquon
