// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs the tests in a program set up as the desktop program is.

#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "app/desktop.h"
#include "app/x_display.h"
#include "tests/support/test_run.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (const std::string missing = velquon::missing_for_windows(); !missing.empty()) {
    std::fprintf(stderr, "%s; run under scripts/with-display\n", missing.c_str());
    return 1;
  }
  velquon::prepare_desktop();
  const QApplication qt_application(argc, argv);
  velquon::finish_desktop();
  return velquon::test::run_tests();
}
