// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/chamber_tool_bar.h"

#include <QToolBar>
#include <QToolButton>

#include "ui_menus.h"

namespace velquon {

namespace {

QToolButton* make_event_type_button(const Ui::Menus& items) {
  auto* const button = new QToolButton;
  button->setObjectName(QStringLiteral("event_type_button"));
  button->setDefaultAction(items.chosen_event_item);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setMenu(items.event_menu);
  return button;
}

}  // namespace

void fill_chamber_tool_bar(QToolBar& bar, const Ui::Menus& items) {
  bar.addAction(items.new_event_item);
  bar.addWidget(make_event_type_button(items));
  bar.addSeparator();
  bar.addActions({items.replay_item, items.rotate_item, items.reset_orientation_item});
  const auto shown = bar.actions();
  for (QAction* const action : shown) {
    if (auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(action))) {
      button->setFocusPolicy(Qt::TabFocus);
    }
  }
}

}  // namespace velquon
