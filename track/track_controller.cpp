// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_controller.h"

#include <QWidget>

#include "track/new_track_view.h"
#include "widgets/value_slider.h"
#include "widgets/window_order.h"

namespace velquon {

TrackController::TrackController(TrackModel& model, NewTrackView& view, ValueSlider& slider,
                                 QWidget& window)
    : model_(model), view_(view), slider_(&slider), window_(window) {}

void TrackController::awakeFromNib() {
  doMenus(false);
  view_.setSpeed(static_cast<float>(model_.speed()));
  view_.setCharge(charge_of(model_.particle()));
  view_.setDirection(number_of(model_.direction()));
  window_.setAttribute(Qt::WA_DeleteOnClose, false);
  slider_->setFloatValue(0.0F);
  slider_->setTracking(true);
}

void TrackController::setActivate() {
  if (!activated()) {
    bring_to_front(window_);
    return;
  }
  view_.stopTracking();
  window_.hide();
  model_.deactivate();
  Q_EMIT activatedChanged(false);
}

QString TrackController::activateTitle(const TrackModel& model) {
  return model.activated() ? tr("De&activate") : tr("&Activate");
}

void TrackController::windowDidBecomeKey() {
  if (activated()) {
    return;
  }
  model_.activate();
  view_.makeCurrent();
  Q_EMIT activatedChanged(true);
}

void TrackController::windowDidResignKey() {}

void TrackController::setParticle(TrackParticle particle) {
  model_.setParticle(particle);
}

void TrackController::setSpeed(int speed) {
  model_.setSpeed(speed);
}

void TrackController::setDirection(TrackDirection direction) {
  model_.setDirection(direction);
}

void TrackController::setScreenSpeed(ScreenSpeed speed) {
  model_.setScreenSpeed(speed);
}

void TrackController::doMenus(bool on) {
  model_.doMenus(on);
}

}  // namespace velquon
