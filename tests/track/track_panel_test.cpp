// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_panel.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <stdexcept>

#include "tests/track/track_rig.h"

// What the track window holds and how it is reached.

namespace velquon {
namespace {

using test::TrackRig;

QString accessible_name(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QComboBox& popup_of(const TrackRig& rig, const char* name) {
  auto* const popup = rig.panel->findChild<QComboBox*>(QLatin1String(name));
  if (popup == nullptr) {
    throw std::runtime_error(name);
  }
  return *popup;
}

/// The controls of the choices with their menu items in the order of what they offer.
struct Choices {
  const char* popup;
  std::vector<QAction*> items;
};
std::vector<Choices> choices_of(const TrackRig& rig) {
  return {{"particle_popup", {rig.electron_item, rig.positron_item}},
          {"direction_popup", {rig.LtoR_item, rig.RtoL_item}},
          {"velocity_popup", {rig.v_item, rig.two_v_item, rig.three_v_item}}};
}

TEST(TrackPanel, HasTheControlsByTheirNames) {
  TrackModel model;
  const TrackPanel panel(model);
  EXPECT_EQ(panel.track_view()->objectName(), QStringLiteral("track_view"));
  EXPECT_EQ(panel.vSlider()->objectName(), QStringLiteral("vSlider"));
  EXPECT_EQ(panel.field_text()->objectName(), QStringLiteral("field_text"));
  EXPECT_EQ(panel.tape_box()->objectName(), QStringLiteral("tape_box"));
  EXPECT_EQ(panel.inject_button()->objectName(), QStringLiteral("inject_button"));
  EXPECT_EQ(panel.clear_button()->objectName(), QStringLiteral("clear_button"));
}

TEST(TrackPanel, HasAFieldSliderFromMinusOneToOne) {
  TrackModel model;
  const TrackPanel panel(model);
  EXPECT_EQ(panel.vSlider()->minValue(), -1.0);
  EXPECT_EQ(panel.vSlider()->maxValue(), 1.0);
  EXPECT_EQ(panel.vSlider()->tickMarks(), 21);
  EXPECT_EQ(panel.vSlider()->orientation(), Qt::Vertical);
  EXPECT_EQ(panel.vSlider()->doubleValue(), 0.0);
  EXPECT_EQ(panel.field_text()->text(), QStringLiteral("B = 0.00"));
  EXPECT_EQ(panel.tape_box()->text(), QString());
}

TEST(TrackPanel, TellsScreenReadersWhatItsControlsAre) {
  TrackModel model;
  const TrackPanel panel(model);
  EXPECT_EQ(accessible_name(panel.vSlider()), QStringLiteral("Magnetic field"));
  EXPECT_EQ(accessible_name(panel.inject_button()), QStringLiteral("Inject"));
  EXPECT_EQ(accessible_name(panel.clear_button()), QStringLiteral("Clear"));
  EXPECT_EQ(accessible_name(panel.track_view()), QStringLiteral("Track"));
  EXPECT_EQ(accessible_name(panel.field_text()), panel.field_text()->text());
  panel.tape_box()->setText(QStringLiteral("D = 12.34"));
  EXPECT_EQ(accessible_name(panel.tape_box()), QStringLiteral("D = 12.34"));
}

TEST(TrackPanel, IsWalkedThroughByTheTabKey) {
  TrackRig rig;
  rig.activate();
  const std::vector<QWidget*> order{rig.slider,
                                    &popup_of(rig, "particle_popup"),
                                    &popup_of(rig, "direction_popup"),
                                    &popup_of(rig, "velocity_popup"),
                                    rig.panel->inject_button(),
                                    rig.panel->clear_button()};
  order.front()->setFocus();
  for (QWidget* widget : order) {
    EXPECT_EQ(rig.window->focusWidget(), widget);
    QTest::keyClick(rig.window->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(rig.window->focusWidget(), order.front());
}

TEST(TrackPanel, KeysMoveTheFieldByATenthOfATickAndByATick) {
  const TrackRig rig;
  const std::vector<std::pair<Qt::Key, double>> moves{
      {Qt::Key_Up, 0.01},   {Qt::Key_PageUp, 0.1}, {Qt::Key_Down, 0.09},
      {Qt::Key_Home, -1.0}, {Qt::Key_End, 1.0},    {Qt::Key_PageDown, 0.9}};
  for (const auto& [key, field] : moves) {
    QTest::keyClick(rig.slider, key);
    EXPECT_NEAR(rig.model.simulation().settings.B_field, field, 1.0e-7);
    EXPECT_EQ(rig.panel->field_text()->text(), QString::asprintf("B = %.2f", field));
  }
}

TEST(TrackPanel, TheWheelTurnsTheFieldOnlyWithTheFocus) {
  TrackRig rig;
  rig.activate();
  const auto turn_wheel = [&rig] {
    const QPointF place = rig.slider->rect().center();
    QWheelEvent turn(place, rig.slider->mapToGlobal(place), {}, QPoint(0, 120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(rig.slider, &turn);
  };
  rig.panel->inject_button()->setFocus();
  turn_wheel();
  EXPECT_EQ(rig.model.simulation().settings.B_field, 0.0);
  rig.slider->setFocus();
  turn_wheel();
  EXPECT_GT(rig.model.simulation().settings.B_field, 0.0);
}

TEST(TrackPanel, ItsButtonsDoWhatTheMenuItemsDo) {
  TrackRig rig;
  rig.activate();
  QTest::mouseClick(rig.panel->inject_button(), Qt::LeftButton);
  EXPECT_TRUE(rig.view->is_tracking());
  QTest::mouseClick(rig.panel->clear_button(), Qt::LeftButton);
  EXPECT_TRUE(rig.model.simulation().clear_signal());
}

TEST(TrackPanel, ItsButtonsCanBePressedWhileTheirItemsCanBeChosen) {
  TrackRig rig;
  const auto expect_same = [&rig](bool may_inject) {
    EXPECT_EQ(rig.inject_item->isEnabled(), may_inject);
    EXPECT_EQ(rig.panel->inject_button()->isEnabled(), may_inject);
    EXPECT_TRUE(rig.clear_item->isEnabled());
    EXPECT_TRUE(rig.panel->clear_button()->isEnabled());
  };
  expect_same(false);
  rig.activate();
  expect_same(true);
  rig.injectAndHold();
  expect_same(false);
}

TEST(TrackPanel, ItsChoicesFollowTheMenuAndTheMenuThem) {
  TrackRig rig;
  rig.activate();
  for (const auto& [name, items] : choices_of(rig)) {
    QComboBox& popup = popup_of(rig, name);
    ASSERT_EQ(popup.count(), static_cast<int>(items.size())) << name;
    for (int i = 0; i < popup.count(); ++i) {
      QAction* const item = items.at(static_cast<std::size_t>(i));
      EXPECT_EQ(popup.itemText(i), item->text().remove(u'&'));
      item->trigger();
      EXPECT_EQ(popup.currentIndex(), i) << name;
    }
    for (int i = 0; i < popup.count(); ++i) {
      popup.setFocus();
      QTest::keyClick(&popup, i == 0 ? Qt::Key_Home : Qt::Key_Down);
      for (int other = 0; other < popup.count(); ++other) {
        EXPECT_EQ(items.at(static_cast<std::size_t>(other))->isChecked(), other == i) << name;
      }
    }
  }
  EXPECT_EQ(rig.model.particle(), TrackParticle::e_plus);
  EXPECT_EQ(rig.model.direction(), TrackDirection::right_to_left);
  EXPECT_EQ(rig.model.speed(), 3);
  EXPECT_EQ(rig.model.simulation().settings.charge, 1.0);
}

TEST(TrackPanel, ItsChoicesRestWhenThoseOfTheMenuDo) {
  TrackRig rig;
  const auto expect_enabled = [&rig](bool enabled) {
    for (const auto& [name, items] : choices_of(rig)) {
      EXPECT_EQ(popup_of(rig, name).isEnabled(), enabled) << name;
      EXPECT_EQ(items.front()->isEnabled(), enabled) << name;
    }
  };
  expect_enabled(false);
  rig.activate();
  expect_enabled(true);
  popup_of(rig, "direction_popup").setFocus();
  rig.injectAndHold();
  expect_enabled(false);
  EXPECT_EQ(rig.window->focusWidget(), rig.view);
  while (rig.view->is_tracking()) {
    rig.step(1);
  }
  expect_enabled(true);
  EXPECT_EQ(rig.window->focusWidget(), &popup_of(rig, "direction_popup"));
}

TEST(TrackPanel, NumbersHaveUnitsBesideThem) {
  TrackRig rig;
  rig.activate();
  const auto unit = [&rig](const char* name) {
    return rig.panel->findChild<QLabel*>(QLatin1String(name))->text();
  };
  EXPECT_EQ(unit("field_unit"), QStringLiteral("B₀"));
  EXPECT_EQ(unit("tape_unit"), QString());
  rig.model.press({100.0, 100.0});
  rig.model.drag({130.0, 140.0});
  EXPECT_EQ(rig.panel->tape_box()->text(), QStringLiteral("D =  5.00"));
  EXPECT_EQ(unit("tape_unit"), QStringLiteral("units"));
}

TEST(TrackPanel, TheKeysComeBackToInjectAndDoNotGoOnToClear) {
  TrackRig rig;
  rig.activate();
  rig.model.setTimerSecs(0.001);
  rig.panel->inject_button()->setFocus();
  QTest::keyClick(rig.window->focusWidget(), Qt::Key_Space);
  ASSERT_TRUE(rig.view->is_tracking());
  EXPECT_FALSE(rig.panel->clear_button()->hasFocus());
  ASSERT_TRUE(rig.waitForEnd());
  EXPECT_TRUE(rig.panel->inject_button()->hasFocus());
}

TEST(TrackPanel, TheKeysStayWhereTheyWereTakenDuringARun) {
  TrackRig rig;
  rig.activate();
  rig.model.setTimerSecs(0.001);
  rig.panel->inject_button()->setFocus();
  QTest::keyClick(rig.window->focusWidget(), Qt::Key_Space);
  ASSERT_TRUE(rig.view->is_tracking());
  rig.slider->setFocus();
  ASSERT_TRUE(rig.waitForEnd());
  EXPECT_TRUE(rig.slider->hasFocus());
}

TEST(TrackPanel, CutsNoTextOff) {
  TrackRig rig;
  rig.activate();
  rig.panel->tape_box()->setText(QStringLiteral("D = 66.94"));
  rig.panel->field_text()->setText(QStringLiteral("B = -0.88"));
  for (const QLabel* label : rig.panel->findChildren<QLabel*>()) {
    EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    EXPECT_GE(label->height(), label->sizeHint().height()) << label->text().toStdString();
  }
  for (const QPushButton* button : rig.panel->findChildren<QPushButton*>()) {
    EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
  }
}

}  // namespace
}  // namespace velquon
