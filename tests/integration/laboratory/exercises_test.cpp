// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The laboratory's exercises with the program: what its tools read is what the worked answers have, each
// place being set as far beside the right one as there.

#include <QLabel>
#include <QRegularExpression>
#include <cmath>
#include <numeric>
#include <span>

#include "tests/integration/laboratory/pupil.h"
#include "tests/support/windows/pictures.h"

namespace velquon::test {

namespace {

struct Part {
  const char* exercise;
  std::uint32_t seed;
  /// How many of the exercise's measurements are made, the first ones.
  std::size_t measurements;
};

void PrintTo(const Part& part, std::ostream* out) {
  *out << part.exercise << " of seed " << part.seed;
}

class LaboratoryTest : public Pupil, public testing::WithParamInterface<Part> {
 protected:
  [[nodiscard]] std::uint32_t seed() const override { return GetParam().seed; }

  /// The number that the window shows where a pattern has its group, in as many digits as it shows.
  void expectShown(const char* label, const char* pattern, double value, double tolerance) {
    const QString text = control<QLabel>(label).text();
    const QString read = QRegularExpression(QString::fromUtf8(pattern)).match(text).captured(1);
    ASSERT_FALSE(read.isEmpty()) << text.toStdString();
    const auto point = read.indexOf(QLatin1Char('.'));
    const auto decimals = point < 0 ? 0 : static_cast<int>(read.size() - 1 - point);
    EXPECT_NEAR(read.toDouble(), value, 0.5 * std::pow(10.0, -decimals) + tolerance);
  }

  /// Whether the window reads what the worked answer has.
  void expectReading(const Gesture& gesture) {
    constexpr double half_a_digit = 0.005;  // of the worked answer
    const double value = gesture.reading.toDouble();
    if (gesture.tool == QStringLiteral("tape")) {
      constexpr int width = 5;
      EXPECT_EQ(control<QLabel>("tape_text").text(),
                QStringLiteral("D = %1 cm").arg(gesture.reading, width));
    } else if (gesture.tool == QStringLiteral("angle")) {
      expectShown("readings_text", "∠ = ([0-9.]+) ± [0-9.]+ degrees", value, half_a_digit);
    } else {
      expectShown("readings_text", "R = ([0-9.]+) ± [0-9.]+ cm", value, half_a_digit);
      const double bend = 0.3 * gesture.field_kG;
      expectShown("readings_text", "pT = ([0-9.]+) ± [0-9.]+ MeV/c", bend * value,
                  bend * half_a_digit);
    }
  }

  /// How many of the places, put on the track by a hand that errs by a pixel, have a dot beside them.
  [[nodiscard]] std::ptrdiff_t placesOnDots(const Gesture& gesture) {
    clickButton((gesture.plane + QStringLiteral("_button")).toLatin1().constData());
    constexpr double reach = 3.0;
    const QImage picture = picture_of(projection());
    return std::ranges::count_if(
        gesture.places, [&](QPoint place) { return has_color_near(picture, place, white, reach); });
  }
};

}  // namespace

TEST_P(LaboratoryTest, TheToolsReadOfTheSameEventsWhatTheWorkedAnswerHas) {
  clickButton("snap_button");
  const auto gestures = gestures_of(QLatin1String(GetParam().exercise), seed());
  ASSERT_GE(gestures.size(), GetParam().measurements);
  set(gestures.front());
  for (const Gesture& gesture : std::span(gestures).first(GetParam().measurements)) {
    SCOPED_TRACE("event " + std::to_string(gesture.event) + ", " + gesture.tool.toStdString());
    goTo(gesture.event);
    if (gesture.tool == QStringLiteral("curve") || gesture.field_kG == 0.0) {
      EXPECT_EQ(placesOnDots(gesture), static_cast<std::ptrdiff_t>(gesture.places.size()));
    }
    measure(gesture);
    expectReading(gesture);
  }
}

class MuonMomentumTest : public Pupil {
 protected:
  [[nodiscard]] std::uint32_t seed() const override { return 1; }

  /// The length that the tape reads when a measurement is made with it, cm.
  [[nodiscard]] double taped(const Gesture& gesture) {
    measure(gesture);
    const QString text = control<QLabel>("tape_text").text();
    return text.mid(4, text.size() - 7).toDouble();
  }
};

TEST_F(MuonMomentumTest, ByChordAndSagittaIsThatOfTheRecord) {
  constexpr int repeats = 10;
  const auto gestures = gestures_of(QStringLiteral("curvature"), seed());
  set(gestures.front());
  goTo(1);
  std::vector<double> momenta;
  for (std::size_t i = 0; i < repeats; ++i) {
    const double chord = taped(gestures.at(2 * i));
    const double sagitta = taped(gestures.at(2 * i + 1));
    const double radius = chord * chord / (8.0 * sagitta) + sagitta / 2.0;
    momenta.push_back(0.3 * gestures.front().field_kG * radius);
  }
  const double mean = std::accumulate(momenta.begin(), momenta.end(), 0.0) / repeats;
  double squares = 0.0;
  for (const double momentum : momenta) {
    squares += (momentum - mean) * (momentum - mean);
  }
  const double error = std::sqrt(squares / (repeats - 1) / repeats);
  const auto& [x, y, z] = controller().model().shown()->tracks->record->particles()[0].momentum;
  const double true_momentum = std::hypot(x, y);
  EXPECT_NEAR(mean, true_momentum, 3.0 * error);
  EXPECT_LT(error, 0.02 * true_momentum);
}

INSTANTIATE_TEST_SUITE_P(Exercises, LaboratoryTest,
                         testing::Values(Part{"curvature", 1, 30}, Part{"pairs", 2, 27},
                                         Part{"kink", 3, 32}, Part{"decay_lengths", 4, 30},
                                         Part{"decay_lengths", 14, 10}, Part{"lambda", 5, 25}));

}  // namespace velquon::test
