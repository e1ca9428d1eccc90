// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace velquon {

/// What is missing for windows to be shown here; empty when nothing is.
[[nodiscard]] std::string missing_for_windows();

}  // namespace velquon
