// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>
#include <QSize>

namespace velquon {

/// Where a presented picture and the panel of its texts are on the screen.
struct PresentedPlaces {
  QRect picture;
  double magnification = 1.0;  ///< pixels to a unit of the picture
  QRect panel;                 ///< to the right of the picture or below it
};

/// The places at which a picture is as large as the room allows, in its own proportions, beside a
/// panel that is large enough to be read from afar.
/// \param room    what there is, pixels
/// \param picture units of the picture
[[nodiscard]] PresentedPlaces presented_places(QSize room, QSize picture);

}  // namespace velquon
