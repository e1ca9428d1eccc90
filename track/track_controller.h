#pragma once

#include <QObject>
#include <cstdint>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace velquon {

class NewTrackView;
class ValueSlider;

/// What the track controller shows, hides, enables and disables. All of it outlives the controller.
struct TrackOutlets {
  QWidget* track_window = nullptr;
  NewTrackView* track_view = nullptr;
  ValueSlider* vSlider = nullptr;

  QAction* activate_item = nullptr;
  QAction* inject_item = nullptr;  ///< the view's, not the controller's
  // The items that carry the submenus of the choices.
  QAction* particle_selector = nullptr;
  QAction* direction_selector = nullptr;
  QAction* speed_selector = nullptr;
  QAction* screen_speed = nullptr;

  QAction* electron_item = nullptr;
  QAction* positron_item = nullptr;
  QAction* RtoL_item = nullptr;
  QAction* LtoR_item = nullptr;
  QAction* v_item = nullptr;
  QAction* two_v_item = nullptr;
  QAction* three_v_item = nullptr;
  QMenu* speed_menu = nullptr;  ///< of the screen speed
  QAction* slower_item = nullptr;
  QAction* faster_item = nullptr;
  QAction* default_item = nullptr;

  // Of the rest of the program.
  QMenu* action_menu = nullptr;
  QMenu* settings_menu = nullptr;
  QMenu* event_menu = nullptr;
  QAction* open_item = nullptr;
  QAction* save_item = nullptr;
};

/// The controller of the track window: shows and hides the window, switches the rest of the
/// program's menus off while it is active, and passes the choices on to the view.
class TrackController : public QObject {
  Q_OBJECT

 public:
  explicit TrackController(const TrackOutlets& outlets, QObject* parent = nullptr);

  /// Puts menus, view and slider into their start-up state, when all windows have been built.
  void awakeFromNib();

  /// Activates the track window, or deactivates and hides it.
  void setActivate(QAction* sender);
  [[nodiscard]] bool activated() const { return activated_; }
  void windowDidBecomeKey();
  void windowDidResignKey();

  void setParticle(QAction* sender);
  void setSpeed(QAction* sender);
  void setDirection(QAction* sender);
  /// Period of the steps from the next injection on.
  void setScreenSpeed(QAction* sender);

  /// \param on switches the track window's items on and the rest of the program's off, or the
  ///           reverse
  void doMenus(bool on);
  /// Whether an item of this controller is enabled in the present state.
  [[nodiscard]] bool validateMenuItem(const QAction* item) const;

  [[nodiscard]] ValueSlider* vSlider() const { return outlets_.vSlider; }
  void setVSlider(ValueSlider* slider) { outlets_.vSlider = slider; }

  [[nodiscard]] std::int32_t v_choice() const { return v_choice_; }
  [[nodiscard]] std::int32_t particle_choice() const { return particle_choice_; }
  [[nodiscard]] std::int32_t direction_choice() const { return direction_choice_; }

 Q_SIGNALS:
  /// The track window has become active, or no longer is.
  void activatedChanged(bool active);

 private:
  void connectItems();
  void validateMenuItems();
  [[nodiscard]] std::vector<QAction*> choiceItems() const;
  [[nodiscard]] std::vector<QAction*> ownItems() const;

  TrackOutlets outlets_;
  bool activated_ = false;
  std::int32_t v_choice_ = 2;          ///< 1, 2 or 3
  std::int32_t particle_choice_ = 1;   ///< 1 electron, 2 positron
  std::int32_t direction_choice_ = 1;  ///< 1 left to right, 2 right to left
};

}  // namespace velquon
