// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The program under what a user can do in any order.

#include <gtest/gtest.h>

#include <QByteArray>
#include <chrono>
#include <csignal>
#include <cstdio>

#include "tests/integration/endurance/monkey.h"

namespace velquon::test {

namespace {

/// A number from the environment.
int number_from(const char* variable, int otherwise) {
  bool is_number = false;
  const int number = qEnvironmentVariableIntValue(variable, &is_number);
  return is_number ? number : otherwise;
}

// A signal's handler has no other way to it.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
Monkey* at_play = nullptr;

/// Tells what was done before a crash.
void tell_and_crash(int signal) {
  std::fputs(at_play->lastDone().c_str(), stderr);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

TEST(Monkey, NothingThatIsDoneInAnyOrderBreaksTheProgram) {
  const int seconds = number_from("VELQUON_MONKEY_SECONDS", 60);
  const int seed = number_from("VELQUON_MONKEY_SEED", 1);
  Monkey monkey(static_cast<std::uint32_t>(seed));
  at_play = &monkey;
  for (const int signal : {SIGSEGV, SIGABRT, SIGFPE}) {
    std::signal(signal, tell_and_crash);
  }
  const int done = monkey.play(seconds);
  std::printf("seed %d: %d things done, %d alerts\n", seed, done, monkey.dialogs().alerts());
  constexpr int fewest_a_second = 3;
  EXPECT_GT(done, fewest_a_second * seconds) << monkey.lastDone();
  EXPECT_GT(monkey.dialogs().alerts(), 0);
}

}  // namespace velquon::test
