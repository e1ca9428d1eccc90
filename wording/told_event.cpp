// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/told_event.h"

#include "events/event_types.h"

namespace velquon {

ToldEvent told_event(const ShownEvent& event, const StatusFacts& facts, TrackColoring coloring) {
  const auto legend = legend_of(*event.tracks, facts.answers_shown);
  const EventInWords words = event_in_words(event, facts.answers_shown);
  return {.legend = legend_lines(legend, coloring),
          .spoken_legend = spoken_legend(legend, coloring),
          .status = status_text(event, words, facts),
          .spoken = spoken_event(words, coloring)};
}

std::vector<LegendLine> usual_legend(TrackColoring coloring) {
  std::vector<LegendEntry> entries;
  for (const int number : {-pdg::pion, pdg::muon, pdg::electron}) {
    entries.push_back({.code = 3,
                       .color = track_color_row(3),
                       .meaning = LegendMeaning::particle,
                       .particle = &particle_kind(number)});
  }
  return legend_lines(entries, coloring);
}

QString long_status(std::optional<std::uint32_t> seed) {
  constexpr std::uint64_t number = 999;
  ShownEvent event;
  auto tracks = std::make_shared<EventTracks>();
  tracks->type = event_types().size() - 1;
  event.tracks = std::move(tracks);
  const EventInWords words{
      .tracks = {},
      .unseen = {{.particle = &particle_kind(pdg::neutron), .fate = Fate::undetected, .count = 1},
                 {.particle = &particle_kind(pdg::photon), .fate = Fate::escaped, .count = 2}}};
  return status_text(event, words, {.number = number, .seed = seed});
}

}  // namespace velquon
