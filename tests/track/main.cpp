// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "tests/support/test_run.h"
#include "widgets/surface_format.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  velquon::use_compatibility_contexts();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  setlocale(LC_NUMERIC, "C");
  return velquon::test::run_tests();
}
