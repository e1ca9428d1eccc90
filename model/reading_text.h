// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace velquon {

/// A number with its error, such as "123.4 ± 0.9", UTF-8. The error has one digit that counts, two
/// when the first is a 1, and the number is rounded to the same place; without an error above 0 the
/// number stands alone, with two decimals.
[[nodiscard]] std::string measured_text(double value, double error);

}  // namespace velquon
