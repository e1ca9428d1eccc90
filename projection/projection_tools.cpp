// The tape measure and the grab tool of the projection view.

#include <QAbstractButton>
#include <QLabel>
#include <QMouseEvent>
#include <cmath>

#include "widgets/cursors.h"
#include "widgets/number_text.h"
#include "projection/projection_view.h"

namespace velquon {

void ProjectionView::setTool(QAbstractButton* sender) {
  if (sender == outlets_.tape_tool) {
    tool_choice_ = Tool::tape;
  } else if (sender == outlets_.grab_tool) {
    tool_choice_ = Tool::grab;
  }
  hideTape();
  display();
  resetCursorRects();
}

void ProjectionView::setScaler(double scaler) {
  scaler_ = scaler;
  if (tape_visible_) {
    showReading(tapeLength());
  }
}

double ProjectionView::tapeLength() const {
  const QPointF span = tape_start_point_ - tape_end_point_;
  const double length = std::sqrt(span.x() * span.x() + span.y() * span.y());
  return length * scaler_ / static_cast<double>(zoom_factor_);
}

void ProjectionView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  if (tool_choice_ == Tool::tape) {
    tape_start_point_ = locationOf(*event);
  } else {
    last_grab_ = locationOf(*event);
  }
}

void ProjectionView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    return;
  }
  if (tool_choice_ == Tool::tape) {
    tape_visible_ = true;
    stretchTape(locationOf(*event));
  } else {
    grabTo(locationOf(*event));
  }
}

void ProjectionView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  if (tool_choice_ == Tool::tape) {
    stretchTape(locationOf(*event));
  } else {
    grabTo(locationOf(*event));
  }
}

void ProjectionView::resetCursorRects() {
  setCursor(tool_choice_ == Tool::tape ? cross_hair_cursor_ : grabber_cursor_);
}

void ProjectionView::makeCursors() {
  const double ratio = devicePixelRatioF();
  if (ratio == cursor_ratio_) {
    return;
  }
  cursor_ratio_ = ratio;
  cross_hair_cursor_ = cursor_named(QStringLiteral("crosshairs"), {7, 7}, ratio);
  grabber_cursor_ = cursor_named(QStringLiteral("grabber"), {8, 9}, ratio);
  resetCursorRects();
}

void ProjectionView::hideTape() {
  tape_visible_ = false;
  showReading(0.0);
}

void ProjectionView::showReading(double centimetres) {
  outlets_.tape_text->setText(QStringLiteral("D = %1 cm").arg(fixed_text(centimetres, 5, 2)));
}

void ProjectionView::stretchTape(QPointF place) {
  tape_end_point_ = place;
  showReading(tapeLength());
  display();
}

void ProjectionView::grabTo(QPointF place) {
  hideTape();
  const QPointF moved = last_grab_ - place;
  last_grab_ = place;
  OffV_ += moved.y();
  OffH_ -= moved.x();
  display();
}

}  // namespace velquon
