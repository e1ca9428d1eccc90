// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/integration/laboratory/pupil.h"

#include <QComboBox>
#include <QProcess>
#include <QTest>
#include <map>

#include "tests/support/windows/input.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

Gesture gesture_of(const QString& line) {
  constexpr int words_before_places = 9;
  const QStringList words = line.split(QLatin1Char(' '));
  Gesture gesture{words[0].toUInt(),
                  words[1],
                  words[2].toDouble(),
                  words[3].toDouble(),
                  words[4].toDouble(),
                  words[5].toInt(),
                  words[6],
                  words[7],
                  words[8],
                  {}};
  for (const QString& place : words.mid(words_before_places)) {
    const QStringList numbers = place.split(QLatin1Char(','));
    gesture.places.emplace_back(numbers.at(0).toInt(), numbers.at(1).toInt());
  }
  return gesture;
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

}  // namespace

std::vector<Gesture> gestures_of(const QString& exercise, std::uint32_t seed) {
  QProcess script;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("VELQUON_EVENTS"), QStringLiteral(VELQUON_EVENTS));
  environment.insert(QStringLiteral("PYTHONDONTWRITEBYTECODE"), QStringLiteral("1"));
  script.setProcessEnvironment(environment);
  script.start(QStringLiteral(PYTHON),
               {QStringLiteral(LABORATORY "/%1.py").arg(exercise), QStringLiteral("--gestures")});
  EXPECT_TRUE(script.waitForFinished());
  EXPECT_EQ(script.exitCode(), 0) << script.readAllStandardError().toStdString();
  std::vector<Gesture> gestures;
  const QString printed = QString::fromUtf8(script.readAllStandardOutput());
  for (const QString& line : printed.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    Gesture gesture = gesture_of(line);
    if (gesture.seed == seed) {
      gestures.push_back(std::move(gesture));
    }
  }
  return gestures;
}

void Pupil::set(const Gesture& gesture) {
  const std::map<QString, const char*> types{{QStringLiteral("pi+"), "piplus_item"},
                                             {QStringLiteral("pi0"), "pizero_item"},
                                             {QStringLiteral("mu+"), "muplus_item"},
                                             {QStringLiteral("lambda"), "lambda_item"}};
  choose(types.at(gesture.type));
  set_by_keys(control<ValueSlider>("magfield_slider"), gesture.field_kG);
  set_by_keys(control<ValueSlider>("size_slider"), gesture.side_cm / 100.0);
  auto& slider = control<ValueSlider>("energy_slider");
  auto& ranges = control<QComboBox>("efactor_popup");
  // Upwards from the lowest range to the one that begins at the energy or below it.
  for (int i = ranges.count() - 1; i >= 0; --i) {
    ranges.setCurrentIndex(i);
    if (gesture.energy_MeV < slider.maxValue()) {
      break;
    }
  }
  set_by_keys(slider, gesture.energy_MeV);
}

void Pupil::goTo(int event) {
  for (; shown_ < event; ++shown_) {
    activate(chamberWindow());
    QTest::keyClick(&chamberWindow(), Qt::Key_N, Qt::ControlModifier);
  }
  ASSERT_EQ(shown_, event);
}

void Pupil::measure(const Gesture& gesture) {
  clickButton((gesture.plane + QStringLiteral("_button")).toLatin1().constData());
  clickButton((gesture.tool + QStringLiteral("_tool")).toLatin1().constData());
  if (gesture.tool == QStringLiteral("tape")) {
    drag(projection(), gesture.places.at(0), gesture.places.at(1));
    return;
  }
  for (const QPoint place : gesture.places) {
    QTest::mouseClick(&projection(), Qt::LeftButton, {}, place);
  }
}

}  // namespace velquon::test
