// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/chamber_commands.h"

#include <QMenu>

#include "app/chamber_controller.h"
#include "chamber/chamber_view.h"
#include "ui_menus.h"
#include "widgets/commands.h"

namespace velquon {

namespace {

/// The items of a menu with their places in it, counted from a first number.
std::vector<std::pair<QAction*, int>> numbered_items(const QMenu& menu, int first) {
  std::vector<std::pair<QAction*, int>> items;
  for (QAction* const item : menu.actions()) {
    items.emplace_back(item, first++);
  }
  return items;
}

void add_actions(Commands& commands, const Ui::Menus& menus, ChamberController& controller,
                 ChamberView& view) {
  commands.add(
      {{.item = menus.new_event_item, .run = [&] { controller.makeNewEvent(); }},
       {.item = menus.previous_event_item,
        .run = [&] { controller.showPreviousEvent(); },
        .is_enabled = [&] { return controller.model().hasPreviousEvent(); }},
       {.item = menus.next_event_item,
        .run = [&] { controller.showNextEvent(); },
        .is_enabled = [&] { return controller.model().hasNextEvent(); }},
       {.item = menus.replay_item, .run = [&] { view.replay(); }},
       {.item = menus.rotate_item, .run = [&] { view.doRotation(RotationDirection::forward); }},
       {.item = menus.reverse_rotate_item,
        .run = [&] { view.doRotation(RotationDirection::reverse); }},
       {.item = menus.reset_orientation_item, .run = [&] { view.resetOrientation(); }},
       {.item = menus.print_item,
        .run = [&] { controller.print(); },
        .is_enabled = [&] { return controller.printView() != nullptr; }}});
}

void add_settings(Commands& commands, const Ui::Menus& menus, ChamberController& controller,
                  ChamberView& view) {
  const auto toggle = [&](ChamberPreference preference) {
    return [&controller, preference] { controller.set_chamber_prefs(preference); };
  };
  const auto choice = [&](QAction* item, bool ChamberPreferences::*preference) {
    return Command{
        .item = item,
        .run = [&controller, preference] { controller.togglePreference(preference); },
        .is_checked = [&controller,
                       preference] { return controller.model().preferences().*preference; }};
  };
  commands.add({choice(menus.legend_item, &ChamberPreferences::show_legend),
                choice(menus.axis_letters_item, &ChamberPreferences::axis_letters),
                choice(menus.field_arrow_item, &ChamberPreferences::field_arrow),
                choice(menus.colored_projector_item, &ChamberPreferences::colored_projector)});
  commands.add({{.item = menus.axes_item,
                 .run = toggle(ChamberPreference::axes),
                 .is_checked = [&] { return view.show_axes(); }},
                {.item = menus.values_item,
                 .run = toggle(ChamberPreference::values),
                 .is_checked = [&] { return view.show_values(); }},
                {.item = menus.reset_each_item,
                 .run = toggle(ChamberPreference::reset_each),
                 .is_checked = [&] { return view.reset_each(); }},
                {.item = menus.slomo_item,
                 .run = [&] { controller.set_slomo(); },
                 .is_checked = [&] { return view.slomo(); }}});
}

void add_choices(Commands& commands, const Ui::Menus& menus, ChamberController& controller,
                 ChamberView& view) {
  const auto& turntable = controller.model().turntable();
  commands.add(one_of<int>(
      numbered_items(*menus.event_menu, 0), [&](int type) { controller.set_event_type(type); },
      [&] { return view.event_type(); }));
  commands.add({.item = menus.chosen_event_item, .title = [&] {
                  const auto kinds = menus.event_menu->actions();
                  const int chosen = controller.model().event_type();
                  return kinds.value(chosen, menus.chosen_event_item)->text();
                }});
  commands.add(one_of<int>(
      numbered_items(*menus.axis_menu, 1), [&](int axis) { controller.set_axis(axis); },
      [&] { return view.rotation_axis(); }));
  commands.add(one_of<RotationRate>(
      {{menus.rotate_faster_item, RotationRate::faster},
       {menus.default_rotate_item, RotationRate::standard},
       {menus.rotate_slower_item, RotationRate::slower}},
      [&](RotationRate rate) { view.setRotationRate(rate); },
      [&turntable] { return turntable.rate(); }));
  commands.add(one_of<Monitor>(
      {{menus.mon_chamber, Monitor::chamber}, {menus.mon_projector, Monitor::projector}},
      [&](Monitor monitor) { controller.set_monitor(monitor); },
      [&] { return controller.monitor(); }));
}

}  // namespace

void add_chamber_commands(Commands& commands, const Ui::Menus& menus, ChamberController& controller,
                          ChamberView& view) {
  add_actions(commands, menus, controller, view);
  add_settings(commands, menus, controller, view);
  add_choices(commands, menus, controller, view);
  QObject::connect(&controller, &ChamberController::printViewChanged, &commands,
                   &Commands::refresh);
  commands.refreshOn(controller.model().changed);
}

}  // namespace velquon
