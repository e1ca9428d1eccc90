// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/view_scroll_area.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "widgets/gl_view.h"
#include "widgets/presented_places.h"

namespace velquon {

namespace {

// On a screen with a broken scale a window comes out that much smaller than what was asked for.
constexpr int rounding = 2;

}  // namespace

ViewScrollArea::ViewScrollArea(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  QPalette around_picture = viewport()->palette();
  around_picture.setColor(viewport()->backgroundRole(), Qt::black);
  viewport()->setPalette(around_picture);
  viewport()->setAutoFillBackground(false);
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

void ViewScrollArea::present(QWidget* panel) {
  if (panel != nullptr && panel_ == nullptr && !lower_left_) {
    // A screen that shows all has no place in its bars for what was scrolled to.
    lower_left_ = view_->visibleRect().topLeft();
  }
  if (panel_ != nullptr) {
    panel_->hide();
  }
  panel_ = panel;
  viewport()->setAutoFillBackground(panel != nullptr);
  if (panel != nullptr) {
    panel->setParent(viewport());
    panel->show();
  }
  placeView();
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

void ViewScrollArea::placePresented() {
  showBars(false);
  horizontalScrollBar()->setRange(0, 0);
  verticalScrollBar()->setRange(0, 0);
  const auto places = presented_places(maximumViewportSize(), document_);
  view_->setVisibleOrigin({0.0, 0.0});
  view_->place(places.picture, places.magnification);
  panel_->setGeometry(places.panel);
}

void ViewScrollArea::placeView() {
  const QScopedValueRollback placing(placing_, true);
  if (panel_ != nullptr) {
    placePresented();
    return;
  }
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
  view_->place(viewport()->rect(), 1.0);
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
