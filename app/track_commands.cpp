// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/track_commands.h"

#include <QAction>
#include <QMenu>

#include "track/new_track_view.h"
#include "track/track_controller.h"
#include "ui_menus.h"
#include "widgets/commands.h"

namespace velquon {

namespace {

using ControllerOf = std::function<TrackController&()>;

std::vector<Command> choices(const Ui::Menus& menus, const TrackModel& model,
                             const ControllerOf& controller) {
  std::vector<Command> commands = one_of<TrackParticle>(
      {{menus.electron_item, TrackParticle::e_minus}, {menus.positron_item, TrackParticle::e_plus}},
      [controller](TrackParticle particle) { controller().setParticle(particle); },
      [&model] { return model.particle(); });
  const auto append = [&commands](const std::vector<Command>& more) {
    commands.insert(commands.end(), more.begin(), more.end());
  };
  append(one_of<int>(
      {{menus.v_item, 1}, {menus.two_v_item, 2}, {menus.three_v_item, 3}},
      [controller](int speed) { controller().setSpeed(speed); },
      [&model] { return model.speed(); }));
  append(one_of<TrackDirection>(
      {{menus.LtoR_item, TrackDirection::left_to_right},
       {menus.RtoL_item, TrackDirection::right_to_left}},
      [controller](TrackDirection direction) { controller().setDirection(direction); },
      [&model] { return model.direction(); }));
  return commands;
}

std::vector<Command> screen_speeds(const Ui::Menus& menus, const ControllerOf& controller) {
  std::vector<Command> commands;
  // None is checked: that of the start is none of them.
  for (const auto& [item, speed] : {std::pair{menus.faster_item, ScreenSpeed::faster},
                                    std::pair{menus.default_item, ScreenSpeed::standard},
                                    std::pair{menus.slower_item, ScreenSpeed::slower}}) {
    commands.push_back(
        {.item = item, .run = [controller, speed = speed] { controller().setScreenSpeed(speed); }});
  }
  return commands;
}

void enable_items(Commands& commands, const Ui::Menus& menus, const TrackModel& model) {
  const auto enable = [&](const QList<QAction*>& items, TrackItem item) {
    commands.enableBy(items, [&model, item] { return model.isEnabled(item); });
  };
  enable({menus.activate_item}, TrackItem::activate);
  enable({menus.inject_item}, TrackItem::inject);
  enable({menus.track_window_item}, TrackItem::window);
  enable({menus.open_item, menus.save_item, menus.chosen_event_item}, TrackItem::rest_of_program);
  for (QMenu* const menu : {menus.particle_menu, menus.direction_menu, menus.velocity_menu}) {
    enable(menu->actions() << menu->menuAction(), TrackItem::choice);
  }
  enable(menus.speed_menu->actions() << menus.speed_menu->menuAction(), TrackItem::screen_speed);
  for (const QMenu* const menu : {menus.action_menu, menus.settings_menu, menus.event_menu}) {
    enable(menu->actions(), TrackItem::rest_of_program);
  }
}

}  // namespace

void add_track_commands(Commands& commands, const Ui::Menus& menus, TrackModel& model,
                        const std::function<TrackController&()>& controller,
                        const std::function<NewTrackView*()>& view) {
  commands.add({.item = menus.activate_item,
                .run = [controller] { controller().setActivate(); },
                .title = [&model] { return TrackController::activateTitle(model); }});
  const auto in_view = [view](void (NewTrackView::*operation)()) {
    return [view, operation] {
      if (NewTrackView* const shown = view()) {
        (shown->*operation)();
      }
    };
  };
  commands.add({.item = menus.inject_item, .run = in_view(&NewTrackView::injectParticle)});
  commands.add({.item = menus.clear_screen_item, .run = in_view(&NewTrackView::clearScreen)});
  commands.add(choices(menus, model, controller));
  commands.add(screen_speeds(menus, controller));
  enable_items(commands, menus, model);
  commands.refreshOn(model.changed);
  // Whatever has been done to an item: when it is looked at, it tells the present state.
  for (const QMenu* const menu : {menus.track_menu, menus.particle_menu, menus.direction_menu,
                                  menus.velocity_menu, menus.speed_menu}) {
    QObject::connect(menu, &QMenu::aboutToShow, &commands, &Commands::refresh);
  }
}

}  // namespace velquon
