// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include "model/projector.h"

namespace velquon {

/// What curve and angle read, in two lines with the quantities' symbols, or what to do next; empty
/// for the other tools.
[[nodiscard]] QString shown_readings(const Projector& projector);

/// What the chosen tool reads, with the quantities' names, or what to do next: for a screen reader.
[[nodiscard]] QString spoken_readings(const Projector& projector);

}  // namespace velquon
