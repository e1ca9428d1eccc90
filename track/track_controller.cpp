#include "track/track_controller.h"

#include <QAction>
#include <QMenu>
#include <array>
#include <initializer_list>
#include <utility>

#include "widgets/value_slider.h"
#include "widgets/window_order.h"
#include "track/new_track_view.h"

namespace velquon {

namespace {

constexpr double faster_period = 0.005;  // seconds
constexpr double slower_period = 0.02;   // seconds

constexpr std::array<float, 2> charges{-1.0F, 1.0F};  // of the particle choices 1 and 2

using Choice = std::pair<QAction*, std::int32_t>;

/// Checks the sender and unchecks the other items of its group.
/// \return the sender's choice, or the present one when it is none of the group's
std::int32_t chosen(QAction* sender, std::initializer_list<Choice> group, std::int32_t present) {
  for (const auto& [sender_item, choice] : group) {
    if (sender_item == sender) {
      for (const auto& [item, other_choice] : group) {
        item->setChecked(item == sender);
      }
      return choice;
    }
  }
  return present;
}

}  // namespace

TrackController::TrackController(const TrackOutlets& outlets, QObject* parent)
    : QObject(parent), outlets_(outlets) {
  outlets_.track_view->setTrackController(this);
  connectItems();
}

void TrackController::connectItems() {
  using Action = void (TrackController::*)(QAction*);
  const TrackOutlets& o = outlets_;
  const std::initializer_list<std::pair<QAction*, Action>> actions{
      {o.activate_item, &TrackController::setActivate},
      {o.electron_item, &TrackController::setParticle},
      {o.positron_item, &TrackController::setParticle},
      {o.v_item, &TrackController::setSpeed},
      {o.two_v_item, &TrackController::setSpeed},
      {o.three_v_item, &TrackController::setSpeed},
      {o.LtoR_item, &TrackController::setDirection},
      {o.RtoL_item, &TrackController::setDirection},
      {o.slower_item, &TrackController::setScreenSpeed},
      {o.faster_item, &TrackController::setScreenSpeed},
      {o.default_item, &TrackController::setScreenSpeed}};
  for (const auto& [item, action] : actions) {
    connect(item, &QAction::triggered, this,
            [this, item = item, action = action] { (this->*action)(item); });
  }
  connect(o.track_view, &NewTrackView::trackingChanged, this, &TrackController::validateMenuItems);
  // Whatever has been done to an item: when it is looked at, it tells the present state.
  for (QAction* item : ownItems()) {
    for (QObject* holder : item->associatedObjects()) {
      if (auto* menu = qobject_cast<QMenu*>(holder)) {
        connect(menu, &QMenu::aboutToShow, this, &TrackController::validateMenuItems,
                Qt::UniqueConnection);
      }
    }
  }
}

void TrackController::awakeFromNib() {
  doMenus(false);
  outlets_.track_view->setSpeed(static_cast<float>(v_choice_));
  outlets_.track_view->setCharge(charges.front());
  outlets_.track_view->setDirection(direction_choice_);
  outlets_.track_window->setAttribute(Qt::WA_DeleteOnClose, false);
  outlets_.vSlider->setFloatValue(0.0F);
  outlets_.vSlider->setTracking(true);
}

void TrackController::setActivate(QAction* sender) {
  if (!activated_) {
    bring_to_front(*outlets_.track_window);
    return;
  }
  sender->setText(tr("&Activate"));
  outlets_.track_view->stopTracking();
  outlets_.track_window->hide();
  activated_ = false;
  doMenus(false);
  Q_EMIT activatedChanged(false);
}

void TrackController::windowDidBecomeKey() {
  if (activated_) {
    return;
  }
  outlets_.activate_item->setText(tr("De&activate"));
  activated_ = true;
  doMenus(true);
  outlets_.track_view->makeCurrent();
  Q_EMIT activatedChanged(true);
}

void TrackController::windowDidResignKey() {}

void TrackController::setParticle(QAction* sender) {
  const std::int32_t choice =
      chosen(sender, {{outlets_.electron_item, 1}, {outlets_.positron_item, 2}}, 0);
  if (choice != 0) {
    particle_choice_ = choice;
    outlets_.track_view->setCharge(charges.at(static_cast<std::size_t>(choice - 1)));
  }
}

void TrackController::setSpeed(QAction* sender) {
  v_choice_ =
      chosen(sender, {{outlets_.v_item, 1}, {outlets_.two_v_item, 2}, {outlets_.three_v_item, 3}},
             v_choice_);
  outlets_.track_view->setSpeed(static_cast<float>(v_choice_));
}

void TrackController::setDirection(QAction* sender) {
  direction_choice_ =
      chosen(sender, {{outlets_.LtoR_item, 1}, {outlets_.RtoL_item, 2}}, direction_choice_);
  outlets_.track_view->setDirection(direction_choice_);
}

void TrackController::setScreenSpeed(QAction* sender) {
  outlets_.track_view->setTimerSecs(sender == outlets_.faster_item ? faster_period : slower_period);
}

void TrackController::doMenus(bool on) {
  const TrackOutlets& o = outlets_;
  o.open_item->setEnabled(!on);
  o.save_item->setEnabled(!on);
  o.inject_item->setEnabled(on);
  o.screen_speed->setEnabled(on);
  for (QAction* item : choiceItems()) {
    item->setEnabled(on);
  }
  if (o.track_view->is_tracking()) {
    o.screen_speed->setEnabled(true);
    for (QAction* item : o.speed_menu->actions()) {
      item->setEnabled(true);
    }
  }
  for (const QMenu* menu : {o.action_menu, o.settings_menu, o.event_menu}) {
    for (QAction* item : menu->actions()) {
      item->setEnabled(!on);
    }
  }
  validateMenuItems();
}

bool TrackController::validateMenuItem(const QAction* item) const {
  if (item == outlets_.activate_item) {
    return true;  // else the window could never be activated
  }
  const bool of_screen_speed =
      item == outlets_.screen_speed ||
      item->associatedObjects().contains(static_cast<QObject*>(outlets_.speed_menu));
  return activated_ && (of_screen_speed || !outlets_.track_view->is_tracking());
}

void TrackController::validateMenuItems() {
  for (QAction* item : ownItems()) {
    item->setEnabled(validateMenuItem(item));
  }
}

std::vector<QAction*> TrackController::choiceItems() const {
  const TrackOutlets& o = outlets_;
  return {
      o.direction_selector, o.RtoL_item,    o.LtoR_item,         o.speed_selector, o.v_item,
      o.two_v_item,         o.three_v_item, o.particle_selector, o.electron_item,  o.positron_item};
}

std::vector<QAction*> TrackController::ownItems() const {
  std::vector<QAction*> items = choiceItems();
  items.push_back(outlets_.activate_item);
  items.push_back(outlets_.screen_speed);
  for (QAction* item : outlets_.speed_menu->actions()) {
    items.push_back(item);
  }
  return items;
}

}  // namespace velquon
