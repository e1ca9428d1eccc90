// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdio>
#include <functional>
#include <span>
#include <system_error>

namespace velquon {

/// Takes bytes that follow those before, all or with an error.
using ByteOutput = std::function<std::error_code(std::span<const std::byte>)>;

/// Output into a stream, which is not closed; each call hands the bytes on to the system.
[[nodiscard]] ByteOutput output_to(std::FILE* stream);

}  // namespace velquon
