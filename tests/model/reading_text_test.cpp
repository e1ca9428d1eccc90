// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/reading_text.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace velquon::test {

TEST(ReadingTextTest, AnErrorHasOneDigitThatCountsOrTwoBehindAOne) {
  struct Case {
    double value;
    double error;
    const char* text;
  };
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const std::array cases{Case{123.44, 0.9, "123.4 ± 0.9"},
                         Case{22.13, 0.23, "22.1 ± 0.2"},
                         Case{22.137, 0.14, "22.14 ± 0.14"},
                         Case{5.0, 0.0997, "5.00 ± 0.10"},
                         Case{5.0, 0.00342, "5.000 ± 0.003"},
                         Case{1234.5, 37.0, "1234 ± 37"},
                         Case{1234.5, 1.96, "1234 ± 2"},
                         Case{1234.56, 1.2, "1234.6 ± 1.2"},
                         Case{7.0, 1.0e-12, "7.000000 ± 0.000000"},
                         Case{125.0, std::nan(""), "125.00"},
                         Case{125.0, 0.0, "125.00"},
                         Case{125.0, infinite, "125.00"}};
  for (const auto& [value, error, text] : cases) {
    EXPECT_EQ(measured_text(value, error), text);
  }
}

}  // namespace velquon::test
