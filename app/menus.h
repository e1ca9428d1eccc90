// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <memory>

class QAction;
class QMainWindow;
class QMenuBar;

namespace Ui {
class Menus;
}

namespace velquon {

class HeldKeys;

/// The menus and their items, which all windows share: each window's bar holds the same menus, so
/// an item has one state and one shortcut.
class Menus {
 public:
  Menus();
  ~Menus();
  Menus(const Menus&) = delete;
  Menus& operator=(const Menus&) = delete;
  Menus(Menus&&) = delete;
  Menus& operator=(Menus&&) = delete;

  /// Puts the menus into a window's bar.
  void installIn(QMainWindow& window) const;

  /// The menus, in their order in the bar.
  [[nodiscard]] QList<QAction*> menus() const;

  /// The items and menus by their names.
  const Ui::Menus& items() const { return *ui_; }

 private:
  std::unique_ptr<HeldKeys> held_keys_;
  std::unique_ptr<QMenuBar> owner_;
  std::unique_ptr<Ui::Menus> ui_;
};

}  // namespace velquon
