#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

#include "platform/surface_format.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>

const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:libfontconfig\n";
}
#endif

namespace {

/// Looks for leaks while the graphics driver is loaded: at the program's end it is no longer, and
/// what it never frees would be taken for a leak.
void look_for_leaks() {
#if defined(__SANITIZE_ADDRESS__)
  __lsan_do_leak_check();
#endif
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  velquon::use_compatibility_contexts();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  setlocale(LC_NUMERIC, "C");
  const int result = RUN_ALL_TESTS();
  look_for_leaks();
  return result;
}
