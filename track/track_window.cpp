#include "track/track_window.h"

#include <QMenu>

#include "track/track_status.h"
#include "track/new_track_view.h"
#include "track/track_controller.h"
#include "track/track_panel.h"
#include "ui_menus.h"

namespace velquon {

TrackWindow::TrackWindow(const Ui::Menus& menus) : panel_(new TrackPanel(this)) {
  setWindowTitle(tr("Track"));
  setContent(panel_);
  connectItems(menus);
  connectWindowItem(*menus.track_window_item);
}

TrackWindow::~TrackWindow() = default;

void TrackWindow::awakeFromNib() {
  controller_->awakeFromNib();
}

void TrackWindow::tellStatusIn(QMainWindow& window) {
  auto* const status = new TrackStatus(window);
  connect(controller_.get(), &TrackController::activatedChanged, status, &TrackStatus::setActive);
}

void TrackWindow::connectItems(const Ui::Menus& menus) {
  controller_ = std::make_unique<TrackController>(
      TrackOutlets{.track_window = this,
                   .track_view = panel_->track_view(),
                   .vSlider = panel_->vSlider(),
                   .activate_item = menus.activate_item,
                   .inject_item = menus.inject_item,
                   .particle_selector = menus.particle_menu->menuAction(),
                   .direction_selector = menus.direction_menu->menuAction(),
                   .speed_selector = menus.velocity_menu->menuAction(),
                   .screen_speed = menus.speed_menu->menuAction(),
                   .electron_item = menus.electron_item,
                   .positron_item = menus.positron_item,
                   .RtoL_item = menus.RtoL_item,
                   .LtoR_item = menus.LtoR_item,
                   .v_item = menus.v_item,
                   .two_v_item = menus.two_v_item,
                   .three_v_item = menus.three_v_item,
                   .speed_menu = menus.speed_menu,
                   .slower_item = menus.slower_item,
                   .faster_item = menus.faster_item,
                   .default_item = menus.default_item,
                   .action_menu = menus.action_menu,
                   .settings_menu = menus.settings_menu,
                   .event_menu = menus.event_menu,
                   .open_item = menus.open_item,
                   .save_item = menus.save_item});
  panel_->setItems(menus.inject_item, menus.clear_screen_item);
  connect(this, &GLPanel::becameKey, controller_.get(), &TrackController::windowDidBecomeKey);
  connect(this, &GLPanel::resignedKey, controller_.get(), &TrackController::windowDidResignKey);
}

void TrackWindow::connectWindowItem(QAction& track_window_item) {
  connect(&track_window_item, &QAction::triggered, this, &GLPanel::makeKeyAndOrderFront);
  connect(controller_.get(), &TrackController::activatedChanged, &track_window_item,
          &QAction::setEnabled);
}

}  // namespace velquon
