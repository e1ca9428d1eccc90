// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Ui {
class Menus;
}

namespace velquon {

class ChamberModel;
class Commands;
class UserDialogs;

/// Adds the command that prints worksheets.
void add_worksheet_command(Commands& commands, const Ui::Menus& menus, const ChamberModel& model,
                           UserDialogs& dialogs);

}  // namespace velquon
