// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velquon::bench {

/// The medians over the repetitions of one run of a benchmark program.
class Medians {
 public:
  void add(const std::string& benchmark, const std::string& figure, double value) {
    values_[benchmark][figure] = value;
  }

  /// \param benchmark name as registered
  /// \param figure    name of a counter, or "processor time" for that of an iteration
  /// \return NaN when it was not measured
  [[nodiscard]] double of(const std::string& benchmark, const std::string& figure) const;

 private:
  std::map<std::string, std::map<std::string, double>> values_;
};

/// `none`: the figure is only shown, beside those that it helps to judge.
enum class Bound { at_least, at_most, none };

/// A figure that a run is held to.
struct Requirement {
  std::string what;
  Bound bound;
  double limit;  ///< of no meaning without a bound
  std::function<double(const Medians&)> figure;
};

/// Registers a benchmark of which a repetition takes 0.02 s at least.
void add_benchmark(const std::string& name, const std::function<void(benchmark::State&)>& function);

/// Runs the registered benchmarks, their repetitions in a random order so that a change of the
/// machine's speed falls on all alike, and prints a line for each requirement at the end. With
/// `--requirements=FILE` the lines are also added to FILE, fields separated by tabs: what, figure,
/// bound, whether it holds.
/// \param repetitions of each benchmark, unless the arguments say another number
/// \return exit status: 0 when every figure was measured, whether or not the requirements hold
int run_benchmarks(int argc, char** argv, int repetitions,
                   const std::vector<Requirement>& requirements);

/// Takes `--name=VALUE` out of a program's arguments.
/// \return VALUE; empty when the option is not there
std::string take_option(int& argc, char** argv, std::string_view name);

/// Prints the lines of requirements, and adds them to a file as `run_benchmarks` does.
/// \param file none when empty
/// \return false when a figure was not measured or the file cannot be written
bool report_requirements(const Medians& medians, const std::vector<Requirement>& requirements,
                         const std::string& file);

}  // namespace velquon::bench
