// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/scripted_rand.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "engine/random.h"

namespace velquon::test {

namespace {

// The one script that plays, and the count of forwarded draws: `rand` has no other way to them.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
ScriptedRand* playing = nullptr;
std::size_t forwarded = 0;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

using RandFunction = int (*)();

RandFunction real_rand() {
  static const auto function = reinterpret_cast<RandFunction>(::dlsym(RTLD_NEXT, "rand"));
  return function;
}

[[noreturn]] void give_up(const char* what) {
  std::fprintf(stderr, "scripted rand: %s\n", what);
  std::abort();
}

}  // namespace

int draw_of(double fraction) {
  return static_cast<int>(fraction * largest_draw);
}

std::vector<int> joined(const std::vector<std::vector<int>>& lists) {
  std::vector<int> all;
  for (const auto& list : lists) {
    all.insert(all.end(), list.begin(), list.end());
  }
  return all;
}

ScriptedRand::ScriptedRand(std::vector<int> values) : values_(std::move(values)) {
  if (playing != nullptr) {
    give_up("a script plays already");
  }
  playing = this;
}

ScriptedRand::ScriptedRand(std::vector<int> values, int for_ever)
    : ScriptedRand(std::move(values)) {
  for_ever_ = for_ever;
}

ScriptedRand::~ScriptedRand() {
  playing = nullptr;
}

int ScriptedRand::next() {
  const std::size_t index = draws_++;
  if (index < values_.size()) {
    return values_[index];
  }
  if (!for_ever_) {
    give_up("drawn beyond the end of the script");
  }
  return *for_ever_;
}

std::size_t real_draws() {
  return forwarded;
}

namespace {

/// What the program's `rand` answers.
int answer() {
  if (playing != nullptr) {
    return playing->next();
  }
  ++forwarded;
  return real_rand()();
}

}  // namespace

}  // namespace velquon::test

extern "C" int rand() noexcept {
  return velquon::test::answer();
}
