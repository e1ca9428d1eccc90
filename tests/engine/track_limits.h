// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace velquon::test {

/// Where charged tracks of a chain end and how long their steps are, drawing units.
inline constexpr double bound = 404.0;
inline constexpr double step = 20.0;

}  // namespace velquon::test
