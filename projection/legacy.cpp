// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the view was told piece by piece before the projector took the scale and the place of the
// picture from the event. Nothing of the program calls it any more; kept because these are operations
// that others may know and call.

#include "projection/projection_view.h"

namespace velquon {

void ProjectionView::setScaler(double scaler) {
  projector_.setScaler(scaler);
}

void ProjectionView::resetOffsets() {
  projector_.resetOffsets();
}

}  // namespace velquon
