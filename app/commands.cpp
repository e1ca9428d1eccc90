// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/commands.h"

#include <QAction>

namespace velquon {

void Commands::add(const Command& command) {
  commands_.push_back(command);
  connect(command.item, &QAction::triggered, this, [this, run = command.run] {
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
    commands_.push_back({.item = item, .run = {}, .is_enabled = is_enabled});
  }
}

void Commands::refresh() const {
  for (const Command& command : commands_) {
    if (command.is_checked) {
      command.item->setChecked(command.is_checked());
    }
    if (command.is_enabled) {
      command.item->setEnabled(command.is_enabled());
    }
    if (command.title) {
      command.item->setText(command.title());
    }
  }
}

}  // namespace velquon
