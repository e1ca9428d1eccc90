// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Values of the next event that are typed.

#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QToolBar>
#include <functional>
#include <vector>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_editor.h"
#include "widgets/value_label.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

class TypedValuesTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    activate(chamberWindow());
  }

  [[nodiscard]] ValueEditor* editor() {
    auto* const found = chamberWindow().findChild<ValueEditor*>();
    return found != nullptr && found->isVisible() ? found : nullptr;
  }

  /// Opens the editor of a label by its double click, types and ends with a key.
  void type(const char* label, const QString& text, Qt::Key end = Qt::Key_Return) {
    QTest::mouseDClick(&control<ValueLabel>(label), Qt::LeftButton);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), text);
    QTest::keyClick(editor(), end);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(editor(), nullptr);
  }
};

struct Typed {
  const char* label;
  const char* slider;
  const char* text;
  double value;
  const char* shown;
};

}  // namespace

TEST_F(TypedValuesTest, AreTheControlsAndTheNextEvents) {
  const std::vector<Typed> cases{
      {"magfield_text", "magfield_slider", "1.2371", 1.2371, "B = 1.237 kG"},
      {"magfield_text", "magfield_slider", "0", 0.0, "B = 0.000 kG"},
      {"sides_text", "size_slider", "2.75", 2.75, "L = 2.750 m"},
      {"kinetic_energy_text", "energy_slider", "135.7", 135.7, "T = 135.7 MeV"},
      {"kinetic_energy_text", "energy_slider", "0.0321", 0.0321, "T = 0.0321 MeV"},
      {"kinetic_energy_text", "energy_slider", "2,5", 2.5, "T = 2.500 MeV"},
  };
  for (const auto& [label, slider, text, value, shown] : cases) {
    SCOPED_TRACE(text);
    type(label, QLatin1String(text));
    EXPECT_FLOAT_EQ(control<ValueSlider>(slider).floatValue(), static_cast<float>(value));
    EXPECT_EQ(control<ValueLabel>(label).text(), QLatin1String(shown));
  }
  choose("new_event_item");
  const ChamberValues& made = controller().model().shown()->values;
  EXPECT_EQ(made.B_field, 0.0F);
  EXPECT_FLOAT_EQ(made.sides_cm, 275.0F);
  EXPECT_EQ(made.kinetic_Mev, 2.5F);
}

TEST_F(TypedValuesTest, AnEnergyChoosesItsRange) {
  type("kinetic_energy_text", QStringLiteral("6500"));
  EXPECT_EQ(control<QComboBox>("efactor_popup").currentText(), QStringLiteral("1000 to 10000 MeV"));
  type("kinetic_energy_text", QStringLiteral("0.005"));
  EXPECT_EQ(control<QComboBox>("efactor_popup").currentText(), QStringLiteral("0 to 0.01 MeV"));
}

TEST_F(TypedValuesTest, EscapeAndALookLeaveTheValueWithAllItsDigits) {
  constexpr float exact = 0.123456789F;
  controller().settings().setFieldControl(exact);
  type("magfield_text", QStringLiteral("7"), Qt::Key_Escape);
  EXPECT_EQ(control<ValueSlider>("magfield_slider").floatValue(), exact);
  type("magfield_text", QString(), Qt::Key_Return);
  EXPECT_EQ(control<ValueSlider>("magfield_slider").floatValue(), exact);
}

TEST_F(TypedValuesTest, NothingBeyondTheRangeCanBeTyped) {
  const float before = control<ValueSlider>("magfield_slider").floatValue();
  type("magfield_text", QStringLiteral("-3"));
  EXPECT_GE(control<ValueSlider>("magfield_slider").floatValue(), 0.0F);
  controller().settings().setFieldControl(before);
  type("magfield_text", QStringLiteral("99"));
  EXPECT_LE(control<ValueSlider>("magfield_slider").floatValue(), 10.0F);
  type("kinetic_energy_text", QStringLiteral("0"));
  EXPECT_GT(control<ValueSlider>("energy_slider").floatValue(), 0.0F);
}

TEST_F(TypedValuesTest, ReturnOnALabelOpensTheEditorAndGivesTheFocusBack) {
  auto& label = control<ValueLabel>("sides_text");
  label.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&label, Qt::Key_Return);
  ASSERT_NE(editor(), nullptr);
  EXPECT_TRUE(editor()->hasFocus());
  EXPECT_TRUE(editor()->toolTip().contains(QStringLiteral("0.5 to 10 m")));
  QTest::keyClicks(editor(), QStringLiteral("3"));
  QTest::keyClick(editor(), Qt::Key_Return);
  EXPECT_TRUE(label.hasFocus());
  EXPECT_EQ(control<ValueSlider>("size_slider").floatValue(), 3.0F);
}

TEST_F(TypedValuesTest, AClickElsewhereTakesWhatIsTyped) {
  QTest::mouseDClick(&control<ValueLabel>("magfield_text"), Qt::LeftButton);
  ASSERT_NE(editor(), nullptr);
  QTest::keyClicks(editor(), QStringLiteral("4.5"));
  control<ValueSlider>("size_slider").setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(editor(), nullptr);
  EXPECT_EQ(control<ValueSlider>("magfield_slider").floatValue(), 4.5F);
}

TEST_F(TypedValuesTest, ANewEventIsMadeWithAValueThatIsStillBeingTyped) {
  const auto by_keys = [this] { QTest::keyClick(editor(), Qt::Key_N, Qt::ControlModifier); };
  const auto by_button = [this] {
    auto& bar = control<QToolBar>("chamber_tool_bar");
    QTest::mouseClick(bar.widgetForAction(&item("new_event_item")), Qt::LeftButton);
  };
  const auto by_menu = [this] { choose("new_event_item"); };
  float field_kG = 1.0F;
  for (const std::function<void()>& make :
       std::vector<std::function<void()>>{by_keys, by_button, by_menu}) {
    field_kG += 0.5F;
    QTest::mouseDClick(&control<ValueLabel>("magfield_text"), Qt::LeftButton);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), QString::number(static_cast<double>(field_kG)));
    make();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(controller().model().shown()->values.B_field, field_kG);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(TypedValuesTest, AreChosenAtOnceAndTheNextOnesWithTheNextEvent) {
  const ChamberModel& model = controller().model();
  type("magfield_text", QStringLiteral("4.5"));
  type("kinetic_energy_text", QStringLiteral("6500"));
  control<ValueSlider>("size_slider").moveTo(3.0);
  const ChamberValues chosen{.B_field = 4.5F, .sides_cm = 300.0F, .kinetic_Mev = 6500.0F};
  EXPECT_EQ(model.chosen(), chosen);
  EXPECT_NE(model.next(), chosen);
  // A range beyond the energy takes it along.
  control<QComboBox>("efactor_popup").setCurrentIndex(1);
  EXPECT_EQ(model.chosen().kinetic_Mev, 1000.0F);
  choose("new_event_item");
  EXPECT_EQ(model.next(), model.chosen());
  EXPECT_EQ(model.next().B_field, 4.5F);
}

TEST_F(TypedValuesTest, LabelsAreInTheOrderOfTab) {
  for (const char* const name : {"magfield_text", "sides_text", "kinetic_energy_text"}) {
    EXPECT_NE(control<ValueLabel>(name).focusPolicy() & Qt::TabFocus, 0) << name;
  }
}

}  // namespace velquon::test
