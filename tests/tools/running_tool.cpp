// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/tools/running_tool.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

namespace velquon::test {

RunningTool::RunningTool(const Words& arguments, const ToolStreams& streams,
                         const std::vector<std::string>& variables)
    : process_(start_tool(arguments, streams, variables)) {}

std::vector<pid_t> RunningTool::workers() const {
  std::ifstream list("/proc/" + std::to_string(process_) + "/task/" + std::to_string(process_) +
                     "/children");
  std::vector<pid_t> workers;
  for (pid_t worker = 0; list >> worker;) {
    workers.push_back(worker);
  }
  return workers;
}

std::vector<pid_t> RunningTool::wait_for_workers(std::size_t number) const {
  for (int i = 0; i < 30000 && workers().size() < number; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return workers();
}

int RunningTool::status() const {
  int status = 0;
  for (int i = 0; i < 6000; ++i) {
    if (::waitpid(process_, &status, WNOHANG) == process_) {
      return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  ::kill(process_, SIGKILL);
  ::waitpid(process_, &status, 0);
  ADD_FAILURE() << "it does not end";
  return -1;
}

}  // namespace velquon::test
