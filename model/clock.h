// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>

namespace velquon {

/// Microseconds of a clock that never steps back, as 64 bits.
[[nodiscard]] std::uint64_t Microseconds();

/// Gives the present time in microseconds; `Microseconds`, but for tests with a clock of their own.
using Clock = std::function<std::uint64_t()>;

/// Waits without giving the processor away. Elapsed times are taken from the low 32 bits of the
/// clock; a wait that crosses a change of the high ones begins anew.
/// \param microseconds how long the wait has to last at least; it ends as soon as it is longer
void pause_for_microseconds(std::int32_t microseconds, const Clock& clock);

}  // namespace velquon
