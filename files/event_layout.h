// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/event_file.h"

namespace velquon {

/// First byte of a file in this program's own, big-endian layout.
inline constexpr std::byte event_tag{'P'};

/// Reads a file in this program's own layout; its first byte is taken as read.
[[nodiscard]] ReadResult read_event_layout(std::span<const std::byte> bytes);

}  // namespace velquon
