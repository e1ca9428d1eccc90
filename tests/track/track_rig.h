// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAction>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPoint>
#include <memory>
#include <vector>

#include "model/track_model.h"
#include "track/new_track_view.h"
#include "track/track_controller.h"
#include "track/track_panel.h"
#include "ui_menus.h"
#include "widgets/commands.h"
#include "widgets/gl_panel.h"
#include "widgets/value_slider.h"

namespace velquon::test {

/// The track window with the program's menus, of which the Track menu is in its bar, and without the
/// rest of the program. Made hidden and inactive.
class TrackRig {
 public:
  TrackRig();
  ~TrackRig();
  TrackRig(const TrackRig&) = delete;
  TrackRig& operator=(const TrackRig&) = delete;

  /// Activates the window by its menu item and waits until it is there.
  void activate();
  /// Deactivates it likewise and waits until another has the keyboard.
  void deactivate();

  /// Injects by the menu item and waits for the start; the timer stands still then.
  void injectAndHold();
  /// Steps of the held run.
  void step(int count);
  /// Steps while the window is out of sight, which costs no drawing.
  void stepHidden(int count);
  /// Injects, flies straight on and circles then with a field.
  void injectAndCircle(int straight_steps, double field, int steps);

  /// Waits for the end of a run that goes on by its timer.
  [[nodiscard]] bool waitForEnd() const;

  [[nodiscard]] QImage picture() const { return view->grabFramebuffer(); }
  /// The pixels of a kind, in view coordinates.
  [[nodiscard]] std::vector<QPoint> whitePixels() const;
  [[nodiscard]] std::vector<QPoint> redPixels() const;

  TrackModel model;
  GLPanel* window = nullptr;
  TrackPanel* panel = nullptr;
  NewTrackView* view = nullptr;
  ValueSlider* slider = nullptr;

  QMenuBar bar_of_menus;
  Ui::Menus menus{};
  QAction *activate_item = nullptr, *inject_item = nullptr, *clear_item = nullptr;
  QAction *electron_item = nullptr, *positron_item = nullptr;
  QAction *LtoR_item = nullptr, *RtoL_item = nullptr;
  QAction *v_item = nullptr, *two_v_item = nullptr, *three_v_item = nullptr;
  QAction *faster_item = nullptr, *default_item = nullptr, *slower_item = nullptr;

  Commands commands;
  std::unique_ptr<TrackController> controller;

 private:
  void makeMenus();
};

}  // namespace velquon::test
