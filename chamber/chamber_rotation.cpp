// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The turntable of the chamber view.

#include <array>
#include <cmath>

#include "chamber/chamber_view.h"

namespace velquon {

namespace {

constexpr double microseconds_per_millisecond = 1.0e3;

}  // namespace

void ChamberView::setRotationRate(RotationRate rate) {
  model_.turntable().setRate(rate);
  model_.turntableChanged();
}

void ChamberView::doRotation(RotationDirection direction) {
  Q_EMIT windowWanted();
  if (model_.turntable().start(direction, clock_())) {
    // The one timer keeps a stop and a start at once from leaving two chains of steps.
    step_timer_.start(0);
  }
}

void ChamberView::rotate() {
  if (!is_rotating()) {
    return;
  }
  // What a frame costs does not slow the turntable down. The steps that fell due while a frame was
  // drawn are made at once, as a message for each would have to wait behind the next frame.
  Turntable& turntable = model_.turntable();
  const std::uint64_t now = clock_();
  const std::uint64_t steps = turntable.takeStepsDue(now);
  step_timer_.start(static_cast<int>(
      std::lround(static_cast<double>(turntable.untilNext(now)) / microseconds_per_millisecond)));

  constexpr std::array<Vector, 3> axes{along_x, along_y, along_z};
  const double angle = static_cast<double>(turntable.angle()) * static_cast<double>(steps);
  camera_.turn(angle, axes.at(static_cast<std::size_t>(turntable.axis() - 1)));
  displaySoon();
}

void ChamberView::stopRotating() {
  if (is_rotating()) {
    stopAndDisplay();
  } else {
    // The picture is the same, and most of what stops the turntable draws another next.
    displaySoon();
  }
}

void ChamberView::stopAndDisplay() {
  model_.turntable().stop();
  display();
}

void ChamberView::setRotationAxis(int axis) {
  model_.turntable().setAxis(axis);
  model_.turntableChanged();
}

void ChamberView::resetOrientation() {
  camera_ = Camera();
  stopAndDisplay();
}

}  // namespace velquon
