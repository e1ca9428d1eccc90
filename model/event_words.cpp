// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "engine/chamber_values.h"
#include "events/tracking.h"
#include "model/event_rows.h"

namespace velquon {

namespace {

using Indices = std::vector<std::size_t>;

double distance(const PlotPoint& from, const PlotPoint& to) {
  return std::hypot(to.coords[0] - from.coords[0], to.coords[1] - from.coords[1],
                    to.coords[2] - from.coords[2]);
}

/// Angle by which a line of points turns in the xy plane, anticlockwise where z comes towards the
/// viewer; nothing where fewer than two of its steps go along the plane.
std::optional<double> turn_of(std::span<const PlotPoint> points, const Indices& track) {
  constexpr double least_step = 1e-6;  // of 20 drawing units
  using Step = std::array<double, 2>;
  std::vector<Step> steps;
  for (std::size_t i = 1; i < track.size(); ++i) {
    const auto& from = points[track[i - 1]].coords;
    const auto& to = points[track[i]].coords;
    const Step step{to[0] - from[0], to[1] - from[1]};
    if (std::hypot(step[0], step[1]) > least_step) {
      steps.push_back(step);
    }
  }
  double turn = 0.0;
  for (std::size_t i = 1; i < steps.size(); ++i) {
    const auto& [ax, ay] = steps[i - 1];
    const auto& [bx, by] = steps[i];
    turn += std::atan2(ax * by - ay * bx, ax * bx + ay * by);
  }
  return steps.size() < 2 ? std::nullopt : std::optional(turn);
}

Bend bend_of(std::optional<double> turn) {
  if (!turn) {
    return Bend::not_seen;
  }
  if (std::abs(*turn) < least_turn) {
    return Bend::straight;
  }
  return *turn > 0.0 ? Bend::anticlockwise : Bend::clockwise;
}

/// \param cm_per_unit cm of a drawing unit
SeenTrack seen_track(std::span<const PlotPoint> points, const Indices& track, double cm_per_unit) {
  SeenTrack seen{.code = points[track.front()].code, .points = track.size()};
  for (std::size_t i = 1; i < track.size(); ++i) {
    seen.length_cm += distance(points[track[i - 1]], points[track[i]]) * cm_per_unit;
  }
  seen.bend = bend_of(turn_of(points, track));
  return seen;
}

/// Divides points of one code into lines whose points are about a step apart. Tracks that are merged
/// come by turns.
std::vector<Indices> lines_of(std::span<const PlotPoint> points, const Indices& of_code) {
  constexpr double farthest = 2.0 * track_step;
  std::vector<Indices> lines;
  for (const std::size_t point : of_code) {
    const auto to_point = [&](const Indices& line) {
      return distance(points[line.back()], points[point]);
    };
    const auto nearest = std::ranges::min_element(lines, {}, to_point);
    if (nearest != lines.end() && to_point(*nearest) <= farthest) {
      nearest->push_back(point);
    } else {
      lines.push_back({point});
    }
  }
  // Points of a file may be farther apart, and are no lines of one point each.
  const bool falls_apart = lines.size() * 2 > of_code.size();
  return falls_apart ? std::vector<Indices>{of_code} : lines;
}

std::vector<SeenTrack> tracks_by_codes(std::span<const PlotPoint> points, double cm_per_unit) {
  std::vector<Indices> lines;
  for (const VisibleTrack& of_code : visible_tracks(points)) {
    std::ranges::move(lines_of(points, of_code.points), std::back_inserter(lines));
  }
  std::ranges::sort(lines, {}, [](const Indices& line) { return line.front(); });
  std::vector<SeenTrack> tracks;
  tracks.reserve(lines.size());
  for (const Indices& line : lines) {
    tracks.push_back(seen_track(points, line, cm_per_unit));
  }
  return tracks;
}

std::vector<SeenTrack> tracks_by_record(const EventTracks& event, double cm_per_unit) {
  const auto particles = event.record->particles();
  std::vector<Indices> of_particles(particles.size());
  for (std::size_t point = 0; point < event.record->owners().size(); ++point) {
    of_particles[event.record->owners()[point]].push_back(point);
  }
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < particles.size(); ++i) {
    if (!of_particles[i].empty()) {
      order.push_back(i);
    }
  }
  std::ranges::sort(order, {}, [&](std::size_t i) { return of_particles[i].front(); });
  std::vector<SeenTrack> tracks;
  for (const std::size_t i : order) {
    tracks.push_back(seen_track(event.points, of_particles[i], cm_per_unit));
    // Its only point may be the one where it decays, which has another code.
    tracks.back().code = particles[i].code;
    tracks.back().particle = &particle_kind(particles[i].pdg);
  }
  return tracks;
}

std::vector<UnseenParticles> unseen_in(const EventTracks& event) {
  const auto particles = event.record->particles();
  const auto has_daughters = [&](std::size_t row) {
    return std::ranges::find(particles, static_cast<int>(row), &RecordedParticle::parent) !=
           particles.end();
  };
  std::vector<UnseenParticles> unseen;
  for (std::size_t row = 0; row < particles.size(); ++row) {
    const RecordedParticle& particle = particles[row];
    const ParticleKind& kind = particle_kind(particle.pdg);
    const bool is_missed = event.points.empty() ? !has_daughters(row) : kind.charge != 0;
    if (!is_missed || particle.points > 0) {
      continue;
    }
    const auto same = std::ranges::find_if(unseen, [&](const UnseenParticles& other) {
      return other.particle == &kind && other.fate == particle.fate;
    });
    if (same == unseen.end()) {
      unseen.push_back({.particle = &kind, .fate = particle.fate, .count = 1});
    } else {
      ++same->count;
    }
  }
  return unseen;
}

}  // namespace

EventInWords event_in_words(const ShownEvent& event, bool answers_shown) {
  const EventTracks& tracks = *event.tracks;
  const ChamberValues& values = tracks.record ? tracks.values : event.values;
  const double cm_per_unit = 1.0 / drawing_scale(values);
  if (!tracks.record || !answers_shown) {
    return {.tracks = tracks_by_codes(tracks.points, cm_per_unit), .unseen = {}};
  }
  return {.tracks = tracks_by_record(tracks, cm_per_unit), .unseen = unseen_in(tracks)};
}

}  // namespace velquon
