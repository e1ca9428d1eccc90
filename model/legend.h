// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "events/particle_kinds.h"
#include "model/shown_event.h"

namespace velquon {

/// What the points of a track code are.
enum class LegendMeaning : std::uint8_t {
  particle,     ///< the track of a kind of particle
  decay_point,  ///< nothing but the place where a particle decayed
  not_told,     ///< a track of which is not known, or not to be told, whose it is
};

/// One line of the legend of an event.
struct LegendEntry {
  std::int16_t code = 0;
  std::size_t color = 0;  ///< row of the colour table in which the code is drawn
  LegendMeaning meaning = LegendMeaning::not_told;
  /// Whose track it is, or what decayed; null when that is not told.
  const ParticleKind* particle = nullptr;
  /// Symbols of the families of particles whose tracks have the code, UTF-8; empty when nothing of it
  /// is known or to be told.
  std::span<const std::string_view> families{};
};

/// Symbols of the families of particles whose tracks the generators give a code, for an event of a
/// file, which holds codes and no particles; empty for a code that no track has.
[[nodiscard]] std::span<const std::string_view> families_of_code(std::int16_t code);

/// What the colours of an event stand for: an entry for each code and particle that is seen, in the
/// order in which they first appear.
/// \param answers_shown whether it may be told whose tracks they are
[[nodiscard]] std::vector<LegendEntry> legend_of(const EventTracks& tracks, bool answers_shown);

}  // namespace velquon
