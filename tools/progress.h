// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

namespace velquon {

/// Tells how far a run is: on a terminal a bar in one line, drawn anew, elsewhere a line every ten
/// seconds.
class Progress {
 public:
  using Clock = std::chrono::steady_clock;

  /// \param total    events in all
  /// \param messages where to tell it; null: nowhere
  /// \param terminal whether that is a terminal
  Progress(std::uint64_t total, std::FILE* messages, bool terminal,
           Clock::time_point now = Clock::now());

  /// Says that so many of the events that are done were there before: they took no time.
  void leaveOut(std::uint64_t events) { left_out_ += events; }
  /// Says that so many events are done, those that were there before included; tells it when it is
  /// time to.
  void show(std::uint64_t done, Clock::time_point now = Clock::now());
  /// Takes the bar away, if there is one: a message is to have the row. The next `show` draws it
  /// anew when it is time to.
  void clear();
  /// Ends the bar, if there is one, at what was said last; what follows has a line of its own.
  void end(Clock::time_point now = Clock::now());

 private:
  [[nodiscard]] std::string state(Clock::time_point now) const;
  void draw_bar(Clock::time_point now);

  std::uint64_t total_;
  std::uint64_t done_ = 0;
  std::uint64_t left_out_ = 0;
  std::FILE* messages_;
  bool terminal_;
  bool drawn_ = false;
  Clock::time_point begin_;
  Clock::time_point next_;
};

/// A progress on standard error for a person who asks for it, or a silent one.
[[nodiscard]] Progress progress_on(std::FILE* messages, bool asked_for, std::uint64_t total);

}  // namespace velquon
