// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/requirement.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>

namespace velquon::bench {

namespace {

/// The usual table on the console, of which the medians are kept.
class KeepingReporter : public benchmark::ConsoleReporter {
 public:
  explicit KeepingReporter(Medians& medians) : ConsoleReporter(OO_Tabular), medians_(medians) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.error_occurred) {
        failed_ = true;
      } else if (run.aggregate_name == "median") {
        const std::string name =
            run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args);
        medians_.add(name, "processor time", run.GetAdjustedCPUTime());
        for (const auto& [figure, counter] : run.counters) {
          medians_.add(name, figure, counter.value);
        }
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

  [[nodiscard]] bool failed() const { return failed_; }

 private:
  Medians& medians_;
  bool failed_ = false;
};

std::string with_three_digits(double value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), value >= 1000.0 ? "%.0f" : "%.3g", value);
  return text.data();
}

std::string bound_text(const Requirement& requirement) {
  switch (requirement.bound) {
    case Bound::at_least:
      return "at least " + with_three_digits(requirement.limit);
    case Bound::at_most:
      return "at most " + with_three_digits(requirement.limit);
    case Bound::none:
      break;
  }
  return "-";
}

const char* verdict_on(const Requirement& requirement, double figure) {
  if (std::isnan(figure)) {
    return "not measured";
  }
  if (requirement.bound == Bound::none) {
    return "-";
  }
  const bool holds = requirement.bound == Bound::at_least ? figure >= requirement.limit
                                                          : figure <= requirement.limit;
  return holds ? "holds" : "MISSED";
}

}  // namespace

double Medians::of(const std::string& benchmark, const std::string& figure) const {
  const auto row = values_.find(benchmark);
  if (row != values_.end()) {
    const auto value = row->second.find(figure);
    if (value != row->second.end()) {
      return value->second;
    }
  }
  return std::numeric_limits<double>::quiet_NaN();
}

std::string take_option(int& argc, char** argv, std::string_view name) {
  const std::string start = "--" + std::string(name) + "=";
  char** const end = argv + argc;
  char** const found = std::find_if(argv, end, [&](const char* argument) {
    return std::string_view(argument).starts_with(start);
  });
  if (found == end) {
    return {};
  }
  std::string value = std::string(*found).substr(start.size());
  std::rotate(found, found + 1, end);
  --argc;
  return value;
}

bool report_requirements(const Medians& medians, const std::vector<Requirement>& requirements,
                         const std::string& file) {
  std::ofstream lines;
  if (!file.empty()) {
    lines.open(file, std::ios::app);
  }
  bool measured = true;
  for (const Requirement& requirement : requirements) {
    const double figure = requirement.figure(medians);
    const std::string bound = bound_text(requirement);
    const char* const verdict = verdict_on(requirement, figure);
    measured = measured && !std::isnan(figure);
    std::printf("%-58s %8s  (%s: %s)\n", requirement.what.c_str(),
                with_three_digits(figure).c_str(), bound.c_str(), verdict);
    lines << requirement.what << '\t' << with_three_digits(figure) << '\t' << bound << '\t'
          << verdict << '\n';
  }
  lines.flush();
  return measured && (file.empty() || lines.good());
}

void add_benchmark(const std::string& name,
                   const std::function<void(benchmark::State&)>& function) {
  constexpr double shortest_time = 0.02;  // seconds of one repetition
  benchmark::RegisterBenchmark(name.c_str(), function)
      ->Unit(benchmark::kMillisecond)
      ->MinTime(shortest_time);
}

int run_benchmarks(int argc, char** argv, int repetitions,
                   const std::vector<Requirement>& requirements) {
  const std::string file = take_option(argc, argv, "requirements");
  // The arguments of the command line come later and win.
  std::array defaults{std::string("--benchmark_enable_random_interleaving=true"),
                      std::string("--benchmark_report_aggregates_only=true"),
                      "--benchmark_repetitions=" + std::to_string(repetitions)};
  std::vector<char*> arguments{argv[0]};
  for (std::string& option : defaults) {
    arguments.push_back(option.data());
  }
  for (int i = 1; i < argc; ++i) {
    arguments.push_back(argv[i]);
  }
  auto count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
    return 2;
  }
  Medians medians;
  KeepingReporter reporter(medians);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return report_requirements(medians, requirements, file) && !reporter.failed() ? 0 : 1;
}

}  // namespace velquon::bench
