// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

#include "chamber/chamber_view.h"

namespace velquon::test {

/// The line of values of the chamber's picture alone, white on black, with one pixel a view unit.
[[nodiscard]] QImage values_line_unscaled(ChamberView& chamber);

}  // namespace velquon::test
