// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/help_commands.h"

#include <QApplication>
#include <utility>

#include "app/menus.h"
#include "guide/about.h"
#include "guide/guide_window.h"
#include "guide/shortcuts_window.h"
#include "ui_menus.h"
#include "widgets/commands.h"
#include "widgets/window_order.h"

namespace velquon {

HelpCommands::HelpCommands(const Menus& menus, std::function<QList<QAction*>()> all_menus)
    : menus_(menus), all_menus_(std::move(all_menus)) {}

HelpCommands::~HelpCommands() = default;

void HelpCommands::addTo(Commands& commands) {
  const Ui::Menus& items = menus_.items();
  commands.add(
      {{.item = items.guide_item, .run = [this] { showGuide(); }},
       {.item = items.shortcuts_item, .run = [this] { showShortcuts(); }},
       {.item = items.about_item, .run = [] { show_about(QApplication::activeWindow()); }}});
}

void HelpCommands::showGuide() {
  if (!guide_window_) {
    guide_window_ = std::make_unique<GuideWindow>();
  }
  bring_to_front(*guide_window_);
}

void HelpCommands::showShortcuts() {
  if (!shortcuts_window_) {
    shortcuts_window_ = std::make_unique<ShortcutsWindow>(all_menus_());
  }
  bring_to_front(*shortcuts_window_);
}

}  // namespace velquon
