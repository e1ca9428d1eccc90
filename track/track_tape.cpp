// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The tape measure of the track view.

#include <GL/gl.h>

#include <QMouseEvent>

#include "model/track_model.h"
#include "track/new_track_view.h"

namespace velquon {

double NewTrackView::tapeLength() const {
  return model_->tapeLength();
}

void NewTrackView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  model_->press(place_of(locationOf(*event)));
}

void NewTrackView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    return;
  }
  model_->drag(place_of(locationOf(*event)));
  drawing_.showAll();
  redraw();
}

void NewTrackView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  clearColorBuffer();
  model_->release(place_of(locationOf(*event)));
  // The whole track now, also after a click that was no drag, and with the next drawing again.
  drawing_.showAll();
  redraw();
  drawing_.showAll();
}

void NewTrackView::drawTape() const {
  const Tape tape = model_->tape();
  glColor3f(1.0F, 0.0F, 0.0F);
  glBegin(GL_LINES);
  glVertex3d(tape.start.x, tape.start.y, 0.0);
  glVertex3d(tape.end.x, tape.end.y, 0.0);
  glEnd();
}

}  // namespace velquon
