// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace velquon {

/// A seed that differs from run to run: the low 32 bits of the microsecond clock.
[[nodiscard]] std::uint32_t microsecond_seed();

}  // namespace velquon
