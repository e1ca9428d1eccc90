#include "tests/support/leaks.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>

const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  // The driver keeps what it made for the feedback mode of a context that is gone.
  return "leak:libfontconfig\nleak:swrast_dri\n";
}
#endif

namespace velquon::testing {

void look_for_leaks() {
#if defined(__SANITIZE_ADDRESS__)
  __lsan_do_leak_check();
#endif
}

}  // namespace velquon::testing
