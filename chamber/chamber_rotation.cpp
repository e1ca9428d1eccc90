// The turntable of the chamber view.

#include <GL/gl.h>

#include <QAction>
#include <algorithm>
#include <array>
#include <cmath>

#include "chamber/chamber_view.h"

namespace velquon {

namespace {

constexpr float step_degrees = 0.5F;
constexpr double microseconds_per_second = 1.0e6;
constexpr double microseconds_per_millisecond = 1.0e3;

}  // namespace

void ChamberView::setRotationRate(QAction* sender) {
  const std::array<std::pair<QAction*, double>, 3> rates{
      {{rotation_items_.rotate_faster_item, 0.005},
       {rotation_items_.default_rotate_item, 0.01},
       {rotation_items_.rotate_slower_item, 0.02}}};
  for (const auto& [item, seconds] : rates) {
    item->setChecked(item == sender);
    if (item == sender) {
      rot_delay_ = seconds;
    }
  }
}

void ChamberView::doRotation(QAction* sender) {
  Q_EMIT windowWanted();
  rot_angle_ = sender == rotation_items_.reverse_rotate_item ? -step_degrees : step_degrees;
  if (is_rotating_) {
    return;
  }
  is_rotating_ = true;
  pace_.start(clock_());
  // The one timer keeps a stop and a start at once from leaving two chains of steps.
  step_timer_.start(0);
}

void ChamberView::rotate() {
  if (!is_rotating_ || !makeContextCurrent()) {
    return;
  }
  // What a frame costs does not slow the turntable down. The steps that fell due while a frame was
  // drawn are made at once, as a message for each would have to wait behind the next frame.
  const std::uint64_t now = clock_();
  const auto delay = static_cast<std::uint64_t>(std::llround(rot_delay_ * microseconds_per_second));
  const std::uint64_t steps = pace_.takeStepsDue(now, delay);
  step_timer_.start(static_cast<int>(
      std::lround(static_cast<double>(pace_.untilNext(now)) / microseconds_per_millisecond)));

  constexpr std::array<std::array<float, 3>, 3> axes{
      {{1.0F, 0.0F, 0.0F}, {0.0F, 1.0F, 0.0F}, {0.0F, 0.0F, 1.0F}}};
  const auto& [x, y, z] = axes.at(static_cast<std::size_t>(rotation_axis_ - 1));
  glMatrixMode(GL_MODELVIEW);
  for (std::uint64_t step = 0; step < steps; ++step) {
    glRotatef(rot_angle_, x, y, z);
    ++rotation_steps_;
  }
  displaySoon();
}

void ChamberView::stopRotating() {
  is_rotating_ = false;
  display();
}

void ChamberView::setRotationAxis(int axis) {
  rotation_axis_ = std::clamp(axis, 1, 3);
}

void ChamberView::resetOrientation() {
  stopRotating();
  setUpView();
  display();
}

}  // namespace velquon
