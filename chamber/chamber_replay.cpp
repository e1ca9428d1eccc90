// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The replay of the chamber view.

#include <QWindow>

#include "chamber/chamber_view.h"
#include "chamber/input_watch.h"
#include "widgets/delayed_message.h"

namespace velquon {

namespace {

constexpr std::int32_t replay_pause = 10'000;  // microseconds

// A window that was asked for needs some hundredths of a second to come up. One that does not come
// up at all, being on another of the desktop's workspaces, does not hold the replay back for ever.
constexpr double look_again = 0.005;  // seconds
constexpr int most_looks = 400;

/// Whether a window is on its way to the screen, where nothing can be seen of it yet.
bool is_coming_up(const QWidget& window) {
  return window.isVisible() && !window.isMinimized() && window.windowHandle() != nullptr &&
         !window.windowHandle()->isExposed();
}

}  // namespace

void ChamberView::replay() {
  stopAndDisplay();
  // Neither while a replay is due nor for what was pressed while one ran.
  if (input_watch_ != nullptr || late_input_.is_handled()) {
    return;
  }
  input_watch_ = std::make_unique<InputWatch>(*this);
  perform_after(rot_delay(), this, [this] { replayOnceSeen(most_looks); });
}

void ChamberView::replayOnceSeen(int looks_left) {
  if (looks_left > 0 && is_coming_up(*window())) {
    perform_after(look_again, this, [this, looks_left] { replayOnceSeen(looks_left - 1); });
    return;
  }
  really_replay();
  if (const auto last_press = input_watch_->lastPress()) {
    late_input_.setLatest(*last_press);
  }
  input_watch_.reset();
}

void ChamberView::really_replay() {
  const std::int16_t all_points = point_number_;
  stopAndDisplay();
  for (std::int16_t shown = 1; shown <= all_points; ++shown) {
    if (input_watch_ != nullptr && input_watch_->endIsWanted()) {
      point_number_ = all_points;
      display();
      break;
    }
    point_number_ = shown;
    pauseForMicrosecs(replay_pause);
    display();
  }
  point_number_ = all_points;
}

void ChamberView::pauseForMicrosecs(std::int32_t microseconds) const {
  pause_for_microseconds(microseconds, clock_);
}

}  // namespace velquon
