// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QString>

namespace velquon {

/// An icon of the program that is drawn in dark lines on light buttons and in light lines on dark
/// ones. It follows the application's palette while the program runs.
/// \param name name of the icon in the resources, without folder and ending
[[nodiscard]] QIcon palette_icon(const QString& name);

}  // namespace velquon
