// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/progress.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace velquon {

namespace {

using Seconds = std::chrono::duration<double>;

constexpr std::chrono::seconds line_period{10};
constexpr std::chrono::milliseconds bar_period{200};
constexpr std::size_t widest_bar = 30;

/// Columns of a terminal; 80 when it does not tell.
std::size_t columns_of(std::FILE* terminal) {
  winsize size{};
  const bool told = ::ioctl(::fileno(terminal), TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return told ? size.ws_col : 80;
}

double fraction_of(std::uint64_t done, std::uint64_t total) {
  return total == 0 ? 1.0 : static_cast<double>(done) / static_cast<double>(total);
}

/// A time as "1:02:03", or as "2:03" below an hour.
std::string time_text(double seconds) {
  if (!(seconds < 3.6e9)) {
    return "unknown";
  }
  const auto whole = static_cast<unsigned long long>(std::lround(seconds));
  std::array<char, 48> text{};
  if (whole >= 3600) {
    std::snprintf(text.data(), text.size(), "%llu:%02llu:%02llu", whole / 3600, whole / 60 % 60,
                  whole % 60);
  } else {
    std::snprintf(text.data(), text.size(), "%llu:%02llu", whole / 60, whole % 60);
  }
  return text.data();
}

}  // namespace

Progress::Progress(std::uint64_t total, std::FILE* messages, bool terminal, Clock::time_point now)
    : total_(total),
      messages_(messages),
      terminal_(terminal),
      begin_(now),
      next_(now + (terminal ? Clock::duration(bar_period) : Clock::duration(line_period))) {}

void Progress::show(std::uint64_t done, Clock::time_point now) {
  done_ = done;
  if (messages_ == nullptr || now < next_) {
    return;
  }
  if (terminal_) {
    next_ = now + bar_period;
    draw_bar(now);
  } else {
    next_ = now + line_period;
    std::fprintf(messages_, "velquon-events: %s\n", state(now).c_str());
  }
}

void Progress::clear() {
  if (drawn_) {
    drawn_ = false;
    std::fputs("\r\x1b[K", messages_);
  }
}

void Progress::end(Clock::time_point now) {
  if (messages_ != nullptr && terminal_) {
    draw_bar(now);
    std::fputc('\n', messages_);
  }
}

std::string Progress::state(Clock::time_point now) const {
  const double seconds = Seconds(now - begin_).count();
  const std::uint64_t made = done_ - std::min(left_out_, done_);
  const double rate = seconds > 0.0 ? static_cast<double>(made) / seconds : 0.0;
  const std::uint64_t missing = total_ - std::min(done_, total_);
  const double left = missing > 0 ? static_cast<double>(missing) / rate : 0.0;
  std::array<char, 160> text{};
  std::snprintf(text.data(), text.size(), "%llu of %llu events, %.0f a second, %s left",
                static_cast<unsigned long long>(done_), static_cast<unsigned long long>(total_),
                rate, time_text(left).c_str());
  return text.data();
}

void Progress::draw_bar(Clock::time_point now) {
  const double fraction = std::min(fraction_of(done_, total_), 1.0);
  std::array<char, 16> percent{};
  std::snprintf(percent.data(), percent.size(), " %3.0f %%  ", std::floor(fraction * 100.0));
  const std::string text = percent.data() + state(now);
  // A line as wide as the terminal would go on in the next row, from which there is no way back.
  const std::size_t room = columns_of(messages_) - 1;
  const std::size_t brackets = 2;
  const std::size_t taken = text.size() + brackets;
  const std::size_t width = room > taken ? std::min(room - taken, widest_bar) : 0;
  std::string bar(static_cast<std::size_t>(fraction * static_cast<double>(width)), '#');
  bar.resize(width, '.');
  // The end of a longer line before is cleared.
  std::fprintf(messages_, "\r%s\x1b[K", ('[' + bar + ']' + text).substr(0, room).c_str());
  std::fflush(messages_);
  drawn_ = true;
}

Progress progress_on(std::FILE* messages, bool asked_for, std::uint64_t total) {
  return {total, asked_for ? messages : nullptr, ::isatty(::fileno(messages)) == 1};
}

}  // namespace velquon
