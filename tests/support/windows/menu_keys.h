// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QAction;
class QMainWindow;
class QMenu;

namespace velquon::test {

/// The titles of a path "Menu/Item" or "Menu/Submenu/Item".
QStringList menu_path(const char* titles);

/// Chooses a menu item as a person does without a mouse: opens its menu by Alt and its letter, and
/// picks the rest by theirs. The window has to be active.
/// \param titles path of the item; each part needs a letter of its own
/// \return whether the menus opened and closed again behind the choice
bool choose_by_keys(QMainWindow& window, const char* titles);

/// The letters that pick the items of an open menu, one for each that has one.
QStringList letters_of(const QMenu& menu);

/// Expects each title of a menu to have a letter that no other has, and so in the menus below.
void expect_own_letters(const QList<QAction*>& titles_of_menu);

}  // namespace velquon::test
