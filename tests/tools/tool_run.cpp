#include "tests/tools/tool_run.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

#include "tests/support/temporary_folder.h"

namespace velquon::testing {

namespace {

int exit_status(pid_t process) {
  int status = 0;
  if (::waitpid(process, &status, 0) != process || !WIFEXITED(status)) {
    return -1;
  }
  return WEXITSTATUS(status);
}

}  // namespace

ToolRun run_tool(const std::vector<std::string>& arguments, const std::filesystem::path& out_file) {
  const TemporaryFolder folder;
  const auto out = out_file.empty() ? folder.path() / "out" : out_file;
  const auto messages = folder.path() / "messages";

  std::vector<std::string> words{EVENT_TOOL};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  std::ranges::transform(words, std::back_inserter(argv),
                         [](std::string& word) { return word.data(); });
  argv.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
  ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), flags, 0600);
  ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, messages.c_str(), flags, 0600);
  pid_t process = 0;
  const int error = ::posix_spawn(&process, EVENT_TOOL, &actions, nullptr, argv.data(), ::environ);
  ::posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    throw std::runtime_error("cannot run " EVENT_TOOL);
  }
  const int status = exit_status(process);
  return {status, out_file.empty() ? file_text(out) : std::string(), file_text(messages)};
}

bool is_one_message(const std::string& text) {
  return text.starts_with("velquon-events: ") && std::ranges::count(text, '\n') == 1 &&
         text.ends_with('\n');
}

}  // namespace velquon::testing
