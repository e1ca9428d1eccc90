// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <vector>

#include "engine/event_record.h"
#include "tests/support/event_making.h"

namespace velquon::test {

using Codes = std::vector<std::int16_t>;
using Merge = void (*)(std::span<const PlotPoint>, std::span<const PlotPoint>, std::span<PlotPoint>,
                       std::int16_t&, std::int16_t);

/// Points with these codes, so that a merged list can be read off; times as given, else 0.
inline std::vector<PlotPoint> points(const Codes& codes, const std::vector<double>& times = {}) {
  std::vector<PlotPoint> list(codes.size());
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const auto x = static_cast<double>(codes[i]);
    list[i] = {
        .coords = {x, 2 * x, 3 * x, 1.0}, .time = times.empty() ? 0.0 : times[i], .code = codes[i]};
  }
  return list;
}

/// Codes of the merged list; a guard point behind the limit must stay untouched.
inline Codes merged(Merge merge, const std::vector<PlotPoint>& first,
                    const std::vector<PlotPoint>& second, std::int16_t limit) {
  constexpr std::int16_t guard = -99;
  std::vector<PlotPoint> out(static_cast<std::size_t>(limit) + 1);
  out.back().code = guard;
  std::int16_t count = 1234;
  merge(first, second, out, count, limit);
  EXPECT_EQ(out.back().code, guard);
  return codes_of(std::span(out).first(static_cast<std::size_t>(count)));
}

}  // namespace velquon::test
