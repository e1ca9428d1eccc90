// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/tools/tool_run.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iterator>
#include <stdexcept>
#include <thread>

#include "tests/support/temporary_folder.h"

namespace velquon::test {

namespace {

int exit_status(pid_t process) {
  int status = 0;
  if (::waitpid(process, &status, 0) != process || !WIFEXITED(status)) {
    return -1;
  }
  return WEXITSTATUS(status);
}

/// The words as `execve` takes them.
std::vector<char*> pointers_to(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  std::ranges::transform(words, std::back_inserter(pointers),
                         [](std::string& word) { return word.data(); });
  pointers.push_back(nullptr);
  return pointers;
}

void direct(posix_spawn_file_actions_t& actions, int stream, const std::filesystem::path& file) {
  if (file.empty()) {
    ::posix_spawn_file_actions_addclose(&actions, stream);
  } else {
    ::posix_spawn_file_actions_addopen(&actions, stream, file.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                       0600);
  }
}

}  // namespace

Words with(Words words, const Words& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

pid_t start_tool(const Words& arguments, const ToolStreams& streams,
                 const std::vector<std::string>& variables) {
  Words words = with({EVENT_TOOL}, arguments);
  std::vector<std::string> environment = variables;
  for (char** variable = ::environ; *variable != nullptr; ++variable) {
    environment.emplace_back(*variable);
  }

  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  direct(actions, STDOUT_FILENO, streams.out);
  direct(actions, STDERR_FILENO, streams.messages);
  pid_t process = 0;
  const int error = ::posix_spawn(&process, EVENT_TOOL, &actions, nullptr,
                                  pointers_to(words).data(), pointers_to(environment).data());
  ::posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    throw std::runtime_error("cannot run " EVENT_TOOL);
  }
  return process;
}

ToolRun run_tool(const Words& arguments, const std::filesystem::path& out_file,
                 const std::vector<std::string>& variables) {
  const TemporaryFolder folder;
  const auto out = out_file.empty() ? folder.path() / "out" : out_file;
  const auto messages = folder.path() / "messages";
  const int status = exit_status(start_tool(arguments, {out, messages}, variables));
  return {status, out_file.empty() ? file_text(out) : std::string(), file_text(messages)};
}

void kill_tool(const Words& arguments, std::chrono::milliseconds after) {
  // What it started becomes a child of this process.
  ::prctl(PR_SET_CHILD_SUBREAPER, 1);
  const pid_t process = start_tool(arguments, {"/dev/null", "/dev/null"});
  std::this_thread::sleep_for(after);
  ::kill(process, SIGKILL);
  while (::wait(nullptr) > 0) {
  }
}

bool is_one_message(const std::string& text) {
  return text.starts_with("velquon-events: ") && std::ranges::count(text, '\n') == 1 &&
         text.ends_with('\n');
}

}  // namespace velquon::test
