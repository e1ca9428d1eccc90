// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a screen reader finds: names, values and actions of the controls.

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <cmath>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

QString accessible_name(QObject& object) {
  QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(&object);
  return found != nullptr ? found->text(QAccessible::Name) : QString();
}

bool is_control(const QWidget* widget) {
  const bool is_scroll_bar = qobject_cast<const QScrollBar*>(widget) != nullptr;
  return !is_scroll_bar && (qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                            qobject_cast<const QAbstractSlider*>(widget) != nullptr ||
                            qobject_cast<const QComboBox*>(widget) != nullptr ||
                            qobject_cast<const GLView*>(widget) != nullptr);
}

class AccessibilityTest : public ApplicationFixture {
 protected:
  [[nodiscard]] QList<QWidget*> controls() {
    QList<QWidget*> found;
    for (QMainWindow* const window : {static_cast<QMainWindow*>(&chamberWindow()),
                                      static_cast<QMainWindow*>(&projectorWindow())}) {
      for (QWidget* const widget : window->findChildren<QWidget*>()) {
        if (widget->isVisibleTo(window) && is_control(widget)) {
          found << widget;
        }
      }
    }
    return found;
  }
  [[nodiscard]] QAccessibleValueInterface& value(const char* slider) {
    auto* const found = QAccessible::queryAccessibleInterface(&control<ValueSlider>(slider));
    auto* const value = found != nullptr ? found->valueInterface() : nullptr;
    if (value == nullptr) {
      throw std::runtime_error("no accessible value");
    }
    return *value;
  }
  void act(const char* button, const QString& action) {
    auto* const found = QAccessible::queryAccessibleInterface(&control<QAbstractButton>(button));
    auto* const actions = found != nullptr ? found->actionInterface() : nullptr;
    ASSERT_NE(actions, nullptr);
    ASSERT_TRUE(actions->actionNames().contains(action));
    actions->doAction(action);
  }
};

}  // namespace

TEST_F(AccessibilityTest, EveryControlHasAName) {
  const auto found = controls();
  EXPECT_GE(found.size(), 18);
  QStringList names;
  for (QWidget* const widget : found) {
    EXPECT_FALSE(accessible_name(*widget).isEmpty()) << widget->objectName().toStdString();
    names << accessible_name(*widget);
  }
  EXPECT_EQ(names.removeDuplicates(), 0);
}

TEST_F(AccessibilityTest, EveryControlUnderTheViewsIsInTheTabOrder) {
  for (const char* const name :
       {"magfield_slider", "size_slider", "energy_slider", "efactor_popup", "event_type_button",
        "xy_button", "xz_button", "yz_button", "zoom_1", "zoom_2", "zoom_3", "tape_tool",
        "grab_tool", "curve_tool", "angle_tool", "snap_button", "record_button"}) {
    EXPECT_TRUE((control<QWidget>(name).focusPolicy() & Qt::TabFocus) != 0) << name;
  }
}

TEST_F(AccessibilityTest, ToolBarButtonsAreInTheTabOrder) {
  const auto buttons = control<QToolBar>("chamber_tool_bar").findChildren<QToolButton*>();
  int seen = 0;
  for (const QToolButton* const button : buttons) {
    if (button->isVisible()) {
      EXPECT_TRUE((button->focusPolicy() & Qt::TabFocus) != 0) << button->text().toStdString();
      ++seen;
    }
  }
  EXPECT_EQ(seen, 5);
}

TEST_F(AccessibilityTest, TheEnergyRangesHaveALabel) {
  auto* const ranges = QAccessible::queryAccessibleInterface(&control<QComboBox>("efactor_popup"));
  const auto labels = ranges->relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels.front().first->text(QAccessible::Name), QStringLiteral("Range:"));
}

TEST_F(AccessibilityTest, WindowsAndLabelsAreNamedByTheirText) {
  EXPECT_EQ(accessible_name(chamberWindow()), chamberWindow().windowTitle());
  EXPECT_EQ(accessible_name(projectorWindow()), projectorWindow().windowTitle());
  for (const char* const name :
       {"magfield_text", "sides_text", "kinetic_energy_text", "tape_text"}) {
    EXPECT_EQ(accessible_name(control<QLabel>(name)), control<QLabel>(name).text()) << name;
  }
}

TEST_F(AccessibilityTest, SlidersTellTheirRealNumbers) {
  struct Case {
    const char* slider;
    double least;
    double value;
    double greatest;
    double step;
  };
  constexpr std::array cases{Case{"magfield_slider", 0.0, 0.6, 10.0, 0.05},
                             Case{"size_slider", 0.5, 5.0, 10.0, 0.05},
                             Case{"energy_slider", 0.1, 0.4, 1.0, 0.01}};
  for (const auto& [name, least, at, greatest, step] : cases) {
    SCOPED_TRACE(name);
    EXPECT_NEAR(value(name).minimumValue().toDouble(), least, 1.0e-6);
    EXPECT_NEAR(value(name).currentValue().toDouble(), at, 1.0e-6);
    EXPECT_NEAR(value(name).maximumValue().toDouble(), greatest, 1.0e-6);
    EXPECT_NEAR(value(name).minimumStepSize().toDouble(), step, 1.0e-6);
  }
  auto* const field =
      QAccessible::queryAccessibleInterface(&control<ValueSlider>("magfield_slider"));
  EXPECT_EQ(field->role(), QAccessible::Slider);
  EXPECT_TRUE(field->text(QAccessible::Value).endsWith(QStringLiteral(" kG")));
}

TEST_F(AccessibilityTest, ValuesSetByAScreenReaderAreMovesOfThePerson) {
  value("magfield_slider").setCurrentValue(2.5);
  EXPECT_EQ(control<ValueSlider>("magfield_slider").floatValue(), 2.5F);
  EXPECT_EQ(control<QLabel>("magfield_text").text().toStdString(), "B = 2.500 kG");
  value("magfield_slider").setCurrentValue(99.0);
  EXPECT_EQ(control<ValueSlider>("magfield_slider").floatValue(), 10.0F);
  for (const double wild : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    value("size_slider").setCurrentValue(wild);
    EXPECT_EQ(control<ValueSlider>("size_slider").floatValue(), 5.0F);
  }
  control<QComboBox>("efactor_popup").setCurrentIndex(6);
  value("energy_slider").setCurrentValue(0.0);
  EXPECT_GT(control<ValueSlider>("energy_slider").floatValue(), 0.0F);
}

TEST_F(AccessibilityTest, ButtonsWorkByTheirActions) {
  act("xz_button", QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::xz);
  act("yz_button", QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::yz);
  act("zoom_2", QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(projection().mapping().zoom, 2.0);
  act("grab_tool", QAccessibleActionInterface::toggleAction());
  drag(projection(), {100, 100}, {140, 100});
  EXPECT_EQ(projection().mapping().offset_across, 510.0);
}

TEST_F(AccessibilityTest, AClickWorksAfterAToggle) {
  act("xz_button", QAccessibleActionInterface::toggleAction());
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {140, 100});
  ASSERT_EQ(projection().mapping().offset_across, 510.0);
  clickButton("xz_button");
  EXPECT_EQ(projection().mapping().offset_across, 470.0);
}

TEST_F(AccessibilityTest, MenusAreNamedByTheirTitles) {
  for (const QString& title :
       {QStringLiteral("File"), QStringLiteral("Action"), QStringLiteral("Event"),
        QStringLiteral("Settings"), QStringLiteral("Window")}) {
    auto* const bar = QAccessible::queryAccessibleInterface(chamberWindow().menuBar());
    ASSERT_NE(bar, nullptr);
    bool is_there = false;
    for (int i = 0; i < bar->childCount(); ++i) {
      is_there |= bar->child(i)->text(QAccessible::Name) == title;
    }
    EXPECT_TRUE(is_there) << title.toStdString();
  }
}

}  // namespace velquon::test
