// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace velquon {

class EventDocuments;
class UserDialogs;

/// Opens the event file that the program is started with. When it is not shown, says so on standard
/// error; a file that cannot be loaded is told in an alert, too, with the reason.
void open_start_file(EventDocuments& documents, UserDialogs& dialogs, const QString& path);

}  // namespace velquon
