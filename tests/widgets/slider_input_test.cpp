// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The controls of the chamber values under keys, mouse and wheel.

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <cmath>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

class SliderInputTest : public ApplicationFixture {
 protected:
  [[nodiscard]] ValueSlider& slider(const char* name) { return control<ValueSlider>(name); }
  [[nodiscard]] ValueSlider& energy() { return slider("energy_slider"); }
  [[nodiscard]] QComboBox& ranges() { return control<QComboBox>("efactor_popup"); }
  [[nodiscard]] std::string label(const char* name) {
    return control<QLabel>(name).text().toStdString();
  }
  /// The columns of a slider's picture in which its tick marks are drawn.
  static std::vector<int> drawnTicks(ValueSlider& slider) {
    const QImage picture = slider.grab().toImage().convertToFormat(QImage::Format_RGB32);
    constexpr std::size_t fewest_ticks = 5;
    std::vector<int> columns;
    for (int row = picture.height() - 1; row > 0 && columns.size() < fewest_ticks; --row) {
      columns.clear();
      for (int x = 1; x < picture.width(); ++x) {
        if (picture.pixel(x, row) != picture.pixel(0, row)) {
          columns.push_back(x);
        }
      }
    }
    return columns;
  }
  /// The last range, whose least value is 0.
  void chooseLowestRange() { ranges().setCurrentIndex(6); }
};

struct SliderCase {
  const char* slider;
  double least;
  double tick;
  double greatest;
};
constexpr std::array sliders{SliderCase{"magfield_slider", 0.0, 0.5, 10.0},
                             SliderCase{"size_slider", 0.5, 0.5, 10.0},
                             SliderCase{"energy_slider", 0.1, 0.1, 1.0}};

struct KeyCase {
  Qt::Key key;
  double ticks;
};
constexpr std::array keys{KeyCase{Qt::Key_Right, 0.1},  KeyCase{Qt::Key_Left, -0.1},
                          KeyCase{Qt::Key_Up, 0.1},     KeyCase{Qt::Key_Down, -0.1},
                          KeyCase{Qt::Key_PageUp, 1.0}, KeyCase{Qt::Key_PageDown, -1.0}};

}  // namespace

TEST_F(SliderInputTest, ArrowKeysMoveATenthOfATickAndPageKeysATick) {
  for (const auto& [name, least, tick, greatest] : sliders) {
    for (const auto& [key, ticks] : keys) {
      SCOPED_TRACE(testing::Message() << name << ", key " << key);
      const double middle = least + 4.0 * tick;
      slider(name).setFloatValue(static_cast<float>(middle));
      QTest::keyClick(&slider(name), key);
      EXPECT_NEAR(slider(name).doubleValue(), middle + ticks * tick, 1.0e-5 * greatest);
    }
  }
}

TEST_F(SliderInputTest, KeysLandOnTheNextMarkWhereverADragHasLeftTheKnob) {
  struct Case {
    const char* slider;
    float from;
    Qt::Key key;
    float to;
  };
  constexpr std::array cases{Case{"magfield_slider", 0.237F, Qt::Key_Right, 0.25F},
                             Case{"magfield_slider", 0.237F, Qt::Key_Left, 0.2F},
                             Case{"magfield_slider", 0.237F, Qt::Key_Up, 0.25F},
                             Case{"magfield_slider", 0.237F, Qt::Key_PageUp, 0.5F},
                             Case{"magfield_slider", 0.737F, Qt::Key_PageDown, 0.5F},
                             Case{"magfield_slider", 9.991F, Qt::Key_PageUp, 10.0F},
                             Case{"magfield_slider", 0.013F, Qt::Key_Left, 0.0F},
                             Case{"size_slider", 3.3333F, Qt::Key_Left, 3.3F},
                             Case{"size_slider", 3.3333F, Qt::Key_Right, 3.35F},
                             Case{"size_slider", 3.3333F, Qt::Key_PageUp, 3.5F},
                             Case{"size_slider", 3.3333F, Qt::Key_PageDown, 3.0F},
                             Case{"energy_slider", 0.237F, Qt::Key_Right, 0.24F},
                             Case{"energy_slider", 0.237F, Qt::Key_Down, 0.23F},
                             Case{"energy_slider", 0.237F, Qt::Key_PageUp, 0.3F},
                             Case{"energy_slider", 0.237F, Qt::Key_PageDown, 0.2F}};
  for (const auto& [name, from, key, to] : cases) {
    slider(name).setFloatValue(from);
    QTest::keyClick(&slider(name), key);
    EXPECT_EQ(slider(name).floatValue(), to) << name << " from " << from << ", key " << key;
  }
}

TEST_F(SliderInputTest, PageKeysWalkTheTicksOfEachEnergyRangeExactly) {
  struct Case {
    int range;
    std::vector<float> ticks;
  };
  const std::vector<Case> cases{
      {0, {1000, 2000, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 10000}},
      {1, {100, 200, 300, 400, 500, 600, 700, 800, 900, 1000}},
      {2, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100}},
      {3, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
      {4, {0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.7F, 0.8F, 0.9F, 1.0F}},
      {5, {0.01F, 0.02F, 0.03F, 0.04F, 0.05F, 0.06F, 0.07F, 0.08F, 0.09F, 0.1F}},
      {6,
       {0.0001F, 0.001F, 0.002F, 0.003F, 0.004F, 0.005F, 0.006F, 0.007F, 0.008F, 0.009F, 0.01F}}};
  for (const auto& [range, ticks] : cases) {
    ranges().setCurrentIndex(range);
    QTest::keyClick(&energy(), Qt::Key_Home);
    for (const float tick : ticks) {
      EXPECT_EQ(energy().floatValue(), tick) << "up, range " << range;
      QTest::keyClick(&energy(), Qt::Key_PageUp);
    }
    for (const auto tick : std::vector(ticks.rbegin(), ticks.rend())) {
      EXPECT_EQ(energy().floatValue(), tick) << "down, range " << range;
      QTest::keyClick(&energy(), Qt::Key_PageDown);
    }
  }
}

TEST_F(SliderInputTest, ArrowKeysWalkTheTenthsBetweenTheTicksExactly) {
  ranges().setCurrentIndex(1);
  QTest::keyClick(&energy(), Qt::Key_Home);
  for (int energy_MeV = 100; energy_MeV < 1000; energy_MeV += 10) {
    ASSERT_EQ(energy().floatValue(), static_cast<float>(energy_MeV));
    QTest::keyClick(&energy(), Qt::Key_Right);
  }
  EXPECT_EQ(energy().floatValue(), 1000.0F);
}

TEST_F(SliderInputTest, AClickBesideTheKnobGoesToTheNextTick) {
  ranges().setCurrentIndex(1);
  energy().moveTo(337.0);
  const QPoint right_end(energy().width() - 4, energy().height() / 3);
  QTest::mouseClick(&energy(), Qt::LeftButton, {}, right_end);
  EXPECT_EQ(energy().floatValue(), 400.0F);
}

TEST_F(SliderInputTest, TheKnobStandsAtTheTickDrawnForItsValue) {
  for (const int range : {1, 4, 6}) {
    SCOPED_TRACE(range);
    ranges().setCurrentIndex(range);
    const auto marks = drawnTicks(energy());
    const double least = energy().minValue();
    const double greatest = energy().maxValue();
    ASSERT_EQ(marks.size(), range == 6 ? 11U : 10U);
    for (std::size_t i = 1; i < marks.size(); ++i) {
      energy().moveTo(least + (greatest - least) * static_cast<double>(i) /
                                  static_cast<double>(marks.size() - 1));
      EXPECT_NEAR(knob_of(energy()).x(), marks[i], 2);
    }
  }
}

TEST_F(SliderInputTest, HomeAndEndReachTheEnds) {
  for (const auto& [name, least, tick, greatest] : sliders) {
    QTest::keyClick(&slider(name), Qt::Key_End);
    EXPECT_FLOAT_EQ(slider(name).floatValue(), static_cast<float>(greatest)) << name;
    QTest::keyClick(&slider(name), Qt::Key_Home);
    EXPECT_FLOAT_EQ(slider(name).floatValue(), static_cast<float>(least)) << name;
    QTest::keyClick(&slider(name), Qt::Key_Left);
    EXPECT_FLOAT_EQ(slider(name).floatValue(), static_cast<float>(least)) << name;
  }
}

TEST_F(SliderInputTest, HomeAndEndTakeAValueFromOutsideIntoTheRange) {
  controller().settings().setFieldControl(12.0F);
  QTest::keyClick(&slider("magfield_slider"), Qt::Key_End);
  EXPECT_EQ(slider("magfield_slider").floatValue(), 10.0F);
  controller().settings().setFieldControl(-3.0F);
  QTest::keyClick(&slider("magfield_slider"), Qt::Key_Home);
  EXPECT_EQ(slider("magfield_slider").floatValue(), 0.0F);
  EXPECT_EQ(label("magfield_text"), "B = 0.000 kG");
}

TEST_F(SliderInputTest, KeysRefreshTheLabels) {
  QTest::keyClick(&slider("magfield_slider"), Qt::Key_Right);
  EXPECT_EQ(label("magfield_text"), "B = 0.650 kG");
  QTest::keyClick(&slider("size_slider"), Qt::Key_PageDown);
  EXPECT_EQ(label("sides_text"), "L = 4.500 m");
  QTest::keyClick(&energy(), Qt::Key_PageDown);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.300 MeV");
  ranges().setCurrentIndex(1);
  QTest::keyClick(&energy(), Qt::Key_PageUp);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 200.0 MeV");
  auto* const read_out = QAccessible::queryAccessibleInterface(&energy());
  EXPECT_EQ(read_out->text(QAccessible::Value), QStringLiteral("200 MeV"));
  EXPECT_EQ(read_out->valueInterface()->currentValue().toDouble(), 200.0);
}

TEST_F(SliderInputTest, ADragMovesTheValueAndItsLabelAsItGoes) {
  struct Case {
    const char* slider;
    const char* label;
  };
  constexpr std::array cases{Case{"magfield_slider", "magfield_text"},
                             Case{"size_slider", "sides_text"},
                             Case{"energy_slider", "kinetic_energy_text"}};
  for (const auto& [name, text] : cases) {
    SCOPED_TRACE(name);
    ValueSlider& moved = slider(name);
    moved.moveTo(moved.minValue() + 0.3 * (moved.maxValue() - moved.minValue()));
    const float before = moved.floatValue();
    const std::string label_before = label(text);
    const QPoint knob = knob_of(moved);
    press(moved, knob);
    move_pressed(moved, knob + QPoint(30, 0));
    const float under_way = moved.floatValue();
    const std::string label_under_way = label(text);
    move_pressed(moved, knob + QPoint(60, 0));
    release(moved, knob + QPoint(60, 0));
    EXPECT_GT(under_way, before);
    EXPECT_GT(moved.floatValue(), under_way);
    EXPECT_NE(label_under_way, label_before);
    EXPECT_NE(label(text), label_under_way);
  }
}

TEST_F(SliderInputTest, ADragBeyondTheEndsStaysInTheRange) {
  for (const auto& [name, least, tick, greatest] : sliders) {
    ValueSlider& moved = slider(name);
    drag(moved, knob_of(moved), {5000, 5});
    EXPECT_FLOAT_EQ(moved.floatValue(), static_cast<float>(greatest)) << name;
    drag(moved, knob_of(moved), {-5000, 5});
    EXPECT_FLOAT_EQ(moved.floatValue(), static_cast<float>(least)) << name;
  }
}

TEST_F(SliderInputTest, TheWheelMovesByTenthsOfATick) {
  for (const auto& [name, least, tick, greatest] : sliders) {
    SCOPED_TRACE(name);
    ValueSlider& moved = slider(name);
    const double middle = least + 4.0 * tick;
    moved.setFloatValue(static_cast<float>(middle));
    moved.setFocus();
    turn_wheel(moved, 1);
    const double step = tick / 10.0 * QApplication::wheelScrollLines();
    EXPECT_NEAR(moved.doubleValue(), middle + step, 1.0e-5 * greatest);
    turn_wheel(moved, -2);
    EXPECT_NEAR(moved.doubleValue(), middle - step, 1.0e-5 * greatest);
  }
}

TEST_F(SliderInputTest, TheWheelOverASliderWithoutTheFocusChangesNothing) {
  ranges().setFocus();
  for (const SliderCase& row : sliders) {
    const float before = slider(row.slider).floatValue();
    turn_wheel(slider(row.slider), 3);
    EXPECT_EQ(slider(row.slider).floatValue(), before) << row.slider;
    EXPECT_TRUE(ranges().hasFocus());
  }
}

TEST_F(SliderInputTest, TheWheelOverEnergyRangesWithoutTheFocusChangesNothing) {
  auto& ranges = control<QComboBox>("efactor_popup");
  slider("magfield_slider").setFocus();
  turn_wheel(ranges, 1);
  EXPECT_EQ(ranges.currentIndex(), 4);
  EXPECT_EQ(slider("energy_slider").floatValue(), 0.4F);
  ranges.setFocus();
  turn_wheel(ranges, 1);
  EXPECT_EQ(ranges.currentIndex(), 3);
}

TEST_F(SliderInputTest, MovesOfAPersonStayInTheRangeAfterAValueFromOutside) {
  controller().settings().setFieldControl(12.0F);
  QTest::keyClick(&slider("magfield_slider"), Qt::Key_Left);
  EXPECT_NEAR(slider("magfield_slider").doubleValue(), 9.95, 1.0e-5);
  EXPECT_EQ(label("magfield_text"), "B = 9.950 kG");
}

TEST_F(SliderInputTest, NoKeyReachesEnergyZero) {
  chooseLowestRange();
  QTest::keyClick(&energy(), Qt::Key_Home);
  EXPECT_NEAR(energy().doubleValue(), 0.0001, 1.0e-8);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Home}) {
    for (int i = 0; i < 3; ++i) {
      QTest::keyClick(&energy(), key);
    }
    EXPECT_GT(energy().floatValue(), 0.0F) << key;
  }
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.0001 MeV");
}

TEST_F(SliderInputTest, NoMouseReachesEnergyZero) {
  chooseLowestRange();
  drag(energy(), knob_of(energy()), {-5000, 5});
  EXPECT_GT(energy().floatValue(), 0.0F);
  for (int i = 0; i < 60; ++i) {
    QTest::mouseClick(&energy(), Qt::LeftButton, {}, QPoint(0, energy().height() / 2));
  }
  EXPECT_GT(energy().floatValue(), 0.0F);
  energy().setFocus();
  turn_wheel(energy(), -200);
  EXPECT_GT(energy().floatValue(), 0.0F);
}

TEST_F(SliderInputTest, NoChangeOfRangeReachesEnergyZero) {
  for (const int from : {0, 3, 5}) {
    ranges().setCurrentIndex(from);
    QTest::keyClick(&energy(), Qt::Key_Home);
    chooseLowestRange();
    EXPECT_GT(energy().floatValue(), 0.0F) << from;
  }
}

TEST_F(SliderInputTest, EnergyZeroOfTheProgramIsShownAndKept) {
  controller().settings().setEnergyControl(0.0F);
  EXPECT_EQ(energy().floatValue(), 0.0F);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.0000 MeV");
  QTest::keyClick(&energy(), Qt::Key_Right);
  EXPECT_GT(energy().floatValue(), 0.0F);
}

TEST_F(SliderInputTest, RangesAreChosenByKeys) {
  ranges().setFocus();
  QTest::keyClick(&ranges(), Qt::Key_Down);
  EXPECT_EQ(ranges().currentIndex(), 5);
  EXPECT_FLOAT_EQ(static_cast<float>(energy().maxValue()), 0.1F);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 0.100 MeV");
  QTest::keyClick(&ranges(), Qt::Key_Home);
  EXPECT_EQ(ranges().currentIndex(), 0);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 1000.0 MeV");
}

TEST_F(SliderInputTest, RangesAreChosenByMouse) {
  // The list takes no choice within the time of a double click after the click that opened it.
  const int usual_interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(0);
  QTest::mouseClick(&ranges(), Qt::LeftButton);
  QAbstractItemView& list = *ranges().view();
  ASSERT_TRUE(wait_until_exposed(list.window()));
  handle_waiting_events();
  QApplication::setDoubleClickInterval(usual_interval);
  const QRect row = list.visualRect(list.model()->index(2, 0));
  QTest::mouseMove(list.viewport(), row.center());
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
  ASSERT_TRUE(wait_until([&] { return ranges().currentIndex() == 2; }));
  EXPECT_EQ(energy().minValue(), 10.0);
  EXPECT_EQ(energy().maxValue(), 100.0);
  EXPECT_EQ(label("kinetic_energy_text"), "T = 10.00 MeV");
}

}  // namespace velquon::test
