// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "events/particle_kinds.h"
#include "events/particle_record.h"
#include "model/shown_event.h"

namespace velquon {

/// Which way a track turns from its first point to its last in the picture of the xy plane, where z
/// comes towards the viewer.
enum class Bend : std::uint8_t {
  not_seen,  ///< too few points
  straight,
  clockwise,
  anticlockwise,
};

/// Least angle by which a track that is said to curve turns, radians. The sagitta of one that crosses
/// the chamber is then a pixel of the projection, 400 pixels wide: 400 times the angle over 8.
inline constexpr double least_turn = 0.02;

/// What is seen of one track.
struct SeenTrack {
  std::int16_t code = 0;
  const ParticleKind* particle = nullptr;  ///< null when it is not known or not to be told
  std::size_t points = 0;
  double length_cm = 0.0;  ///< from the first point to the last, along the others
  Bend bend = Bend::not_seen;
};

/// Particles of one kind that one might look for and that left no points, and why.
struct UnseenParticles {
  const ParticleKind* particle = nullptr;
  Fate fate = Fate::undetected;
  std::size_t count = 0;
};

/// What there is to tell of an event in words.
struct EventInWords {
  std::vector<SeenTrack> tracks;  ///< in the order of their first points
  /// Charged particles without points or, of an event without points, all those at whose end the
  /// chains of decays are.
  std::vector<UnseenParticles> unseen;
};

/// What is seen of an event. Where no record tells whose points they are, points of one code that
/// follow each other a step apart are a track.
/// \param answers_shown whether it may be told what is not seen
[[nodiscard]] EventInWords event_in_words(const ShownEvent& event, bool answers_shown);

}  // namespace velquon
