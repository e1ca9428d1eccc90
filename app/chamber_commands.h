// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Ui {
class Menus;
}

namespace velquon {

class ChamberController;
class ChamberView;
class Commands;

/// Adds what the menus Action, Event and Settings and the item Print do to the table of commands.
void add_chamber_commands(Commands& commands, const Ui::Menus& menus, ChamberController& controller,
                          ChamberView& view);

}  // namespace velquon
