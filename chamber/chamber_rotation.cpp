// The turntable and the replay of the chamber view.

#include <GL/gl.h>

#include <QAction>
#include <algorithm>
#include <array>

#include "chamber/chamber_view.h"
#include "platform/clock.h"
#include "platform/delayed_message.h"

namespace velquon {

namespace {

constexpr float step_degrees = 0.5F;
constexpr std::int32_t replay_pause = 10'000;  // microseconds

// A turntable that is later than that, after the program stood still for a while, does not catch
// up.
constexpr std::uint64_t most_lateness = 250'000;  // microseconds

constexpr double microseconds_per_second = 1.0e6;

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
  next_step_at_ = Microseconds();
  scheduleRotation(0.0);
}

void ChamberView::scheduleRotation(double seconds) {
  perform_after(seconds, this, [this] { rotate(); });
}

void ChamberView::rotate() {
  if (!is_rotating_ || !makeContextCurrent()) {
    return;
  }
  // A step is due a delay after the one before it was, however late that came: what a frame costs
  // does not slow the turntable down. The steps that fell due while a frame was drawn are made at
  // once, as a message for each would have to wait behind the next frame.
  const std::uint64_t now = Microseconds();
  if (now > next_step_at_ + most_lateness) {
    next_step_at_ = now;
  }
  const auto delay = static_cast<std::uint64_t>(rot_delay_ * microseconds_per_second);
  const std::uint64_t late = now > next_step_at_ ? now - next_step_at_ : 0;
  const std::uint64_t steps_due = 1 + late / delay;
  next_step_at_ += steps_due * delay;
  scheduleRotation(next_step_at_ > now
                       ? static_cast<double>(next_step_at_ - now) / microseconds_per_second
                       : 0.0);

  constexpr std::array<std::array<float, 3>, 3> axes{
      {{1.0F, 0.0F, 0.0F}, {0.0F, 1.0F, 0.0F}, {0.0F, 0.0F, 1.0F}}};
  const auto& [x, y, z] = axes.at(static_cast<std::size_t>(rotation_axis_ - 1));
  glMatrixMode(GL_MODELVIEW);
  for (std::uint64_t step = 0; step < steps_due; ++step) {
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

void ChamberView::replay() {
  stopRotating();
  perform_after(rot_delay_, this, [this] { really_replay(); });
}

void ChamberView::really_replay() {
  const std::int16_t all_points = point_number_;
  stopRotating();
  for (std::int16_t shown = 1; shown <= all_points; ++shown) {
    point_number_ = shown;
    pauseForMicrosecs(replay_pause);
    display();
  }
  point_number_ = all_points;
}

void ChamberView::pauseForMicrosecs(std::int32_t microseconds) {
  const std::uint64_t start = Microseconds();
  while (Microseconds() - start <= static_cast<std::uint64_t>(microseconds)) {
  }
}

}  // namespace velquon
