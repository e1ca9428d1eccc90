#pragma once

#include <cstdint>

namespace velquon {

/// Microseconds of a clock that never steps back, as 64 bits.
[[nodiscard]] std::uint64_t Microseconds();

}  // namespace velquon
