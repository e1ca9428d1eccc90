// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_window.h"

#include "track/new_track_view.h"
#include "track/track_controller.h"
#include "track/track_panel.h"
#include "track/track_status.h"
#include "widgets/value_slider.h"

namespace velquon {

TrackWindow::TrackWindow(TrackModel& model)
    : model_(model),
      panel_(new TrackPanel(model, this)),
      controller_(std::make_unique<TrackController>(model, *panel_->track_view(),
                                                    *panel_->vSlider(), *this)) {
  setTitle(tr("Live Track"));
  setContent(panel_);
  connect(this, &GLPanel::becameKey, controller_.get(), &TrackController::windowDidBecomeKey);
  connect(this, &GLPanel::resignedKey, controller_.get(), &TrackController::windowDidResignKey);
}

TrackWindow::~TrackWindow() = default;

void TrackWindow::awakeFromNib() {
  controller_->awakeFromNib();
}

void TrackWindow::tellStatusIn(QMainWindow& window) {
  auto* const status = new TrackStatus(window);
  connect(controller_.get(), &TrackController::activatedChanged, status, &TrackStatus::setActive);
}

}  // namespace velquon
