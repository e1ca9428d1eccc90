// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/windows/track_window_fixture.h"

#include <QTimer>

#include "tests/support/windows/waiting.h"
#include "track/track_controller.h"
#include "track/track_panel.h"

namespace velquon::test {

NewTrackView& TrackWindowFixture::view() {
  return *trackWindow().panel().track_view();
}

void TrackWindowFixture::activateTrack() {
  choose("activate_item");
  waitUntilActive();
}

void TrackWindowFixture::waitUntilActive() {
  ASSERT_TRUE(wait_until_exposed(&trackWindow()));
  ASSERT_TRUE(wait_until([this] {
    return trackWindow().isActiveWindow() && trackWindow().controller().activated() &&
           view().passes() > 0;
  }));
}

void TrackWindowFixture::holdRun() {
  ASSERT_NE(view().trackTimer(), nullptr);
  view().trackTimer()->stop();
}

void TrackWindowFixture::step(int count) {
  for (int made = 0; made < count; ++made) {
    view().TrackWithTimer(view().trackTimer());
  }
}

void TrackWindowFixture::endRun() {
  holdRun();
  while (view().is_tracking()) {
    step(1);
  }
}

void TrackWindowFixture::waitForEndOfRun() {
  constexpr int patience = 60'000;  // milliseconds
  ASSERT_TRUE(wait_until(
      [this] { return view().trackTimer() != nullptr && !view().trackTimer()->isActive(); },
      patience));
}

}  // namespace velquon::test
