// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace velquon {

/// The text of a number as C's printf writes it for "%*.*f", the ties between two decimals rounded
/// to the even one; Qt's own ways round them up. Needs a decimal point in the C library, as
/// `finish_desktop` sets it.
/// \param width    the least number of characters, filled with blanks in front
/// \param decimals digits behind the point
[[nodiscard]] QString fixed_text(double value, int width, int decimals);

}  // namespace velquon
