// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/event_format.h"

#include <algorithm>
#include <array>

namespace velquon {

std::span<const FormatTraits> event_formats() {
  static constexpr std::array<FormatTraits, 6> formats{{
      {EventFormat::csv, "csv", ".csv", "events.csv", false},
      {EventFormat::cwd, "cwd", "", "", false},
      {EventFormat::npy, "npy", ".npy", "events.npy", false},
      {EventFormat::particles, "particles", ".csv", "particles.csv", true},
      {EventFormat::hepmc3, "hepmc3", ".hepmc3", "events.hepmc3", true},
      {EventFormat::summary, "summary", ".json", "summary.json", true},
  }};
  return formats;
}

const FormatTraits& traits_of(EventFormat format) {
  return *std::ranges::find(event_formats(), format, &FormatTraits::format);
}

}  // namespace velquon
