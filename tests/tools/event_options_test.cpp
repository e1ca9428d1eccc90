// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/event_options.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/event_making.h"
#include "tests/tools/tool_run.h"

namespace velquon {
namespace {

using test::Words;

ParsedOptions parsed(const Words& words) {
  std::vector<const char*> argv{"velquon-events"};
  for (const std::string& word : words) {
    argv.push_back(word.c_str());
  }
  return parse_event_options(static_cast<int>(argv.size()), argv.data());
}

/// The options of a good command line.
EventOptions options_of(const Words& words) {
  const auto result = parsed(words);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.message, "");
  if (!result.options) {
    ADD_FAILURE() << "refused";
    return {};
  }
  return *result.options;
}

TEST(EventOptions, DefaultsAreTheStartUpValues) {
  const EventOptions options = options_of({"--type", "pi-"});
  EXPECT_EQ(options.type, &test::event_type("pi-"));
  EXPECT_EQ(options.values.B_field, 0.6F);
  EXPECT_EQ(options.values.sides_cm, 500.0F);
  EXPECT_EQ(options.values.kinetic_Mev, 0.4F);
  EXPECT_FALSE(options.seed.has_value());
  EXPECT_EQ(options.events, 1U);
  EXPECT_EQ(options.format, EventFormat::csv);
  EXPECT_FALSE(options.output.has_value());
}

TEST(EventOptions, EveryTypeHasItsName) {
  for (const char* key : {"pi-", "pi+", "pi0", "mu-", "mu+", "lambda"}) {
    EXPECT_EQ(options_of({"--type", key}).type, &test::event_type(key));
    EXPECT_EQ(options_of({std::string("--type=") + key}).type, &test::event_type(key));
  }
}

TEST(EventOptions, AllCanBeGiven) {
  const EventOptions options =
      options_of({"--output", "some/where", "--format", "cwd", "--events", "12", "--seed", "34",
                  "--energy", "5.5", "--side", "250", "--field", "-3.25", "--type", "lambda"});
  EXPECT_EQ(options.values.B_field, -3.25F);
  EXPECT_EQ(options.values.sides_cm, 250.0F);
  EXPECT_EQ(options.values.kinetic_Mev, 5.5F);
  EXPECT_EQ(options.seed, 34U);
  EXPECT_EQ(options.events, 12U);
  EXPECT_EQ(options.format, EventFormat::cwd);
  EXPECT_EQ(options.output, "some/where");
}

TEST(EventOptions, ValuesAreHeldAsTheControlsHoldThem) {
  EXPECT_EQ(options_of({"--type", "pi-", "--field", "0.1"}).values.B_field, 0.1F);
  // 0.07 cm are 0.0007 m in the control, and that times 100 is a neighbour of 0.07.
  const auto metres = static_cast<float>(static_cast<double>(0.07F) * 0.01);
  EXPECT_EQ(options_of({"--type", "pi-", "--side", "0.07"}).values.sides_cm, metres * 100.0F);
}

TEST(EventOptions, NumbersHaveTheirUsualForms) {
  EXPECT_EQ(options_of({"--type", "pi-", "--field", "+1.5"}).values.B_field, 1.5F);
  EXPECT_EQ(options_of({"--type", "pi-", "--field", "1e1"}).values.B_field, 10.0F);
  EXPECT_EQ(options_of({"--type", "pi-", "--field", "-.5"}).values.B_field, -0.5F);
  EXPECT_EQ(options_of({"--type", "pi-", "--field", "-0.0"}).values.B_field, 0.0F);
  EXPECT_EQ(options_of({"--type", "pi-", "--energy", "1e4"}).values.kinetic_Mev, 10000.0F);
  EXPECT_EQ(options_of({"--type", "pi-", "--field", "1e-400"}).values.B_field, 0.0F);
  EXPECT_EQ(options_of({"--type", "pi-", "--seed", "0"}).seed, 0U);
  EXPECT_EQ(options_of({"--type", "pi-", "--seed", "4294967295"}).seed, 4294967295U);
  EXPECT_EQ(options_of({"--type", "pi-", "--events", "0"}).events, 0U);
  EXPECT_EQ(options_of({"--type", "pi-", "--events", "1000000000"}).events, 1000000000U);
}

TEST(EventOptions, EveryFormatHasItsName) {
  for (const FormatTraits& format : event_formats()) {
    const std::string key(format.key);
    const EventOptions options =
        options_of(key == "csv" ? Words{"--type", "pi-", "--format", key}
                                : Words{"--type", "pi-", "--format", key, "--output", "somewhere"});
    EXPECT_EQ(options.format, format.format);
  }
}

TEST(EventOptions, ManySeedsCanBeGiven) {
  const EventOptions options = options_of({"--type", "pi-", "--seeds", "0-4294967295", "--jobs",
                                           "16", "--resume", "--progress", "--output", "runs"});
  ASSERT_TRUE(options.seeds.has_value());
  EXPECT_EQ(options.seeds->first, 0U);
  EXPECT_EQ(options.seeds->last, 4294967295U);
  EXPECT_EQ(options.seeds->size(), 4294967296U);
  EXPECT_EQ(options.jobs, 16U);
  EXPECT_TRUE(options.resume);
  EXPECT_TRUE(options.progress);
  const EventOptions usual = options_of({"--type", "pi-", "--seeds", "3-3"});
  EXPECT_EQ(usual.seeds->size(), 1U);
  EXPECT_EQ(usual.jobs, 1U);
  EXPECT_FALSE(usual.resume);
  EXPECT_FALSE(usual.progress);
}

TEST(EventOptions, SummariesToAddNeedNoType) {
  const EventOptions options = options_of({"--add-summaries", "a.json", "b.json"});
  EXPECT_EQ(options.summaries, (std::vector<std::filesystem::path>{"a.json", "b.json"}));
}

class HostileCommandLine : public ::testing::TestWithParam<Words> {};

TEST_P(HostileCommandLine, GivesStatus2AndOneLine) {
  const auto result = parsed(GetParam());
  EXPECT_FALSE(result.options.has_value());
  EXPECT_EQ(result.status, 2);
  EXPECT_TRUE(test::is_one_message(result.message)) << result.message;
}

Words with_type(Words words) {
  words.insert(words.begin(), {"--type", "pi-"});
  return words;
}

INSTANTIATE_TEST_SUITE_P(Types, HostileCommandLine,
                         ::testing::Values(Words{}, Words{"--type"}, Words{"--type="},
                                           Words{"--type", ""}, Words{"--type", "pi"},
                                           Words{"--type", "PI-"}, Words{"--type", " pi-"},
                                           Words{"--type", "[pi-,pi+]"},
                                           Words{"--type", "pi-", "--type", "pi+"}, Words{"pi-"},
                                           Words{"--typ", "pi-"}, Words{"--", "--type", "pi-"},
                                           Words{"--type", "pi-\nmu-"}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, HostileCommandLine,
    ::testing::Values(with_type({"--field"}), with_type({"--field="}), with_type({"--field", ""}),
                      with_type({"--field", "strong"}), with_type({"--field", "1,5"}),
                      with_type({"--field", "1 "}), with_type({"--field", " 1"}),
                      with_type({"--field", "0x10"}), with_type({"--field", "++1"}),
                      with_type({"--field", "+-1"}), with_type({"--field", "--1"}),
                      with_type({"--field", "nan"}), with_type({"--field", "-inf"}),
                      with_type({"--field", "1e39"}), with_type({"--field", "1e400"}),
                      with_type({"--field", "1", "2"}), with_type({"--field", "1\n2"}),
                      with_type({"--field", "1", "--field", "2"}), with_type({"--side", "0"}),
                      with_type({"--side", "-500"}), with_type({"--side", "1e-60"}),
                      with_type({"--side", "1e-45"}), with_type({"--side", "inf"}),
                      with_type({"--energy", "0"}), with_type({"--energy", "-0.0"}),
                      with_type({"--energy", "-1"}), with_type({"--energy", "1e-50"}),
                      with_type({"--energy", "1e-400"}), with_type({"--energy", "1e39"}),
                      with_type({"--energy", "nan"}), with_type({"--seed", "-1"}),
                      with_type({"--seed", "1.5"}), with_type({"--seed", ""}),
                      with_type({"--seed", "4294967296"}), with_type({"--events", "-1"}),
                      with_type({"--events", "1e3"}), with_type({"--events", "1000000001"}),
                      with_type({"--events", "99999999999999999999"})));

INSTANTIATE_TEST_SUITE_P(
    ManySeeds, HostileCommandLine,
    ::testing::Values(with_type({"--seeds"}), with_type({"--seeds", ""}),
                      with_type({"--seeds", "5"}), with_type({"--seeds", "5-"}),
                      with_type({"--seeds", "-5"}), with_type({"--seeds", "6-5"}),
                      with_type({"--seeds", "1-4294967296"}), with_type({"--seeds", "1-2-3"}),
                      with_type({"--seeds", "1 - 2"}), with_type({"--seeds", "a-b"}),
                      with_type({"--seeds", "1-2", "--seed", "1"}), with_type({"--jobs", "2"}),
                      with_type({"--seeds", "1-2", "--jobs", "0"}),
                      with_type({"--seeds", "1-2", "--jobs", "-1"}),
                      with_type({"--seeds", "1-2", "--jobs", "1025"}),
                      with_type({"--seeds", "1-2", "--jobs", "two"}), with_type({"--resume"}),
                      with_type({"--seeds", "1-2", "--resume=maybe"}),
                      with_type({"--format", "npy"}), with_type({"--add-summaries", "a.json"}),
                      Words{"--add-summaries"}, Words{"--add-summaries", "a.json", "--seed", "1"}));

INSTANTIATE_TEST_SUITE_P(
    Others, HostileCommandLine,
    ::testing::Values(with_type({"--format", "xml"}), with_type({"--format", "CSV"}),
                      with_type({"--output", "/tmp"}), with_type({"--format", "cwd", "--output"}),
                      with_type({"--format", "cwd", "--output", ""}),
                      with_type({"--format", "csv", "--output", "."}), with_type({"extra"}),
                      with_type({""}), with_type({"-"}), with_type({"--bogus"}),
                      with_type({"--bo\ngus"}), with_type({"-x"}), with_type({"--field=1=2"}),
                      with_type({"--\x1b[31mred"}), with_type({std::string(100000, 'a')})));

TEST(EventOptions, AMessageNamesTheOptionAndWhatItWas) {
  EXPECT_EQ(parsed({"--type", "pi-", "--side", "0"}).message,
            "velquon-events: --side: '0' is not a finite side in cm above 0\n");
}

TEST(EventOptions, AMistypedOptionIsNamedAheadOfWhatIsMissingBecauseOfIt) {
  EXPECT_EQ(parsed({"--typ", "pi-"}).message,
            "velquon-events: '--typ': is not known to velquon-events\n");
  EXPECT_EQ(parsed({"--type", "pi-", "--filed", "2"}).message,
            "velquon-events: '--filed': is not known to velquon-events\n");
  EXPECT_EQ(parsed({}).message, "velquon-events: --type is required\n");
}

TEST(EventOptions, TheMarkBehindTheOptionsIsNoArgument) {
  EXPECT_TRUE(parsed({"--type", "pi-", "--"}).options.has_value());
  EXPECT_EQ(parsed({"--type", "pi-", "--", "extra"}).message,
            "velquon-events: 'extra': is not known to velquon-events\n");
}

TEST(EventOptions, AMessageShowsNoControlCharacters) {
  EXPECT_EQ(parsed({"--type", "pi-", "--field", "1\n\x1b[31m2"}).message,
            "velquon-events: --field: '1??[31m2' is not a finite field in kG\n");
}

TEST(EventOptions, HelpAndVersionAreNoErrors) {
  const auto help = parsed({"--help"});
  EXPECT_FALSE(help.options.has_value());
  EXPECT_EQ(help.status, 0);
  for (const char* option :
       {"--type", "--field", "--side", "--energy", "--seed", "--events", "--format", "--output",
        "--version", "--seeds", "--jobs", "--resume", "--progress", "--add-summaries"}) {
    EXPECT_NE(help.message.find(option), std::string::npos) << option;
  }
  const auto version = parsed({"--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_TRUE(version.message.starts_with("velquon-events "));
}

}  // namespace
}  // namespace velquon
