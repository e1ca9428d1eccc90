// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace velquon::testing {

/// How a run of the command-line tool ended.
struct ToolRun {
  int status = -1;  ///< exit status; -1 when it did not exit by itself
  std::string out;
  std::string messages;
};

/// Runs the tool that is built with the tests. Each argument is passed as it is.
/// \param out_file where its standard output goes instead of into `out`
/// \param variables of its environment besides this program's, "NAME=value"
[[nodiscard]] ToolRun run_tool(const std::vector<std::string>& arguments,
                               const std::filesystem::path& out_file = {},
                               const std::vector<std::string>& variables = {});

/// Runs the tool and kills it after a time, unless it has ended by then; waits for what it started.
void kill_tool(const std::vector<std::string>& arguments, std::chrono::milliseconds after);

/// True when the text is one line, with its end, that begins with the tool's name.
[[nodiscard]] bool is_one_message(const std::string& text);

}  // namespace velquon::testing
