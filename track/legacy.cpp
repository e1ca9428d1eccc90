// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the track view did before it had the step timer, kept to compare the timed steps with, and what
// menu items asked before they followed the model. No path of the program leads here.

#include <QDebug>
#include <QTimer>

#include "model/track_model.h"
#include "track/new_track_view.h"
#include "track/track_controller.h"

namespace velquon {

namespace {

constexpr double Bset = 0.0;  // the field of the old slider

constexpr TrackStart legacy_start{.y = 235.0, .time_interval = 0.25};

}  // namespace

void NewTrackView::setScreenSpeed(double microseconds) {
  musecs_ = static_cast<std::int32_t>(microseconds);
}

std::int32_t NewTrackView::musecs() const {
  return musecs_;
}

bool NewTrackView::pause() const {
  return pause_;
}

void NewTrackView::sliderSet() {
  model_->takeField(Bset, Bset);
  if (is_tracking()) {
    TrackWithTimer(trackTimer_.get());
  }
}

void NewTrackView::goAhead() {
  pause_ = false;
}

void NewTrackView::TestTimer(QTimer* timer) {
  qInfo("timer fired");
  timer->stop();
}

void NewTrackView::OldtrackOnScreen() {
  model_->enter(legacy_start);
  drawing_.losePicture();
  while (model_->simulation().isInLegacyArea() && is_tracking()) {
    pause_ = true;
    step();
  }
  endRun();
}

bool TrackController::validateMenuItem(TrackItem item) const {
  return model_.isEnabled(item);
}

}  // namespace velquon
