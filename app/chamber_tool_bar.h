// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QToolBar;

namespace Ui {
class Menus;
}

namespace velquon {

/// Puts the items for what is done most often into the chamber's tool bar, and behind the first of them
/// a button that shows the chosen kind of event and opens the menu of all.
void fill_chamber_tool_bar(QToolBar& bar, const Ui::Menus& items);

}  // namespace velquon
