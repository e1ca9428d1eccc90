// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/event_output.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/scripted_rand.h"
#include "tests/support/temporary_folder.h"

namespace velquon {
namespace {

using test::draw_of;
using test::highest_draw;
using test::lowest_draw;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

// A muon that decays after two steps into an electron straight ahead, which "decays" after two steps
// too: a chain whose last particle decays is not handed over. In the next event nothing decays, so
// the muon crosses the chamber.
const std::vector<int> one_event_not_handed_over{lowest_draw,  highest_draw, draw_of(0.5),
                                                 highest_draw, lowest_draw,  lowest_draw,
                                                 lowest_draw,  highest_draw};

struct CloseOutput {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OutputFile = std::unique_ptr<std::FILE, CloseOutput>;

struct Written {
  std::string out;
  std::string messages;
};

/// What a run for two events with these draws writes.
Written write_two_events(const std::string& format, const std::string& output) {
  std::vector<const char*> words{
      "velquon-events", "--type", "mu-",    "--field", "0",        "--energy",    "50",
      "--events",       "2",      "--seed", "1",       "--format", format.c_str()};
  if (!output.empty()) {
    words.insert(words.end(), {"--output", output.c_str()});
  }
  const auto parsed = parse_event_options(static_cast<int>(words.size()), words.data());
  EXPECT_TRUE(parsed.options) << parsed.message;

  const TemporaryFolder folder;
  {
    const OutputFile out(std::fopen((folder.path() / "out").c_str(), "w"));
    const OutputFile messages(std::fopen((folder.path() / "messages").c_str(), "w"));
    const test::ScriptedRand script(one_event_not_handed_over, lowest_draw);
    EXPECT_EQ(write_events(parsed.options.value(), out.get(), messages.get()), 0);
    EXPECT_TRUE(script.played_out());
  }
  return {test::file_text(folder.path() / "out"), test::file_text(folder.path() / "messages")};
}

TEST(WriteEvents, AnEventThatIsNotHandedOverHasItsNumberAndNoLines) {
  const std::string text = write_two_events("csv", "").out;
  EXPECT_TRUE(text.starts_with("event,point,x,y,z,code\n2,0,")) << text;
  EXPECT_GT(std::ranges::count(text, '\n'), 30) << "the muon that crosses the chamber";
}

TEST(WriteEvents, AnEventThatIsNotHandedOverGetsNoFileAndIsCounted) {
  const TemporaryFolder folder;
  const Written written = write_two_events("cwd", folder.path());
  EXPECT_EQ(folder.names(), Names{"event-000002.cwd"});
  EXPECT_EQ(written.messages, "velquon-events: 1 of 2 events had no points and got no file\n");
}

}  // namespace
}  // namespace velquon
