// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/track_model.h"
#include "tests/support/windows/application_fixture.h"
#include "track/new_track_view.h"
#include "track/track_window.h"

namespace velquon::test {

/// The whole program, for tests of its track window, which is hidden at first.
class TrackWindowFixture : public ApplicationFixture {
 protected:
  [[nodiscard]] TrackWindow& trackWindow() { return application().trackWindow(); }
  [[nodiscard]] NewTrackView& view();
  [[nodiscard]] const TrackSimulation& simulation() { return trackWindow().model().simulation(); }
  [[nodiscard]] const LiveTrackSettings& settings() { return simulation().settings; }
  /// Points of the present track.
  [[nodiscard]] int points() { return simulation().show_points(); }

  /// Activates the window by its menu item and waits until it is there.
  void activateTrack();
  void waitUntilActive();

  /// Stops the timer of a run, so that only the test makes steps.
  void holdRun();
  /// Makes steps of a run that is held; all of them come before the event loop runs again.
  void step(int count);
  /// Has the particle of a run leave the area at once.
  void endRun();
  /// Waits until the run has come to its end by its timer.
  void waitForEndOfRun();
};

}  // namespace velquon::test
