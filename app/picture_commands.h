// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <string>

namespace Ui {
class Menus;
}

namespace velquon {

class Commands;
class PictureFiles;

/// Adds what Save Picture and Copy Picture do to the table of commands.
/// \param event_name gives name and number of the shown event
void add_picture_commands(Commands& commands, const Ui::Menus& menus, PictureFiles& pictures,
                          std::function<std::string()> event_name);

}  // namespace velquon
