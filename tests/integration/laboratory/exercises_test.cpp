// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The laboratory's exercises as a pupil does them: the program is started with the seed, the values are
// set by keys, events are made by keys, and places are measured with the mouse, each as far beside the
// right one as the worked answers have it.

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QTest>
#include <map>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

/// What the projector reads of a measurement of an exercise, and how it is made.
struct Gesture {
  std::uint32_t seed = 0;
  QString type;
  double field_kG = 0.0;
  double side_cm = 0.0;
  double energy_MeV = 0.0;
  int event = 0;
  QString plane;
  QString tool;
  QString reading;
  std::vector<QPoint> places;
};

Gesture gesture_of(const QString& line) {
  const QStringList words = line.split(QLatin1Char(' '));
  Gesture gesture{words[0].toUInt(),   words[1], words[2].toDouble(), words[3].toDouble(),
                  words[4].toDouble(), words[5].toInt(), words[6], words[7], words[8], {}};
  for (const QString& place : words.mid(9)) {
    const QStringList numbers = place.split(QLatin1Char(','));
    gesture.places.emplace_back(numbers.at(0).toInt(), numbers.at(1).toInt());
  }
  return gesture;
}

/// The measurements of an exercise's worked answer, in order.
std::vector<Gesture> gestures_of(const char* exercise) {
  QProcess script;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("VELQUON_EVENTS"), QStringLiteral(VELQUON_EVENTS));
  environment.insert(QStringLiteral("PYTHONDONTWRITEBYTECODE"), QStringLiteral("1"));
  script.setProcessEnvironment(environment);
  script.start(QStringLiteral(PYTHON),
               {QStringLiteral(LABORATORY "/%1.py").arg(QLatin1String(exercise)),
                QStringLiteral("--gestures")});
  EXPECT_TRUE(script.waitForFinished());
  EXPECT_EQ(script.exitCode(), 0) << script.readAllStandardError().toStdString();
  std::vector<Gesture> gestures;
  const QString printed = QString::fromUtf8(script.readAllStandardOutput());
  for (const QString& line : printed.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    gestures.push_back(gesture_of(line));
  }
  return gestures;
}

/// Moves a slider by its keys to a tick.
void set_by_keys(ValueSlider& slider, double value) {
  constexpr int most_ticks = 30;
  slider.setFocus();
  QTest::keyClick(&slider, Qt::Key_Home);
  for (int i = 0; i < most_ticks && slider.doubleValue() < value; ++i) {
    QTest::keyClick(&slider, Qt::Key_PageUp);
  }
  EXPECT_EQ(slider.doubleValue(), value);
}

struct Part {
  const char* exercise;
  std::uint32_t seed;
  std::size_t least_measurements;
};

void PrintTo(const Part& part, std::ostream* out) {
  *out << part.exercise << " of seed " << part.seed;
}

class LaboratoryTest : public ApplicationFixture, public testing::WithParamInterface<Part> {
 protected:
  [[nodiscard]] std::uint32_t seed() const override { return GetParam().seed; }

  void set(const Gesture& gesture) {
    const std::map<QString, const char*> types{{QStringLiteral("pi+"), "piplus_item"},
                                               {QStringLiteral("pi0"), "pizero_item"},
                                               {QStringLiteral("mu+"), "muplus_item"},
                                               {QStringLiteral("lambda"), "lambda_item"}};
    choose(types.at(gesture.type));
    set_by_keys(control<ValueSlider>("magfield_slider"), gesture.field_kG);
    set_by_keys(control<ValueSlider>("size_slider"), gesture.side_cm / 100.0);
    auto& slider = control<ValueSlider>("energy_slider");
    auto& ranges = control<QComboBox>("efactor_popup");
    for (int i = ranges.count() - 1; i >= 0; --i) {
      ranges.setCurrentIndex(i);
      if (gesture.energy_MeV < slider.maxValue()) {
        break;
      }
    }
    set_by_keys(slider, gesture.energy_MeV);
  }

  /// Makes events until the one with a number is shown; the first has the number 1.
  void goTo(int event) {
    for (; shown_ < event; ++shown_) {
      activate(chamberWindow());
      QTest::keyClick(&chamberWindow(), Qt::Key_N, Qt::ControlModifier);
    }
    ASSERT_EQ(shown_, event);
  }

  /// Measures and tells what the window shows then.
  [[nodiscard]] QString measure(const Gesture& gesture) {
    clickButton((gesture.plane + QStringLiteral("_button")).toLatin1().constData());
    clickButton((gesture.tool + QStringLiteral("_tool")).toLatin1().constData());
    if (gesture.tool == QStringLiteral("tape")) {
      drag(projection(), gesture.places.at(0), gesture.places.at(1));
    }
    return control<QLabel>("tape_text").text();
  }

  /// What the label says when it reads this.
  static QString labelOf(const Gesture& gesture) {
    constexpr int width = 5;
    return QStringLiteral("D = %1 cm").arg(gesture.reading, width);
  }

 private:
  int shown_ = 0;
};

}  // namespace

TEST_P(LaboratoryTest, TheToolsReadWhatTheWorkedAnswerHas) {
  std::size_t measured = 0;
  for (const Gesture& gesture : gestures_of(GetParam().exercise)) {
    if (gesture.seed != seed() || gesture.tool != QStringLiteral("tape")) {
      continue;
    }
    if (measured == 0) {
      set(gesture);
    }
    goTo(gesture.event);
    EXPECT_EQ(measure(gesture), labelOf(gesture)) << "event " << gesture.event;
    ++measured;
  }
  EXPECT_GE(measured, GetParam().least_measurements);
}

INSTANTIATE_TEST_SUITE_P(Exercises, LaboratoryTest,
                         testing::Values(Part{"curvature", 1, 20}, Part{"pairs", 2, 20},
                                         Part{"kink", 3, 8}, Part{"decay_lengths", 4, 30},
                                         Part{"decay_lengths", 14, 30}, Part{"lambda", 5, 20}));

}  // namespace velquon::test
