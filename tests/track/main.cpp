// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "tests/support/leaks.h"
#include "widgets/surface_format.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  velquon::use_compatibility_contexts();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  setlocale(LC_NUMERIC, "C");
  const int result = RUN_ALL_TESTS();
  velquon::test::look_for_leaks();
  return result;
}
