// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

#include "events/event_types.h"
#include "tests/support/event_making.h"
#include "tests/support/sanitizers.h"

namespace velquon {
namespace {

/// Resident memory of this process, bytes.
long resident_bytes() {
  std::ifstream statm("/proc/self/statm");
  long total = 0;
  long resident = 0;
  statm >> total >> resident;
  return resident * ::sysconf(_SC_PAGESIZE);
}

void make_lambdas(int events) {
  const ChamberValues values{.B_field = 2.0F, .sides_cm = 500.0F, .kinetic_Mev = 3000.0F};
  TrackBuffer event;
  for (int i = 0; i < events; ++i) {
    ASSERT_EQ(make_event(test::event_type("lambda"), values, event), HandOver::yes);
  }
}

TEST(Memory, AHundredThousandLambdasInOneProcessDoNotMakeItGrow) {
  std::srand(131);
  make_lambdas(2000);
  const long before = resident_bytes();
  ASSERT_GT(before, 0);
  make_lambdas(100000);
  [[maybe_unused]] const long grown = resident_bytes() - before;
  // The address sanitizer keeps freed memory, and looks for leaks itself when the program ends.
  if constexpr (VELQUON_ADDRESS_SANITIZER == 0) {
    // One buffer of 350 points leaked in a hundred events would be 19 MB.
    EXPECT_LT(grown, 1L << 20U);
  }
}

}  // namespace
}  // namespace velquon
