// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace velquon {

/// The text with a question mark for every control character: what a terminal can show as one line
/// of a name that may hold anything.
/// \param text UTF-8, whose control characters beyond ASCII count, or any bytes
[[nodiscard]] std::string as_one_line(std::string text);

}  // namespace velquon
