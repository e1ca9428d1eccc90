// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace velquon {

/// What `velquon-events` writes events as.
enum class EventFormat : std::uint8_t { csv, cwd, npy, particles, hepmc3, summary };

/// What is to be known of a format.
struct FormatTraits {
  EventFormat format;
  std::string_view key;        ///< name on the command line
  std::string_view extension;  ///< of a file of one run; none where each event has a file
  std::string_view file_name;  ///< of such a file in a folder, when nothing else is said
  bool record;                 ///< it holds what happened and not only the points
};

/// All formats; the first is the default.
[[nodiscard]] std::span<const FormatTraits> event_formats();

[[nodiscard]] const FormatTraits& traits_of(EventFormat format);

}  // namespace velquon
