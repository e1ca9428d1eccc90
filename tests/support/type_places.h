// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

namespace velquon::test {

/// Places of event types in their table.
inline constexpr std::size_t negative_pion = 0;
inline constexpr std::size_t positive_pion = 1;
inline constexpr std::size_t neutral_pion = 2;
inline constexpr std::size_t negative_muon = 3;
inline constexpr std::size_t positive_muon = 4;
inline constexpr std::size_t lambda_type = 5;

}  // namespace velquon::test
