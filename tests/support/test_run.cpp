// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/test_run.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "tests/support/sanitizers.h"

#if VELQUON_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#include <sanitizer/lsan_interface.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <thread>

const char* __asan_default_options() {  // NOLINT(bugprone-reserved-identifier)
  // Where the thread-local data of a loaded library lie is guessed by what stands in memory before them;
  // a wrong guess, which chance makes, crashes the search for leaks.
  return "intercept_tls_get_addr=0";
}

const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  // The driver keeps what it made for the feedback mode of a context that is gone.
  return "leak:libfontconfig\nleak:swrast_dri\n";
}

namespace {

std::ptrdiff_t number_of_threads() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                       std::filesystem::directory_iterator());
}

/// Waits until no thread has come or gone for a while: the search for leaks reads the memory of each,
/// and crashes on that of one which is just ending.
void wait_until_threads_rest() {
  constexpr int rest = 10;      // looks
  constexpr int longest = 500;  // looks
  constexpr std::chrono::milliseconds pause(20);
  std::ptrdiff_t before = number_of_threads();
  for (int look = 0, calm = 0; look < longest && calm < rest; ++look) {
    std::this_thread::sleep_for(pause);
    const std::ptrdiff_t now = number_of_threads();
    calm = now == before ? calm + 1 : 0;
    before = now;
  }
}

}  // namespace
#endif

namespace velquon::test {

int run_tests() {
  int result = RUN_ALL_TESTS();
  if (testing::UnitTest::GetInstance()->test_to_run_count() == 0 &&
      !testing::GTEST_FLAG(list_tests)) {
    std::fputs("the filter leaves no test to run\n", stderr);
    result = 1;
  }
#if VELQUON_ADDRESS_SANITIZER
  wait_until_threads_rest();
  __lsan_do_leak_check();
#endif
  return result;
}

}  // namespace velquon::test
