// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCursor>
#include <QPoint>
#include <QString>

namespace velquon {

/// A cursor of the program's own, of one size on any screen.
/// \param name     name of its image among the resources
/// \param hot_spot place in the image of 16 by 16 from its top left, as on a screen of ratio 1
/// \param ratio    device pixels to a pixel of the screen
[[nodiscard]] QCursor cursor_named(const QString& name, QPoint hot_spot, double ratio);

/// The same for the screen with the most device pixels.
[[nodiscard]] QCursor cursor_named(const QString& name, QPoint hot_spot);

}  // namespace velquon
