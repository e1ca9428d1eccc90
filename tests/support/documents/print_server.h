// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <vector>

#include "tests/support/documents/environment.h"

namespace velquon::test {

/// A print server that takes calls and never says anything. While it exists, programs that this
/// one starts, and this one, take it for theirs.
class SilentPrintServer {
 public:
  /// \param path of the socket at which it is called
  explicit SilentPrintServer(const QString& path);
  ~SilentPrintServer();
  SilentPrintServer(const SilentPrintServer&) = delete;
  SilentPrintServer& operator=(const SilentPrintServer&) = delete;
  SilentPrintServer(SilentPrintServer&&) = delete;
  SilentPrintServer& operator=(SilentPrintServer&&) = delete;

  /// How many have called so far.
  [[nodiscard]] std::size_t callers();
  [[nodiscard]] bool wasCalledByThisProgram();

 private:
  void takeCalls();

  EnvironmentVariable address_;
  int listener_ = -1;
  std::vector<int> calls_;
  std::vector<int> processes_;  ///< of the callers
};

}  // namespace velquon::test
