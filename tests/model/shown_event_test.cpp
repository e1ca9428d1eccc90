// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/shown_event.h"

#include <gtest/gtest.h>

#include <array>

namespace velquon::test {

TEST(ShownEventTest, ValuesAreTold) {
  struct Case {
    ChamberValues values;
    const char* text = nullptr;
  };
  constexpr std::array cases{
      Case{{}, "B = 0.6 kG, T = 0.4 MeV, L = 5 m"},
      Case{{.B_field = -1.25F, .sides_cm = 400.0F, .kinetic_Mev = 0.5F},
           "B = -1.25 kG, T = 0.5 MeV, L = 4 m"},
      Case{{.B_field = 1.23456F, .sides_cm = 123.456F, .kinetic_Mev = 1234.56F},
           "B = 1.235 kG, T = 1234.6 MeV, L = 1.235 m"},
      Case{{.B_field = 0.0F, .sides_cm = 50000.0F, .kinetic_Mev = 1.23456e-5F},
           "B = 0 kG, T = 1.2346E-05 MeV, L = 500 m"}};
  for (const auto& [values, text] : cases) {
    EXPECT_EQ(values_text(values), text);
  }
}

TEST(ShownEventTest, TheScaleOfTheProjectionIsTheSideOver400) {
  EXPECT_EQ(projection_scaler({.sides_cm = 500.0F}), 1.25);
  EXPECT_EQ(projection_scaler({.sides_cm = 50.0F}), 0.125);
}

TEST(ShownEventTest, IsEmptyAtFirst) {
  const ShownEvent event;
  EXPECT_FALSE(event.has_event);
  EXPECT_TRUE(event.points().empty());
}

}  // namespace velquon::test
