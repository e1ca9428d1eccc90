// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "widgets/gl_panel.h"

class QAction;

namespace velquon {

class TrackController;
class TrackModel;
class TrackPanel;

/// The window of the live track, with its controller.
class TrackWindow : public GLPanel {
  Q_OBJECT

 public:
  /// \param model what it shows
  explicit TrackWindow(TrackModel& model);
  ~TrackWindow() override;

  /// Puts choices and controls into their start-up state.
  void awakeFromNib();

  /// Makes each of the window's two buttons stand for a menu item.
  void setItems(QAction* inject_item, QAction* clear_item);

  /// Has a line at the foot of another window tell that this one is active, while it is.
  void tellStatusIn(QMainWindow& window);

  [[nodiscard]] TrackModel& model() { return model_; }
  [[nodiscard]] TrackPanel& panel() { return *panel_; }
  [[nodiscard]] TrackController& controller() { return *controller_; }

 private:
  TrackModel& model_;
  TrackPanel* panel_;
  std::unique_ptr<TrackController> controller_;
};

}  // namespace velquon
