// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "tests/tools/tool_run.h"

namespace velquon::test {

/// The tool while it runs.
class RunningTool {
 public:
  /// Arguments as for `start_tool`.
  RunningTool(const Words& arguments, const ToolStreams& streams,
              const std::vector<std::string>& variables = {});
  [[nodiscard]] pid_t process() const { return process_; }

  /// The processes that it has started and that run.
  [[nodiscard]] std::vector<pid_t> workers() const;
  /// Waits, for half a minute at most, until so many workers run.
  [[nodiscard]] std::vector<pid_t> wait_for_workers(std::size_t number) const;
  /// Waits for its end, for a minute at most; then it is killed.
  /// \return -1 when it did not exit by itself
  [[nodiscard]] int status() const;

 private:
  pid_t process_;
};

}  // namespace velquon::test
