#include "platform/clock.h"

#include <chrono>

namespace velquon {

std::uint64_t Microseconds() {
  using std::chrono::duration_cast;
  using std::chrono::microseconds;
  const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(duration_cast<microseconds>(since_start).count());
}

}  // namespace velquon
