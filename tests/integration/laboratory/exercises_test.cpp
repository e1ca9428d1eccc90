// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The laboratory's exercises with the program: what its tools read is what the worked answers have, each
// place being set as far beside the right one as there.

#include <QLabel>
#include <set>

#include "tests/integration/laboratory/pupil.h"
#include "tests/support/windows/pictures.h"

namespace velquon::test {

namespace {

struct Part {
  const char* exercise;
  std::uint32_t seed;
  std::size_t least_measurements;
};

void PrintTo(const Part& part, std::ostream* out) {
  *out << part.exercise << " of seed " << part.seed;
}

class LaboratoryTest : public Pupil, public testing::WithParamInterface<Part> {
 protected:
  [[nodiscard]] std::uint32_t seed() const override { return GetParam().seed; }

  /// Whether the window reads what the worked answer has.
  void expectReading(const Gesture& gesture) {
    constexpr int width = 5;
    EXPECT_EQ(control<QLabel>("tape_text").text(),
              QStringLiteral("D = %1 cm").arg(gesture.reading, width))
        << "event " << gesture.event;
  }

  /// How many of the places, put on the track by a hand that errs by a pixel, have a dot beside them.
  [[nodiscard]] std::ptrdiff_t placesOnDots(const Gesture& gesture) {
    constexpr double reach = 3.0;
    const QImage picture = picture_of(projection());
    return std::ranges::count_if(gesture.places, [&](QPoint place) {
      return has_color_near(picture, place, white, reach);
    });
  }
};

}  // namespace

TEST_P(LaboratoryTest, TheToolsReadWhatTheWorkedAnswerHas) {
  std::size_t measured = 0;
  for (const Gesture& gesture : gestures_of(QLatin1String(GetParam().exercise), seed())) {
    if (gesture.tool != QStringLiteral("tape")) {
      continue;
    }
    if (measured == 0) {
      set(gesture);
    }
    goTo(gesture.event);
    measure(gesture);
    expectReading(gesture);
    ++measured;
  }
  EXPECT_GE(measured, GetParam().least_measurements);
}

TEST_P(LaboratoryTest, WhatIsMeasuredIsInThePictureOfTheEvent) {
  std::set<int> events;
  for (const Gesture& gesture : gestures_of(QLatin1String(GetParam().exercise), seed())) {
    const bool is_along_a_track =
        gesture.tool == QStringLiteral("curve") || gesture.field_kG == 0.0;
    if (!is_along_a_track || gesture.plane != QStringLiteral("xy")) {
      continue;
    }
    if (events.empty()) {
      set(gesture);
    }
    goTo(gesture.event);
    events.insert(gesture.event);
    clickButton("xy_button");
    EXPECT_EQ(placesOnDots(gesture), static_cast<std::ptrdiff_t>(gesture.places.size()))
        << "event " << gesture.event;
  }
  EXPECT_FALSE(events.empty());
}

INSTANTIATE_TEST_SUITE_P(Exercises, LaboratoryTest,
                         testing::Values(Part{"curvature", 1, 20}, Part{"pairs", 2, 20},
                                         Part{"kink", 3, 8}, Part{"decay_lengths", 4, 30},
                                         Part{"decay_lengths", 14, 30}, Part{"lambda", 5, 20}));

}  // namespace velquon::test
