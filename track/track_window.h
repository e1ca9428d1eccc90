// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include "widgets/gl_panel.h"

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
