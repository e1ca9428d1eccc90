// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace velquon {

class Commands;
class GuideWindow;
class Menus;
class ShortcutsWindow;

/// The commands of the Help menu with the windows that they show, each made when first asked for.
class HelpCommands {
 public:
  explicit HelpCommands(const Menus& menus);
  ~HelpCommands();
  HelpCommands(const HelpCommands&) = delete;
  HelpCommands& operator=(const HelpCommands&) = delete;
  HelpCommands(HelpCommands&&) = delete;
  HelpCommands& operator=(HelpCommands&&) = delete;

  /// \param commands must not outlive this
  void addTo(Commands& commands);

 private:
  void showGuide();
  void showShortcuts();

  const Menus& menus_;
  std::unique_ptr<GuideWindow> guide_window_;
  std::unique_ptr<ShortcutsWindow> shortcuts_window_;
};

}  // namespace velquon
