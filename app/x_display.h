#pragma once

#include <string>

namespace velquon {

/// What is missing for windows to be shown here; empty when nothing is.
[[nodiscard]] std::string missing_for_windows();

}  // namespace velquon
