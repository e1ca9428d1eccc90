// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/commands.h"

#include <QAction>
#include <QHash>

namespace velquon {

void Commands::add(const Command& command) {
  commands_.push_back(command);
  if (!command.run) {
    return;
  }
  connect(command.item, &QAction::triggered, this, [this, run = command.run] {
    Q_EMIT aboutToRun();
    run();
    refresh();
  });
}

void Commands::add(const std::vector<Command>& commands) {
  for (const Command& command : commands) {
    add(command);
  }
}

void Commands::enableBy(const QList<QAction*>& items, const std::function<bool()>& is_enabled) {
  for (QAction* const item : items) {
    commands_.push_back({.item = item, .is_enabled = is_enabled});
  }
}

void Commands::refresh() const {
  // Several may have a say in whether an item can be chosen; each may forbid it.
  QHash<QAction*, bool> enabled;
  for (const Command& command : commands_) {
    if (command.is_checked) {
      command.item->setChecked(command.is_checked());
    }
    if (command.is_enabled) {
      enabled[command.item] = enabled.value(command.item, true) && command.is_enabled();
    }
    if (command.title) {
      command.item->setText(command.title());
    }
  }
  for (const auto& [item, is_enabled] : enabled.asKeyValueRange()) {
    item->setEnabled(is_enabled);
  }
}

}  // namespace velquon
