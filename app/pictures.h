// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace velquon {

class Application;

/// Makes an event of each kind and saves a picture of each view of it, naming the files on standard
/// output.
/// \param folder made if it is not there
/// \return status to end the program with
int save_pictures(Application& application, const QString& folder);

}  // namespace velquon
