// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

namespace velquon {

/// Reads an image of the program's own, by a path ending in ".png". QImage and QIcon would ask each of
/// Qt's plugins for other formats first and load them all for that, which costs the start time and
/// memory.
/// \return the image; that of "name@2x.png" has two pixels a unit
[[nodiscard]] QImage png_image(const QString& path);

}  // namespace velquon
