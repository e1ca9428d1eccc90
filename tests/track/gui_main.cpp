#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "widgets/surface_format.h"
#include "tests/support/leaks.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  velquon::use_compatibility_contexts();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  setlocale(LC_NUMERIC, "C");
  const int result = RUN_ALL_TESTS();
  velquon::testing::look_for_leaks();
  return result;
}
