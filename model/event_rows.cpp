// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "engine/charged_track.h"
#include "engine/kinematics.h"
#include "engine/model_text.h"
#include "events/particle_kinds.h"
#include "events/tracking.h"

namespace velquon {

namespace {

std::string_view words_of(Fate fate) {
  constexpr std::array<std::string_view, 6> words{
      MODEL_TEXT("velquon::Model", "decayed"),
      MODEL_TEXT("velquon::Model", "converted to a pair"),
      MODEL_TEXT("velquon::Model", "left the chamber"),
      MODEL_TEXT("velquon::Model", "cut: the event holds no more points"),
      MODEL_TEXT("velquon::Model", "left unseen"),
      MODEL_TEXT("velquon::Model", "not detected")};
  return words[static_cast<std::size_t>(fate)];
}

EventRow row_of(const RecordedParticle& particle, const ChamberValues& values) {
  const ParticleKind& kind = particle_kind(particle.pdg);
  const auto field = static_cast<double>(values.B_field);
  const auto& [px, py, pz] = particle.momentum;
  EventRow row;
  row.name = kind.name;
  row.symbol = kind.symbol;
  row.fate = words_of(particle.fate);
  row.parent = particle.parent;
  row.momentum = magnitude(particle.momentum);
  row.transverse_momentum = std::hypot(px, py);
  row.kinetic_energy = particle.energy - kind.values.mass;
  row.flight_cm = flight_cm(particle, kind.charge != 0, values);
  if (kind.charge != 0 && field != 0.0) {
    row.radius_cm = std::abs(helix_radius_cm(row.transverse_momentum, field));
  }
  if (kind.values.mass > 0.0 && kind.values.decay_length < stable_decay_length) {
    row.decay_length_cm = row.momentum / kind.values.mass * kind.values.decay_length;
  }
  return row;
}

}  // namespace

std::string_view color_name(std::int16_t code) {
  constexpr std::array<std::string_view, 5> names{
      MODEL_TEXT("velquon::Model", "Red"), MODEL_TEXT("velquon::Model", "Yellow"),
      MODEL_TEXT("velquon::Model", "Green"), MODEL_TEXT("velquon::Model", "Blue"),
      MODEL_TEXT("velquon::Model", "Light blue")};
  return names[track_color_row(code)];
}

std::optional<bool> is_charged(int pdg) {
  const ParticleKind* const kind = find_particle_kind(pdg);
  return kind == nullptr ? std::nullopt : std::optional(kind->charge != 0);
}

std::optional<double> flight_cm(const RecordedParticle& particle, bool charged,
                                const ChamberValues& values) {
  if (!particle.end_cm) {
    return std::nullopt;
  }
  // A track that is cut ends at its last point, but a decay is where it is.
  const std::int16_t steps = particle.fate == Fate::decayed ? particle.steps : particle.points;
  return charged ? steps * track_step / drawing_scale(values)
                 : distance(particle.place_cm, *particle.end_cm);
}

std::vector<EventRow> event_rows(const ParticleRecord& record, const ChamberValues& values) {
  std::vector<EventRow> rows;
  for (const RecordedParticle& particle : record.particles()) {
    rows.push_back(row_of(particle, values));
  }
  for (std::size_t point = 0; point < record.owners().size(); ++point) {
    rows[record.owners()[point]].points.push_back(point);
  }
  return rows;
}

std::vector<VisibleTrack> visible_tracks(std::span<const PlotPoint> points) {
  std::vector<VisibleTrack> tracks;
  for (std::size_t point = 0; point < points.size(); ++point) {
    const std::int16_t code = points[point].code;
    auto track = std::ranges::find(tracks, code, &VisibleTrack::code);
    if (track == tracks.end()) {
      track = tracks.insert(track, {.code = code, .color = color_name(code), .points = {}});
    }
    track->points.push_back(point);
  }
  return tracks;
}

}  // namespace velquon
