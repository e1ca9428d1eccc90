// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <functional>
#include <memory>

class QAction;

namespace velquon {

class Commands;
class GuideWindow;
class Menus;
class ShortcutsWindow;

/// The commands of the Help menu with the windows that they show, each made when first asked for.
class HelpCommands {
 public:
  /// \param menus holds the items
  /// \param all_menus gives each menu of the program, those of single windows too, for the list of keys
  HelpCommands(const Menus& menus, std::function<QList<QAction*>()> all_menus);
  ~HelpCommands();
  HelpCommands(const HelpCommands&) = delete;
  HelpCommands& operator=(const HelpCommands&) = delete;
  HelpCommands(HelpCommands&&) = delete;
  HelpCommands& operator=(HelpCommands&&) = delete;

  void addTo(Commands& commands);

 private:
  void showGuide();
  void showShortcuts();

  const Menus& menus_;
  std::function<QList<QAction*>()> all_menus_;
  std::unique_ptr<GuideWindow> guide_window_;
  std::unique_ptr<ShortcutsWindow> shortcuts_window_;
};

}  // namespace velquon
