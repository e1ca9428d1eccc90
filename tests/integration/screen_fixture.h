// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/placement.h"
#include "track/track_window.h"

namespace velquon::test {

/// The program on a screen of some size.
class ScreenFixture : public ApplicationFixture {
 protected:
  /// Expects that the chamber's, the projector's and the track's window are on the screen. The chamber's
  /// is active afterwards.
  void expectWindowsOfViewsOnScreen() {
    expect_on_screen(chamberWindow());
    expect_on_screen(projectorWindow());
    ASSERT_NO_FATAL_FAILURE(showTrackWindow());
    expect_on_screen(application().trackWindow());
    choose("activate_item");
    activate(chamberWindow());
  }
};

}  // namespace velquon::test
