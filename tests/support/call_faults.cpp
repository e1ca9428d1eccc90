// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The headers' checking functions of the same names would stand in the way.
#undef _FORTIFY_SOURCE

#include "tests/support/call_faults.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>
#include <sstream>
#include <string_view>

// Takes the place of the C library's functions: linked into a test program, or loaded ahead of the
// C library into any other.

namespace velquon::test {

namespace {

constexpr const char* variable_name = "VELQUON_CALL_FAULT";

struct CallCounts {
  int spared;
  int times;
};

/// Counts in memory that a process shares with its children.
std::shared_ptr<CallCounts> shared_counts(int spared, int times) {
  void* const memory = ::mmap(nullptr, sizeof(CallCounts), PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) {
    std::perror("mmap");
    std::abort();
  }
  return {new (memory) CallCounts{spared, times},
          [](CallCounts* counts) { ::munmap(counts, sizeof *counts); }};
}

/// A fault, and the process that made it. Child processes count the calls with it.
struct InForce {
  CallFault fault;
  pid_t owner = ::getpid();
  std::shared_ptr<CallCounts> counts = shared_counts(fault.spared, fault.times);
};

/// Faults written as "CALL ERRNO SPARED TIMES" with blanks between them.
std::vector<InForce> faults_of_environment() {
  const char* const text = std::getenv(variable_name);
  std::istringstream words(text == nullptr ? "" : text);
  std::vector<InForce> faults;
  for (CallFault fault; words >> fault.call;) {
    if (!(words >> fault.error >> fault.spared >> fault.times)) {
      std::fprintf(stderr, "%s is not understood: %s\n", variable_name, text);
      std::abort();
    }
    faults.push_back({.fault = fault});
  }
  return faults;
}

std::vector<InForce>& all_in_force() {
  static std::vector<InForce> faults = faults_of_environment();
  return faults;
}

/// The fault that this call has, if any; counts the call.
const InForce* fault_of(std::string_view call) {
  for (const InForce& candidate : all_in_force()) {
    auto& [spared, times] = *candidate.counts;
    if (candidate.fault.call != call || times == 0) {
      continue;
    }
    if (spared > 0) {
      --spared;
      continue;
    }
    if (times != CallFault::for_ever) {
      --times;
    }
    return &candidate;
  }
  return nullptr;
}

template <typename Function>
Function* real(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// Makes a call, with its fault.
/// \param call is told how many bytes may be written; 0: all
template <typename Call>
auto faulty(std::string_view name, Call call) -> decltype(call(std::size_t{})) {
  const InForce* const found = fault_of(name);
  if (found != nullptr && found->fault.error != 0) {
    errno = found->fault.error;
    return -1;
  }
  const auto result = call(found != nullptr ? found->fault.most_bytes : 0);
  if (found != nullptr && found->fault.kills) {
    ::kill(found->owner, SIGKILL);
  }
  return result;
}

bool is_regular(int file) {
  struct stat status {};
  return file > STDERR_FILENO && ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

std::size_t taken_of(std::size_t size, std::size_t most) {
  return most == 0 ? size : std::min(size, most);
}

std::string_view kind_of_open(int flags) {
  return (flags & O_TMPFILE) == O_TMPFILE ? "tmpfile" : (flags & O_CREAT) != 0 ? "create" : "open";
}

}  // namespace

CallFaultsInForce::CallFaultsInForce(const std::vector<CallFault>& faults) {
  for (const CallFault& fault : faults) {
    all_in_force().push_back({.fault = fault});
  }
}

CallFaultsInForce::~CallFaultsInForce() {
  all_in_force().clear();
}

std::vector<std::string> variables_of(const std::vector<CallFault>& faults,
                                      const std::string& library) {
  std::ostringstream text;
  text << variable_name << '=';
  for (const CallFault& fault : faults) {
    text << fault.call << ' ' << fault.error << ' ' << fault.spared << ' ' << fault.times << ' ';
  }
  // An address sanitizer wants to be first, unless it is told that this is meant.
  return {"LD_PRELOAD=" + library, text.str(), "ASAN_OPTIONS=verify_asan_link_order=0"};
}

}  // namespace velquon::test

using velquon::test::faulty;
using velquon::test::real;
using velquon::test::taken_of;

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the C library's are reserved.
extern "C" {

int fsync(int file) {
  return faulty("fsync", [=](std::size_t) { return real<int(int)>("fsync")(file); });
}

int fchmod(int file, mode_t mode) noexcept {
  return faulty("fchmod",
                [=](std::size_t) { return real<int(int, mode_t)>("fchmod")(file, mode); });
}

int linkat(int from_folder, const char* from, int to_folder, const char* to, int flags) noexcept {
  return faulty("linkat", [=](std::size_t) {
    return real<int(int, const char*, int, const char*, int)>("linkat")(from_folder, from,
                                                                        to_folder, to, flags);
  });
}

int renameat(int from_folder, const char* from, int to_folder, const char* to) noexcept {
  return faulty("renameat", [=](std::size_t) {
    return real<int(int, const char*, int, const char*)>("renameat")(from_folder, from, to_folder,
                                                                     to);
  });
}

ssize_t write(int file, const void* bytes, std::size_t size) {
  const auto call = real<ssize_t(int, const void*, std::size_t)>("write");
  if (!velquon::test::is_regular(file)) {
    return call(file, bytes, size);
  }
  return faulty("write", [=](std::size_t most) { return call(file, bytes, taken_of(size, most)); });
}

ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t offset) {
  return faulty("pwrite", [=](std::size_t most) {
    return real<ssize_t(int, const void*, std::size_t, off_t)>("pwrite")(
        file, bytes, taken_of(size, most), offset);
  });
}

int openat(int folder, const char* name, int flags, ...) {
  std::va_list arguments;
  va_start(arguments, flags);
  const bool makes_a_file = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
  const mode_t mode = makes_a_file ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return faulty(velquon::test::kind_of_open(flags), [=](std::size_t) {
    return real<int(int, const char*, int, ...)>("openat")(folder, name, flags, mode);
  });
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
