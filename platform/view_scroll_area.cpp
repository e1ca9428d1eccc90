#include "platform/view_scroll_area.h"

#include <QScrollBar>
#include <algorithm>

#include "platform/gl_view.h"

namespace velquon {

ViewScrollArea::ViewScrollArea(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
}

void ViewScrollArea::setView(GLView* view, QSize document) {
  view_ = view;
  document_ = document;
  updateGeometry();
  placeView();
}

void ViewScrollArea::scrollPoint(QPointF point) {
  horizontalScrollBar()->setValue(qRound(point.x()));
  verticalScrollBar()->setValue(document_.height() - viewport()->height() - qRound(point.y()));
}

QSize ViewScrollArea::sizeHint() const {
  return document_;
}

void ViewScrollArea::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  placeView();
}

void ViewScrollArea::scrollContentsBy(int /*dx*/, int /*dy*/) {
  placeView();
  view_->display();
}

void ViewScrollArea::placeView() {
  // A scroll bar that is there takes room that the whole document may not need once it is gone.
  const QSize without_bars = maximumViewportSize();
  const bool all_fits =
      without_bars.width() >= document_.width() && without_bars.height() >= document_.height();
  const QSize seen = all_fits ? without_bars : viewport()->size();
  const QSize hidden = (document_ - seen).expandedTo(QSize(0, 0));
  horizontalScrollBar()->setRange(0, hidden.width());
  verticalScrollBar()->setRange(0, hidden.height());
  horizontalScrollBar()->setPageStep(seen.width());
  verticalScrollBar()->setPageStep(seen.height());
  view_->setVisibleOrigin(
      {static_cast<qreal>(horizontalScrollBar()->value()),
       static_cast<qreal>(std::max(hidden.height() - verticalScrollBar()->value(), 0))});
  view_->setGeometry(viewport()->rect());
}

}  // namespace velquon
