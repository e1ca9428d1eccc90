// The tape measure of the track view.

#include <GL/gl.h>

#include <QLabel>
#include <QMouseEvent>
#include <cmath>

#include "widgets/number_text.h"
#include "track/new_track_view.h"

namespace velquon {

namespace {

constexpr double reading_per_view_unit = 0.1;

}  // namespace

double NewTrackView::tapeLength() const {
  const QPointF span = tape_end_point_ - tape_start_point_;
  return reading_per_view_unit * std::hypot(span.x(), span.y());
}

void NewTrackView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  tape_start_point_ = locationOf(*event);
}

void NewTrackView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    return;
  }
  simulation_.stretching = true;
  simulation_.do_all = true;
  tape_end_point_ = locationOf(*event);
  redraw();
}

void NewTrackView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  tape_end_point_ = locationOf(*event);
  clearColorBuffer();
  simulation_.stretching = false;
  // The whole track now, also after a click that was no drag, and with the next drawing again.
  simulation_.do_all = true;
  redraw();
  simulation_.do_all = true;
}

void NewTrackView::drawTape() {
  tape_box_->setText(QStringLiteral("D = %1").arg(fixed_text(tapeLength(), 5, 2)));
  glColor3f(1.0F, 0.0F, 0.0F);
  glBegin(GL_LINES);
  glVertex3d(tape_start_point_.x(), tape_start_point_.y(), 0.0);
  glVertex3d(tape_end_point_.x(), tape_end_point_.y(), 0.0);
  glEnd();
}

}  // namespace velquon
