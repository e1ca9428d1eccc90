// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs the tests in a program set up as the desktop program is.

#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "app/desktop.h"
#include "app/x_display.h"
#include "tests/support/leaks.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (const std::string missing = velquon::missing_for_windows(); !missing.empty()) {
    std::fprintf(stderr, "%s; run under scripts/with-display\n", missing.c_str());
    return 1;
  }
  velquon::prepare_desktop();
  const QApplication qt_application(argc, argv);
  velquon::finish_desktop();
  int result = RUN_ALL_TESTS();
  if (testing::UnitTest::GetInstance()->test_to_run_count() == 0 &&
      !testing::GTEST_FLAG(list_tests)) {
    std::fputs("the filter leaves no test to run\n", stderr);
    result = 1;
  }
  velquon::test::look_for_leaks();
  return result;
}
