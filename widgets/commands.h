// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QAction;

namespace velquon {

/// What a menu item does, and how its look follows from what the program knows.
struct Command {
  QAction* item = nullptr;
  /// Null for one that opens a menu.
  std::function<void()> run{};
  /// Whether the item is checked; null for one that never is.
  std::function<bool()> is_checked{};
  /// Whether the item can be chosen; null for one that always can.
  std::function<bool()> is_enabled{};
  /// Title of the item with the mark of its key; null for one that keeps its own.
  std::function<QString()> title{};
};

/// A table of menu items. Choosing an item runs its command; afterwards, and whenever
/// `refresh` is called, all items show the present state.
class Commands : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  void add(const Command& command);
  void add(const std::vector<Command>& commands);
  /// Has items, whose commands are added elsewhere, be enabled by what the program knows.
  void enableBy(const QList<QAction*>& items, const std::function<bool()>& is_enabled);

  /// Makes each item look as the program's state says.
  void refresh() const;
  /// Does so whenever something has changed.
  /// \param changes its `add` takes what is to be called, and returns what keeps it called
  template <typename Changes>
  void refreshOn(Changes& changes) {
    auto kept = changes.add([this] { refresh(); });
    changes_.push_back(std::make_shared<decltype(kept)>(std::move(kept)));
  }

 Q_SIGNALS:
  /// The user has chosen an item, whose command runs next.
  void aboutToRun();

 private:
  std::vector<Command> commands_;
  std::vector<std::shared_ptr<void>> changes_;
};

/// The commands of items of which one is chosen at a time: each chooses its value, and the one whose
/// value is the present one is checked.
/// \param set     called with the value of the item that the user chooses
/// \param present gives the present value
template <typename Value, typename Set, typename Present>
std::vector<Command> one_of(const std::vector<std::pair<QAction*, Value>>& items, Set set,
                            Present present) {
  std::vector<Command> commands;
  commands.reserve(items.size());
  for (const auto& [item, value] : items) {
    commands.push_back({.item = item,
                        .run = [set, value = value] { set(value); },
                        .is_checked = [present, value = value] { return present() == value; }});
  }
  return commands;
}

}  // namespace velquon
