#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "platform/surface_format.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  velquon::use_compatibility_contexts();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  setlocale(LC_NUMERIC, "C");
  return RUN_ALL_TESTS();
}
