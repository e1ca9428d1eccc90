// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace velquon::test {

/// A system call that goes wrong. The calls are `fsync`, `write` and `pwrite` (of regular files but
/// the three standard ones), `fchmod`, `linkat`, `renameat`, and of `openat` three kinds: `tmpfile`
/// opens a file without a name, `create` makes one, `open` opens what there is.
struct CallFault {
  static constexpr int for_ever = -1;

  std::string call;
  int error = 0;               ///< errno with which it fails; 0: it succeeds
  int spared = 0;              ///< calls that succeed before the first that does not
  int times = for_ever;        ///< calls that go wrong
  std::size_t most_bytes = 0;  ///< a `write` that succeeds takes at most so many; 0: all
  bool kills = false;          ///< after the call, SIGKILL ends the process that made the fault
};

/// While one lives, the system calls of this program go wrong; one at a time may.
class CallFaultsInForce {
 public:
  explicit CallFaultsInForce(const std::vector<CallFault>& faults);
  ~CallFaultsInForce();
  CallFaultsInForce(const CallFaultsInForce&) = delete;
  CallFaultsInForce& operator=(const CallFaultsInForce&) = delete;
  CallFaultsInForce(CallFaultsInForce&&) = delete;
  CallFaultsInForce& operator=(CallFaultsInForce&&) = delete;
};

/// The variables of the environment, "NAME=value", with which another program has the faults.
/// \param library the library `call_faults`, which is loaded ahead of that program's others
[[nodiscard]] std::vector<std::string> variables_of(const std::vector<CallFault>& faults,
                                                    const std::string& library);

}  // namespace velquon::test
