#pragma once

#include <memory>

#include "widgets/gl_panel.h"

class QAction;

namespace Ui {
class Menus;
}

namespace velquon {

class TrackController;
class TrackPanel;

/// The window of the live track, with its controller.
class TrackWindow : public GLPanel {
  Q_OBJECT

 public:
  explicit TrackWindow(const Ui::Menus& menus);
  ~TrackWindow() override;

  /// Puts menus and controls into their start-up state.
  void awakeFromNib();

  /// Has a line at the foot of another window tell that this one is active, while it is.
  void tellStatusIn(QMainWindow& window);

  [[nodiscard]] TrackPanel& panel() { return *panel_; }
  [[nodiscard]] TrackController& controller() { return *controller_; }

 private:
  void connectItems(const Ui::Menus& menus);
  /// The way back to the window when it was closed while active.
  void connectWindowItem(QAction& track_window_item);

  TrackPanel* panel_;
  std::unique_ptr<TrackController> controller_;
};

}  // namespace velquon
