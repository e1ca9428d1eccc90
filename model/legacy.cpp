// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What operations of controllers and views need that nothing of the program calls any more: tracks of
// the shown event changed alone, before an event was made or opened as a whole; the projector's scale
// set apart from an event; the area of the live track before it had the step timer.

#include <utility>

#include "model/chamber_model.h"
#include "model/projector.h"
#include "model/track_simulation.h"

namespace velquon {

void ChamberModel::makeTracks(const EventType& type) {
  if (auto tracks = made_tracks(type, next_)) {
    ShownEvent event = *shown_;
    event.tracks = std::move(tracks);
    changeShown(event);
  }
}

void ChamberModel::showTracks(std::span<const PlotPoint> points) {
  ShownEvent event = *shown_;
  event.tracks = tracks_of(points);
  changeShown(event);
}

void Projector::setScaler(double scaler) {
  takeScaler(scaler);
  changed.tell();
}

bool TrackSimulation::isInLegacyArea() const {
  constexpr double floor = 15.0;
  constexpr double ceiling = 455.0;
  return -track_area_margin < stepping_.old_x &&
         stepping_.old_x < track_area_width + track_area_margin && floor < stepping_.old_y &&
         stepping_.old_y < ceiling;
}

}  // namespace velquon
