// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/legend.h"

#include <algorithm>
#include <array>

#include "model/event_rows.h"

namespace velquon {

namespace {

// By the track codes of the decay chains: 2 is a Lambda's pion; 3 what enters, a pair's electron or a
// Lambda's proton; 4 the second of a chain or a pair's positron; 5 the electron of a pion's chain.
constexpr std::array<std::string_view, 1> of_code_2{"π"};
constexpr std::array<std::string_view, 4> of_code_3{"π", "μ", "e", "p"};
constexpr std::array<std::string_view, 2> of_code_4{"μ", "e"};
constexpr std::array<std::string_view, 1> of_code_5{"e"};

LegendEntry entry_of(std::int16_t code, LegendMeaning meaning, const ParticleKind* particle) {
  return {.code = code,
          .color = track_color_row(code),
          .meaning = meaning,
          .particle = particle,
          .families = {}};
}

bool has_code(const std::vector<LegendEntry>& entries, std::int16_t code) {
  return std::ranges::find(entries, code, &LegendEntry::code) != entries.end();
}

/// The tracks of particles that have points of their own code.
std::vector<LegendEntry> particles_seen(const EventTracks& tracks) {
  const auto particles = tracks.record->particles();
  std::vector<LegendEntry> entries;
  for (std::size_t point = 0; point < tracks.record->owners().size(); ++point) {
    const RecordedParticle& owner = particles[tracks.record->owners()[point]];
    const std::int16_t code = tracks.points[point].code;
    const ParticleKind& kind = particle_kind(owner.pdg);
    const bool is_known = std::ranges::any_of(entries, [&](const LegendEntry& entry) {
      return entry.code == code && entry.particle == &kind;
    });
    if (code == owner.code && !is_known) {
      entries.push_back(entry_of(code, LegendMeaning::particle, &kind));
    }
  }
  return entries;
}

std::vector<LegendEntry> legend_of_record(const EventTracks& tracks) {
  std::vector<LegendEntry> entries = particles_seen(tracks);
  // A decay point has the colour of the daughter, which may have left no points.
  for (std::size_t point = 0; point < tracks.record->owners().size(); ++point) {
    const std::int16_t code = tracks.points[point].code;
    if (!has_code(entries, code)) {
      const RecordedParticle& owner = tracks.record->particles()[tracks.record->owners()[point]];
      entries.push_back(entry_of(code, LegendMeaning::decay_point, &particle_kind(owner.pdg)));
    }
  }
  return entries;
}

}  // namespace

std::span<const std::string_view> families_of_code(std::int16_t code) {
  constexpr std::int16_t first = 2;
  constexpr std::array<std::span<const std::string_view>, 4> families{of_code_2, of_code_3,
                                                                      of_code_4, of_code_5};
  const int row = code - first;
  return row >= 0 && row < static_cast<int>(families.size())
             ? families[static_cast<std::size_t>(row)]
             : std::span<const std::string_view>();
}

std::vector<LegendEntry> legend_of(const EventTracks& tracks, bool answers_shown) {
  if (tracks.record && answers_shown) {
    return legend_of_record(tracks);
  }
  std::vector<LegendEntry> entries;
  for (const VisibleTrack& track : visible_tracks(tracks.points)) {
    entries.push_back(entry_of(track.code, LegendMeaning::not_told, nullptr));
    if (!tracks.record) {
      entries.back().families = families_of_code(track.code);
    }
  }
  return entries;
}

}  // namespace velquon
