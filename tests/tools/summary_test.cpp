// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/summary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "engine/kinematics.h"
#include "tests/support/event_making.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/tool_run.h"

namespace velquon {
namespace {

using test::run_tool;
using test::TemporaryFolder;
using test::Words;

constexpr ChamberValues summed_values{.B_field = 2.0F, .sides_cm = 300.0F, .kinetic_Mev = 60.0F};

/// The summary of streams of 300 events, one after another.
Summary summary_of(const char* type, const std::vector<std::uint32_t>& seeds) {
  Summary summary = empty_summary(
      {.type = &test::event_type(type), .values = summed_values, .seed = seeds.front()});
  for (const std::uint32_t seed : seeds) {
    if (seed != seeds.front()) {
      summary.runs.push_back({.seed = seed, .events = 0});
    }
    std::srand(seed);
    for (int i = 0; i < 300; ++i) {
      TrackBuffer buffer;
      ParticleRecord record;
      make_event(test::event_type(type), summed_values, buffer, &record);
      summary.count(buffer.points(), record);
    }
  }
  return summary;
}

Words words_of(const char* type, const char* seed) {
  return {"--type", type,       "--field", "2",      "--side", "300",      "--energy",
          "60",     "--events", "300",     "--seed", seed,     "--format", "summary"};
}

Summary read_summary(const std::string& text) {
  const auto read = summary_from_json(text);
  if (const auto* reason = std::get_if<std::string>(&read)) {
    ADD_FAILURE() << *reason;
    return {};
  }
  return std::get<Summary>(read);
}

void expect_near(const Sums& a, const Sums& b) {
  EXPECT_EQ(a.n, b.n);
  EXPECT_NEAR(a.sum, b.sum, 1e-13 * std::fabs(b.sum));
  EXPECT_NEAR(a.sum2, b.sum2, 1e-13 * b.sum2);
}

class SummaryOfType : public ::testing::TestWithParam<const char*> {};

TEST_P(SummaryOfType, OfTheToolIsThatOfTheEvents) {
  const auto run = run_tool(words_of(GetParam(), "5"));
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(read_summary(run.out), summary_of(GetParam(), {5}));
}

TEST_P(SummaryOfType, OfTwoRunsAddedIsThatOfBothStreams) {
  Summary sum = summary_of(GetParam(), {1});
  EXPECT_EQ(sum.add(summary_of(GetParam(), {2})), "");
  const Summary both = summary_of(GetParam(), {1, 2});
  EXPECT_EQ(sum.runs, both.runs);
  EXPECT_EQ(sum.events, 600U);
  EXPECT_EQ(sum.without_points, both.without_points);
  EXPECT_EQ(sum.not_handed_over, both.not_handed_over);
  expect_near(sum.points, both.points);
  ASSERT_EQ(sum.particles.size(), both.particles.size());
  for (const auto& [number, wanted] : both.particles) {
    const ParticleSums& particles = sum.particles.at(number);
    EXPECT_EQ(particles.n, wanted.n);
    EXPECT_EQ(particles.fates, wanted.fates);
    EXPECT_EQ(particles.modes, wanted.modes);
    expect_near(particles.points, wanted.points);
    expect_near(particles.momentum_MeV, wanted.momentum_MeV);
    expect_near(particles.energy_MeV, wanted.energy_MeV);
    expect_near(particles.flight_cm, wanted.flight_cm);
  }
}

TEST_P(SummaryOfType, KeepsEveryBitInItsText) {
  const Summary summary = summary_of(GetParam(), {9});
  EXPECT_EQ(read_summary(to_json(summary)), summary);
  EXPECT_EQ(to_json(read_summary(to_json(summary))), to_json(summary));
}

INSTANTIATE_TEST_SUITE_P(Types, SummaryOfType,
                         ::testing::Values("pi-", "pi+", "pi0", "mu-", "mu+", "lambda"));

TEST(Summary, CountsWhatTheRecordsSay) {
  std::srand(3);
  double flights = 0.0;
  double squared_flights = 0.0;
  std::uint64_t charged = 0;
  std::uint64_t escaped = 0;
  for (int i = 0; i < 300; ++i) {
    TrackBuffer buffer;
    ParticleRecord record;
    make_event(test::event_type("lambda"), summed_values, buffer, &record);
    const RecordedParticle& lambda = record.particles()[0];
    escaped += lambda.fate == Fate::escaped ? 1U : 0U;
    charged += record.particles().size() > 1 && record.particles()[1].pdg == pdg::proton ? 1U : 0U;
    const double flight = lambda.end_cm ? (*lambda.end_cm)[1] + 150.0 : 0.0;
    flights += flight;
    squared_flights += flight * flight;
  }
  const Summary summary = summary_of("lambda", {3});
  const ParticleSums& lambdas = summary.particles.at(pdg::lambda);
  EXPECT_EQ(lambdas.n, 300U);
  EXPECT_EQ(lambdas.fates[static_cast<std::size_t>(Fate::escaped)], escaped);
  EXPECT_EQ(lambdas.modes.at("2212 -211"), charged);
  EXPECT_EQ(lambdas.modes.at("2112 111"), 300U - escaped - charged);
  EXPECT_NEAR(lambdas.flight_cm.sum, flights, 1e-9);
  EXPECT_NEAR(lambdas.flight_cm.sum2, squared_flights, 1e-9);
  EXPECT_NEAR(lambdas.energy_MeV.sum, 300 * (60.0 + 1115.6), 1e-6);
  EXPECT_NEAR(lambdas.energy_MeV.sum2, 300 * (60.0 + 1115.6) * (60.0 + 1115.6), 1e-3);
}

TEST(Summary, CountsEventsThatAreNotHandedOver) {
  const auto run = run_tool({"--type", "mu+", "--field", "0", "--side", "1e12", "--seed", "1",
                             "--events", "50", "--format", "summary"});
  const Summary summary = read_summary(run.out);
  EXPECT_EQ(summary.events, 50U);
  EXPECT_GT(summary.not_handed_over, 10U);
  EXPECT_EQ(summary.particles.at(-pdg::muon).n, 50U - summary.not_handed_over);
}

TEST(AddedSummaries, AreTheSumInTheOrderOfTheFiles) {
  const TemporaryFolder folder;
  const std::string first = (folder.path() / "1.json").string();
  const std::string second = (folder.path() / "2.json").string();
  std::ofstream(first) << run_tool(words_of("lambda", "1")).out;
  std::ofstream(second) << run_tool(words_of("lambda", "2")).out;
  Summary wanted = summary_of("lambda", {1});
  ASSERT_EQ(wanted.add(summary_of("lambda", {2})), "");
  const auto run = run_tool({"--add-summaries", first, second});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.messages, "");
  EXPECT_EQ(run.out, to_json(wanted));
}

TEST(AddedSummaries, RefuseWhatIsNoneByNameAndReason) {
  const TemporaryFolder folder;
  const std::string good = (folder.path() / "good.json").string();
  const std::string bad = (folder.path() / "bad.json").string();
  const std::string text = to_json(summary_of("lambda", {1}));
  std::ofstream(good) << text;
  const auto changed = [&text](const std::string& from, const std::string& to) {
    std::string other = text;
    return other.replace(other.find(from), from.size(), to);
  };
  const std::vector<std::pair<std::string, std::string>> cases{
      {"", "it is empty"},
      {"{", "it is not JSON"},
      {"[1, 2]", "a field of a summary is missing or of another kind"},
      {"{}", "a field of a summary is missing or of another kind"},
      {changed("\"version\": 1", "\"version\": 2"), "it is not called a summary of version 1"},
      {changed("\"events\": 300", "\"events\": -3"), "'events' is no count"},
      {changed("\"without_points\": ", R"("without_points": "x", "y": )"),
       "'without_points' is no count"},
      {changed("\"particles\": {", R"("particles": {"13abc": {}, )"),
       "'13abc' is no particle's number"},
      {changed("\"side_cm\": 300.0", "\"side_cm\": null"), "'side_cm' is no number"},
      {changed("\"side_cm\": 300.0", "\"side_cm\": 301.0"),
       "its events are of another type or made under other values"},
      {text, "the events of seed 1 are counted already"}};
  for (const auto& [content, reason] : cases) {
    std::ofstream(bad) << content;
    const auto run = run_tool({"--add-summaries", good, bad});
    EXPECT_EQ(run.status, 1) << reason;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(
        run.messages,
        std::string("velquon-events: cannot add ").append(bad).append(": ").append(reason) + "\n");
  }
  const auto run = run_tool({"--add-summaries", (folder.path() / "none").string()});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.messages, "velquon-events: cannot add " + (folder.path() / "none").string() +
                              ": No such file or directory\n");
}

}  // namespace
}  // namespace velquon
