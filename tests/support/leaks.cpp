// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/leaks.h"

#include "tests/support/sanitizers.h"

#if VELQUON_ADDRESS_SANITIZER
#include <sanitizer/lsan_interface.h>

const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  // The driver keeps what it made for the feedback mode of a context that is gone.
  return "leak:libfontconfig\nleak:swrast_dri\n";
}
#endif

namespace velquon::test {

void look_for_leaks() {
#if VELQUON_ADDRESS_SANITIZER
  __lsan_do_leak_check();
#endif
}

}  // namespace velquon::test
