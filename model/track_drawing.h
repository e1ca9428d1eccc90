// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

#include "model/track_simulation.h"

namespace velquon {

/// How much of a live track has to be drawn, so that each step adds only the newest points to the
/// picture that is there. Each picture of a track has its own.
class TrackDrawing {
 public:
  /// The next drawing shows every point.
  void showAll() { do_all_ = true; }
  [[nodiscard]] bool shows_all() const { return do_all_; }

  /// What was drawn is gone, or not what belongs there: the next drawing makes the picture anew.
  void losePicture() { picture_lost_ = true; }

  /// Whether the next drawing begins with an empty picture.
  [[nodiscard]] bool needsClearing(const TrackSimulation& track) const;
  /// The first point of the next drawing; it goes on to the last one.
  [[nodiscard]] std::int32_t firstPoint(const TrackSimulation& track) const;

  /// The track has been drawn.
  void drawn(const TrackSimulation& track);
  /// The track has gone on to its next point.
  /// \param was_resetting whether its points had been compacted by the step before
  void wentOn(const TrackSimulation& track, bool was_resetting);

 private:
  bool do_all_ = false;
  bool picture_lost_ = true;
};

}  // namespace velquon
