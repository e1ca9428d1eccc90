// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/plain_rights.h"

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace velquon::test {

namespace {

/// What lets the superuser pass by the rights of files.
constexpr unsigned overriding[] = {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH, CAP_FOWNER};

void require(bool done, const char* what) {
  if (!done) {
    std::perror(what);
    std::abort();
  }
}

void give_up_overriding() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct data[2]{};
  require(::syscall(SYS_capget, &header, data) == 0, "capget");
  for (const unsigned capability : overriding) {
    // From the set that a superuser's program starts with, too.
    require(::prctl(PR_CAPBSET_DROP, capability, 0, 0, 0) == 0, "PR_CAPBSET_DROP");
    data[0].effective &= ~(1U << capability);
    data[0].permitted &= ~(1U << capability);
    data[0].inheritable &= ~(1U << capability);
  }
  require(::syscall(SYS_capset, &header, data) == 0, "capset");
}

}  // namespace

int with_plain_rights(const std::function<int()>& body) {
  const pid_t child = ::fork();
  if (child == 0) {
    if (::geteuid() == 0) {
      give_up_overriding();
    }
    const int result = body();
    std::fflush(nullptr);
    ::_exit(result);
  }
  int status = 0;
  return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace velquon::test
