// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The laboratory's exercises with the program: what its tools read is what the worked answers have, each
// place being set as far beside the right one as there.

#include <QLabel>
#include <QRegularExpression>
#include <cmath>
#include <map>

#include "tests/integration/laboratory/pupil.h"
#include "tests/support/windows/pictures.h"

namespace velquon::test {

namespace {

struct Part {
  const char* exercise;
  std::uint32_t seed;
  std::size_t measurements;
};

void PrintTo(const Part& part, std::ostream* out) {
  *out << part.exercise << " of seed " << part.seed;
}

class LaboratoryTest : public Pupil, public testing::WithParamInterface<Part> {
 protected:
  [[nodiscard]] std::uint32_t seed() const override { return GetParam().seed; }

  /// What the window says of the quantity that a worked answer has of a tool, without its unit.
  [[nodiscard]] QString shown(const QString& tool) {
    const bool is_tape = tool == QStringLiteral("tape");
    const QString text = control<QLabel>(is_tape ? "tape_text" : "readings_text").text();
    const std::map<QString, const char*> patterns{
        {QStringLiteral("tape"), "D = +([0-9.]+) cm"},
        {QStringLiteral("curve"), "R = ([0-9.]+) ± [0-9.]+ cm"},
        {QStringLiteral("angle"), "∠ = ([0-9.]+) ± [0-9.]+ degrees"}};
    return QRegularExpression(QString::fromUtf8(patterns.at(tool))).match(text).captured(1);
  }

  /// Whether the window reads what the worked answer has, in as many digits as it shows.
  void expectReading(const Gesture& gesture) {
    const QString read = shown(gesture.tool);
    const auto decimals = read.contains(QLatin1Char('.'))
                              ? read.size() - 1 - read.indexOf(QLatin1Char('.'))
                              : qsizetype{0};
    const double half_a_digit = 0.5 * std::pow(10.0, -static_cast<double>(decimals));
    constexpr double half_a_digit_of_the_answer = 0.005;
    const double most = gesture.tool == QStringLiteral("tape")
                            ? 1.0e-9
                            : half_a_digit + half_a_digit_of_the_answer + 1.0e-9;
    ASSERT_FALSE(read.isEmpty());
    EXPECT_NEAR(read.toDouble(), gesture.reading.toDouble(), most);
  }

  /// How many of the places, put on the track by a hand that errs by a pixel, have a dot beside them.
  [[nodiscard]] std::ptrdiff_t placesOnDots(const Gesture& gesture) {
    clickButton((gesture.plane + QStringLiteral("_button")).toLatin1().constData());
    constexpr double reach = 3.0;
    const QImage picture = picture_of(projection());
    return std::ranges::count_if(gesture.places, [&](QPoint place) {
      return has_color_near(picture, place, white, reach);
    });
  }
};

}  // namespace

TEST_P(LaboratoryTest, TheToolsReadOfTheSameEventsWhatTheWorkedAnswerHas) {
  clickButton("snap_button");
  const auto gestures = gestures_of(QLatin1String(GetParam().exercise), seed());
  ASSERT_EQ(gestures.size(), GetParam().measurements);
  set(gestures.front());
  for (const Gesture& gesture : gestures) {
    SCOPED_TRACE("event " + std::to_string(gesture.event) + ", " + gesture.tool.toStdString());
    goTo(gesture.event);
    if (gesture.tool == QStringLiteral("curve") || gesture.field_kG == 0.0) {
      EXPECT_EQ(placesOnDots(gesture), static_cast<std::ptrdiff_t>(gesture.places.size()));
    }
    measure(gesture);
    expectReading(gesture);
  }
}

INSTANTIATE_TEST_SUITE_P(Exercises, LaboratoryTest,
                         testing::Values(Part{"curvature", 1, 30}, Part{"pairs", 2, 90},
                                         Part{"kink", 3, 32}, Part{"decay_lengths", 4, 30},
                                         Part{"decay_lengths", 14, 30}, Part{"lambda", 5, 65}));

}  // namespace velquon::test
