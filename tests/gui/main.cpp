// Runs the tests in a program set up as the desktop program is.

#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "app/desktop.h"
#include "app/x_display.h"

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
  testing::InitGoogleTest(&argc, argv);
  if (const std::string missing = velquon::missing_for_windows(); !missing.empty()) {
    std::fprintf(stderr, "%s; run under scripts/with-display\n", missing.c_str());
    return 1;
  }
  velquon::prepare_desktop();
  const QApplication qt_application(argc, argv);
  velquon::start_glut().wait();
  velquon::finish_desktop();
  int result = RUN_ALL_TESTS();
  if (testing::UnitTest::GetInstance()->test_to_run_count() == 0 &&
      !testing::GTEST_FLAG(list_tests)) {
    std::fputs("the filter leaves no test to run\n", stderr);
    result = 1;
  }
  look_for_leaks();
  return result;
}
