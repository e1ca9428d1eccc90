// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/shown_event.h"

#include <array>
#include <cstdio>
#include <utility>

namespace velquon {

std::shared_ptr<EventTracks> tracks_of(std::span<const PlotPoint> points) {
  auto tracks = std::make_shared<EventTracks>();
  tracks->points.assign(points.begin(), points.end());
  return tracks;
}

std::shared_ptr<const EventTracks> made_tracks(const EventType& type, const ChamberValues& values) {
  TrackBuffer event;
  ParticleRecord record;
  if (make_event(type, values, event, &record) == HandOver::no) {
    return nullptr;
  }
  auto tracks = tracks_of(event.points());
  tracks->type = static_cast<std::size_t>(&type - event_types().data());
  tracks->values = values;
  tracks->record = std::move(record);
  return tracks;
}

std::string values_text(const ChamberValues& values) {
  constexpr double cm_per_m = 100.0;
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "B = %.4G kG, T = %.5G MeV, L = %.4G m",
                static_cast<double>(values.B_field), static_cast<double>(values.kinetic_Mev),
                static_cast<double>(values.sides_cm) / cm_per_m);
  return text.data();
}

double projection_scaler(const ChamberValues& values) {
  // The chamber's 800 drawing units span 400 view units of the projection at zoom 1.
  constexpr double projected_side = 400.0;
  return static_cast<double>(values.sides_cm) / projected_side;
}

}  // namespace velquon
