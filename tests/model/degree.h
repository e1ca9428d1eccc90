// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <numbers>

namespace velquon::test {

/// A degree in radians.
inline constexpr double degree = std::numbers::pi / 180.0;

}  // namespace velquon::test
