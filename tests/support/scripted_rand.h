// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace velquon::test {

/// The smallest and the largest result of `rand`: draws of exactly 0 and 1.
inline constexpr int lowest_draw = 0;
inline constexpr int highest_draw = std::numeric_limits<int>::max();

/// The result of `rand` that makes a draw of this fraction, rounded down.
[[nodiscard]] int draw_of(double fraction);

/// The values of several lists, one list after another.
[[nodiscard]] std::vector<int> joined(const std::vector<std::vector<int>>& lists);

/// While one lives, `rand` plays its values. A test program that draws beyond them is ended with a
/// message, because a walk or a rejection loop could otherwise run for ever.
class ScriptedRand {
 public:
  explicit ScriptedRand(std::vector<int> values);
  /// Plays the values and then the last one for ever.
  ScriptedRand(std::vector<int> values, int for_ever);
  ~ScriptedRand();
  ScriptedRand(const ScriptedRand&) = delete;
  ScriptedRand& operator=(const ScriptedRand&) = delete;

  /// Draws made since the script began.
  [[nodiscard]] std::size_t draws() const { return draws_; }
  /// True when every value of the script has been drawn.
  [[nodiscard]] bool played_out() const { return draws_ >= values_.size(); }

  int next();

 private:
  std::vector<int> values_;
  std::optional<int> for_ever_;
  std::size_t draws_ = 0;
};

/// Draws made from the C library's own generator in this program, while no script played.
[[nodiscard]] std::size_t real_draws();

}  // namespace velquon::test
