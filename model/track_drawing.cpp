// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/track_drawing.h"

namespace velquon {

namespace {

// Below that many points every drawing shows the whole track, above it only so many of the newest.
constexpr std::int32_t newest_points = 100;

}  // namespace

bool TrackDrawing::needsClearing(const TrackSimulation& track) const {
  return track.show_points() < 2 || track.stretching || track.resetting || picture_lost_;
}

std::int32_t TrackDrawing::firstPoint(const TrackSimulation& track) const {
  const std::int32_t points = track.show_points();
  return points < newest_points || do_all_ || picture_lost_ ? 0 : points - newest_points;
}

void TrackDrawing::drawn(const TrackSimulation& track) {
  // While the tape is stretched each drawing shows every point.
  do_all_ = track.stretching && (do_all_ || picture_lost_);
  picture_lost_ = false;
}

void TrackDrawing::wentOn(const TrackSimulation& track, bool was_resetting) {
  do_all_ = (do_all_ && !was_resetting) || track.resetting;
}

}  // namespace velquon
