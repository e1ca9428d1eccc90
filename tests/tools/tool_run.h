// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace velquon::test {

using Names = std::vector<std::string>;
using Words = std::vector<std::string>;

/// Words and further ones behind them.
[[nodiscard]] Words with(Words words, const Words& more);

/// Files into which a tool's output goes; where none is named, the stream is closed.
struct ToolStreams {
  std::filesystem::path out;
  std::filesystem::path messages;
};

/// Starts the tool that is built with the tests.
/// \param variables of its environment besides this program's, "NAME=value"
[[nodiscard]] pid_t start_tool(const Words& arguments, const ToolStreams& streams,
                               const std::vector<std::string>& variables = {});

/// How a run of the command-line tool ended.
struct ToolRun {
  int status = -1;  ///< exit status; -1 when it did not exit by itself
  std::string out;
  std::string messages;
};

/// Runs the tool. Each argument is passed as it is.
/// \param out_file where its standard output goes instead of into `out`
/// \param variables of its environment besides this program's, "NAME=value"
[[nodiscard]] ToolRun run_tool(const Words& arguments, const std::filesystem::path& out_file = {},
                               const std::vector<std::string>& variables = {});

/// Runs the tool and kills it after a time, unless it has ended by then; waits for what it started.
void kill_tool(const Words& arguments, std::chrono::milliseconds after);

/// True when the text is one line, with its end, that begins with the tool's name.
[[nodiscard]] bool is_one_message(const std::string& text);

}  // namespace velquon::test
