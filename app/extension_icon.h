// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>

namespace velquon {

/// Two angles that say that there is more, for the button at the end of a bar that is too short.
/// Drawn in the colour of the buttons' text of the moment.
/// \param towards the side where there is more: right or left for a bar across, down for an upright one
[[nodiscard]] QIcon extension_icon(Qt::ArrowType towards);

}  // namespace velquon
