// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/menus.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>

#include "app/held_keys.h"
#include "ui_menus.h"
#include "widgets/palette_icon.h"

namespace velquon {

namespace {

/// One item of the menu is chosen at a time, and looks so.
void make_radio_group(const QMenu& menu) {
  auto* const group = new QActionGroup(menu.parent());
  for (QAction* const item : menu.actions()) {
    group->addAction(item);
  }
}

}  // namespace

Menus::Menus()
    : held_keys_(std::make_unique<HeldKeys>()),
      owner_(std::make_unique<QMenuBar>()),
      ui_(std::make_unique<Ui::Menus>()) {
  ui_->setupUi(owner_.get());
  for (const QMenu* const menu :
       {ui_->event_menu, ui_->axis_menu, ui_->rate_menu, ui_->monitor_menu, ui_->particle_menu,
        ui_->direction_menu, ui_->velocity_menu}) {
    make_radio_group(*menu);
  }
  for (QAction* const item : {ui_->new_event_item, ui_->replay_item, ui_->rotate_item,
                              ui_->reverse_rotate_item, ui_->activate_item, ui_->inject_item}) {
    held_keys_->guard(*item);
  }
  ui_->new_event_item->setIcon(palette_icon(QStringLiteral("new-event")));
  ui_->replay_item->setIcon(palette_icon(QStringLiteral("replay")));
  ui_->rotate_item->setIcon(palette_icon(QStringLiteral("rotate")));
  ui_->reset_orientation_item->setIcon(palette_icon(QStringLiteral("reset-orientation")));
}

Menus::~Menus() = default;

QList<QAction*> Menus::menus() const {
  return owner_->actions();
}

void Menus::installIn(QMainWindow& window) const {
  const auto all = menus();
  for (QAction* const menu : all) {
    window.menuBar()->addMenu(menu->menu());
  }
}

}  // namespace velquon
