// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "track/track_controller.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QTest>
#include <QTimer>
#include <string>

#include "tests/support/windows/waiting.h"
#include "tests/track/track_rig.h"

// The track window's states and what they do to the menus.

namespace velquon {
namespace {

using test::TrackRig;
using test::wait_until;
using test::wait_until_active;

QString title_of(const QAction* item) {
  return item->text().remove(QLatin1Char('&'));
}

TEST(TrackController, StartsInactiveWithItsDefaults) {
  const TrackRig rig;
  EXPECT_FALSE(rig.controller->activated());
  EXPECT_FALSE(rig.window->isVisible());
  EXPECT_EQ(rig.model.speed(), 2);
  EXPECT_EQ(rig.model.particle(), TrackParticle::e_minus);
  EXPECT_EQ(rig.model.direction(), TrackDirection::left_to_right);
  const LiveTrackSettings& settings = rig.model.simulation().settings;
  EXPECT_EQ(settings.speed, 2.0);
  EXPECT_EQ(settings.charge, -1.0);
  EXPECT_EQ(settings.direction, 1);
  EXPECT_EQ(settings.B_field, 0.0);
  EXPECT_EQ(rig.model.timerSecs(), 0.01);
  EXPECT_EQ(rig.controller->vSlider(), rig.slider);
  EXPECT_EQ(rig.slider->doubleValue(), 0.0);
  EXPECT_TRUE(rig.slider->hasTracking());
}

TEST(TrackController, WakingPutsTheSliderInTheMiddleAndKeepsTheWindowWhenClosed) {
  TrackRig rig;
  rig.slider->setFloatValue(0.7F);
  rig.slider->setTracking(false);
  rig.window->setAttribute(Qt::WA_DeleteOnClose);
  rig.controller->awakeFromNib();
  EXPECT_EQ(rig.slider->doubleValue(), 0.0);
  EXPECT_TRUE(rig.slider->hasTracking());
  EXPECT_FALSE(rig.window->testAttribute(Qt::WA_DeleteOnClose));
}

TEST(TrackController, HandsOutTheSliderThatItWasGiven) {
  TrackRig rig;
  ValueSlider other;
  rig.controller->setVSlider(&other);
  EXPECT_EQ(rig.controller->vSlider(), &other);
}

struct ChoiceCase {
  std::string name;
  QAction* TrackRig::*item;
  std::vector<QAction * TrackRig::*> others;
  double charge, speed;
  std::int32_t direction;
  TrackParticle particle_choice;
  int v_choice;
  TrackDirection direction_choice;
};

class TrackChoice : public ::testing::TestWithParam<ChoiceCase> {};

TEST_P(TrackChoice, ChecksItsItemAloneAndReachesTheView) {
  const ChoiceCase& row = GetParam();
  TrackRig rig;
  rig.activate();
  for (int time = 0; time < 2; ++time) {  // choosing it again changes nothing
    (rig.*row.item)->trigger();
    EXPECT_TRUE((rig.*row.item)->isChecked());
    for (const auto other : row.others) {
      EXPECT_FALSE((rig.*other)->isChecked());
    }
    const LiveTrackSettings& settings = rig.model.simulation().settings;
    EXPECT_EQ(settings.charge, row.charge);
    EXPECT_EQ(settings.speed, row.speed);
    EXPECT_EQ(settings.direction, row.direction);
    EXPECT_EQ(rig.model.particle(), row.particle_choice);
    EXPECT_EQ(rig.model.speed(), row.v_choice);
    EXPECT_EQ(rig.model.direction(), row.direction_choice);
  }
}

using Rig = TrackRig;
constexpr TrackParticle minus = TrackParticle::e_minus;
constexpr TrackParticle plus = TrackParticle::e_plus;
constexpr TrackDirection ltor = TrackDirection::left_to_right;
constexpr TrackDirection rtol = TrackDirection::right_to_left;
INSTANTIATE_TEST_SUITE_P(
    Table, TrackChoice,
    ::testing::Values(
        ChoiceCase{
            "electron", &Rig::electron_item, {&Rig::positron_item}, -1, 2, 1, minus, 2, ltor},
        ChoiceCase{"positron", &Rig::positron_item, {&Rig::electron_item}, 1, 2, 1, plus, 2, ltor},
        ChoiceCase{
            "v", &Rig::v_item, {&Rig::two_v_item, &Rig::three_v_item}, -1, 1, 1, minus, 1, ltor},
        ChoiceCase{"two_v",
                   &Rig::two_v_item,
                   {&Rig::v_item, &Rig::three_v_item},
                   -1,
                   2,
                   1,
                   minus,
                   2,
                   ltor},
        ChoiceCase{"three_v",
                   &Rig::three_v_item,
                   {&Rig::v_item, &Rig::two_v_item},
                   -1,
                   3,
                   1,
                   minus,
                   3,
                   ltor},
        ChoiceCase{"LtoR", &Rig::LtoR_item, {&Rig::RtoL_item}, -1, 2, 1, minus, 2, ltor},
        ChoiceCase{"RtoL", &Rig::RtoL_item, {&Rig::LtoR_item}, -1, 2, 2, minus, 2, rtol}),
    [](const auto& row) { return row.param.name; });

TEST(TrackController, AStrangerChoosesNothing) {
  TrackRig rig;
  rig.activate();
  rig.positron_item->trigger();
  rig.view->setCharge(0.5F);
  rig.view->setSpeed(7.0F);
  rig.view->setDirection(2);
  const LiveTrackSettings& settings = rig.model.simulation().settings;
  for (const int stranger : {0, 4, -1}) {
    rig.view->setSpeed(7.0F);
    rig.controller->setSpeed(stranger);
    EXPECT_EQ(settings.speed, 2.0) << "the present choice is passed on again";
  }
  EXPECT_EQ(settings.charge, 0.5) << "the charge is left alone";
  EXPECT_EQ(settings.direction, 2) << "and so is the direction";
  EXPECT_TRUE(rig.positron_item->isChecked());
  EXPECT_TRUE(rig.two_v_item->isChecked());
  EXPECT_TRUE(rig.LtoR_item->isChecked());
  rig.controller->setDirection(rig.model.direction());
  EXPECT_EQ(settings.direction, 1) << "the present choice is passed on again";
}

TEST(TrackController, TheScreenSpeedSetsThePeriodOfTheNextRun) {
  TrackRig rig;
  rig.activate();
  rig.inject_item->trigger();
  ASSERT_TRUE(wait_until([&] { return rig.view->trackTimer() != nullptr; }));
  EXPECT_EQ(rig.view->trackTimer()->interval(), 10);
  EXPECT_EQ(rig.view->trackTimer()->timerType(), Qt::PreciseTimer);
  EXPECT_FALSE(rig.view->trackTimer()->isSingleShot());

  const std::vector<std::pair<QAction*, int>> choices{
      {rig.faster_item, 5}, {rig.slower_item, 20}, {rig.faster_item, 5}, {rig.default_item, 20}};
  for (const auto& [item, period] : choices) {
    const int before = rig.view->trackTimer()->interval();
    item->trigger();
    EXPECT_EQ(rig.model.timerSecs(), 0.001 * period);
    EXPECT_EQ(rig.view->trackTimer()->interval(), before) << "not in the middle of a run";
    rig.view->startTracking();
    EXPECT_EQ(rig.view->trackTimer()->interval(), period);
  }
}

TEST(TrackController, ActivatingBringsTheWindowAndDeactivatingTakesIt) {
  TrackRig rig;
  rig.activate();
  EXPECT_TRUE(rig.window->isVisible());
  EXPECT_TRUE(rig.window->isActiveWindow());
  EXPECT_EQ(title_of(rig.activate_item), QStringLiteral("Deactivate"));
  rig.deactivate();
  EXPECT_FALSE(rig.window->isVisible());
  EXPECT_FALSE(rig.controller->activated());
  EXPECT_EQ(title_of(rig.activate_item), QStringLiteral("Activate"));
  rig.activate();
  EXPECT_TRUE(rig.window->isActiveWindow());
  EXPECT_EQ(title_of(rig.activate_item), QStringLiteral("Deactivate"));
}

TEST(TrackController, TheWindowActivatesOnlyWhenItBecomesKey) {
  TrackRig rig;
  rig.controller->setActivate();
  EXPECT_TRUE(rig.window->isVisible());
  EXPECT_FALSE(rig.controller->activated());
  EXPECT_EQ(title_of(rig.activate_item), QStringLiteral("Activate"));
  EXPECT_TRUE(wait_until([&] { return rig.controller->activated(); }));
}

TEST(TrackController, LosingTheKeyboardOrBecomingKeyAgainChangesNothing) {
  TrackRig rig;
  rig.activate();
  rig.menus.new_event_item->setEnabled(true);
  rig.activate_item->setText(QStringLiteral("as it was"));
  rig.controller->windowDidResignKey();
  EXPECT_TRUE(rig.controller->activated());
  rig.controller->windowDidBecomeKey();
  EXPECT_TRUE(rig.menus.new_event_item->isEnabled());
  EXPECT_EQ(rig.activate_item->text(), QStringLiteral("as it was"));
}

TEST(TrackController, NewsOfTheKeysThatComesAfterTheWindowWasHiddenDoesNotActivateIt) {
  TrackRig rig;
  rig.activate();
  rig.deactivate();
  QEvent late_news(QEvent::WindowActivate);
  QCoreApplication::sendEvent(rig.window, &late_news);
  EXPECT_FALSE(rig.controller->activated());
  EXPECT_EQ(title_of(rig.activate_item), QStringLiteral("Activate"));
  rig.activate();
  EXPECT_TRUE(rig.window->isVisible());
}

TEST(TrackController, AWindowThatWasGivenTheKeysWhileHiddenIsActivatedWhenItIsShown) {
  TrackRig rig;
  QApplication::setActiveWindow(rig.window);
  EXPECT_FALSE(rig.controller->activated());
  rig.window->show();
  EXPECT_TRUE(rig.controller->activated());
}

TEST(TrackController, AnotherWindowInFrontLeavesItActive) {
  TrackRig rig;
  rig.activate();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(wait_until_active(&other));
  ASSERT_TRUE(wait_until([&] { return !rig.window->isActiveWindow(); }));
  EXPECT_TRUE(rig.controller->activated());
  EXPECT_TRUE(rig.window->isVisible());
  EXPECT_FALSE(rig.menus.new_event_item->isEnabled());
}

TEST(TrackController, ClosingTheWindowHidesItAndLeavesItActive) {
  TrackRig rig;
  rig.activate();
  rig.window->close();
  QTest::qWait(20);
  EXPECT_FALSE(rig.window->isVisible());
  EXPECT_TRUE(rig.controller->activated());
  EXPECT_EQ(title_of(rig.activate_item), QStringLiteral("Deactivate"));
  rig.deactivate();
  EXPECT_FALSE(rig.controller->activated());
  rig.activate();
  EXPECT_TRUE(rig.window->isVisible());
}

void leave_the_area(TrackRig& rig) {
  while (rig.model.simulation().canStep()) {
    rig.step(1);
  }
  rig.step(1);
}

struct StateCase {
  std::string name;
  void (*enter)(TrackRig& rig);
  bool choices;          ///< particle, direction and speed with their submenus
  bool screen_speed;     ///< with its submenu
  bool inject;           ///< the menu item and the button
  bool rest_of_program;  ///< open, save, and the items of the other menus
};

class TrackMenus : public ::testing::TestWithParam<StateCase> {};

TEST_P(TrackMenus, EnableWhatTheStateAllows) {
  const StateCase& row = GetParam();
  TrackRig rig;
  row.enter(rig);

  struct Item {
    const char* name;
    const QAction* item;
    bool enabled;
    TrackItem kind = TrackItem::choice;
  };
  const std::vector<Item> own_items{
      {"activate_item", rig.activate_item, true, TrackItem::activate},
      {"particle_selector", rig.menus.particle_menu->menuAction(), row.choices},
      {"electron_item", rig.electron_item, row.choices},
      {"positron_item", rig.positron_item, row.choices},
      {"direction_selector", rig.menus.direction_menu->menuAction(), row.choices},
      {"LtoR_item", rig.LtoR_item, row.choices},
      {"RtoL_item", rig.RtoL_item, row.choices},
      {"speed_selector", rig.menus.velocity_menu->menuAction(), row.choices},
      {"v_item", rig.v_item, row.choices},
      {"two_v_item", rig.two_v_item, row.choices},
      {"three_v_item", rig.three_v_item, row.choices},
      {"screen_speed", rig.menus.speed_menu->menuAction(), row.screen_speed,
       TrackItem::screen_speed},
      {"faster_item", rig.faster_item, row.screen_speed, TrackItem::screen_speed},
      {"default_item", rig.default_item, row.screen_speed, TrackItem::screen_speed},
      {"slower_item", rig.slower_item, row.screen_speed, TrackItem::screen_speed}};
  for (const Item& item : own_items) {
    EXPECT_EQ(item.item->isEnabled(), item.enabled) << item.name;
    EXPECT_EQ(rig.controller->validateMenuItem(item.kind), item.enabled) << item.name;
  }
  const std::vector<Item> other_items{
      {"inject_item", rig.inject_item, row.inject, TrackItem::inject},
      {"clear_item", rig.clear_item, true, TrackItem::clear},
      {"open_item", rig.menus.open_item, row.rest_of_program, TrackItem::rest_of_program},
      {"save_item", rig.menus.save_item, row.rest_of_program, TrackItem::rest_of_program},
      {"new_event_item", rig.menus.new_event_item, row.rest_of_program, TrackItem::rest_of_program},
      {"show_axes_item", rig.menus.axes_item, row.rest_of_program, TrackItem::rest_of_program},
      {"rotation axis submenu", rig.menus.axis_menu->menuAction(), row.rest_of_program,
       TrackItem::rest_of_program},
      {"pion_item", rig.menus.piminus_item, row.rest_of_program, TrackItem::rest_of_program}};
  for (const Item& item : other_items) {
    EXPECT_EQ(item.item->isEnabled(), item.enabled) << item.name;
    EXPECT_EQ(rig.controller->validateMenuItem(item.kind), item.enabled) << item.name;
  }
  EXPECT_EQ(rig.panel->inject_button()->isEnabled(), row.inject);
  EXPECT_TRUE(rig.panel->clear_button()->isEnabled());
  EXPECT_TRUE(rig.slider->isEnabled());
}

INSTANTIATE_TEST_SUITE_P(
    States, TrackMenus,
    ::testing::Values(StateCase{"inactive", [](TrackRig& /*rig*/) {}, false, false, false, true},
                      StateCase{"active", [](TrackRig& rig) { rig.activate(); }, true, true, true,
                                false},
                      StateCase{"running",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                },
                                false, true, false, true},
                      StateCase{"injected_and_not_yet_started",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.inject_item->trigger();
                                },
                                false, true, false, true},
                      StateCase{"run_over",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                  leave_the_area(rig);
                                },
                                true, true, true, false},
                      StateCase{"deactivated_during_a_run",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                  rig.deactivate();
                                },
                                false, false, false, true},
                      StateCase{"deactivated_and_run_over",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                  rig.deactivate();
                                  leave_the_area(rig);
                                },
                                false, false, false, true},
                      StateCase{"active_again_while_the_old_particle_flies",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                  rig.deactivate();
                                  rig.activate();
                                },
                                true, true, true, false},
                      StateCase{"window_closed",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.window->close();
                                },
                                true, true, true, false},
                      StateCase{"window_closed_during_a_run",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                  rig.window->close();
                                },
                                false, true, false, true},
                      StateCase{"window_closed_and_run_over",
                                [](TrackRig& rig) {
                                  rig.activate();
                                  rig.injectAndHold();
                                  rig.window->close();
                                  leave_the_area(rig);
                                },
                                true, true, true, false}),
    [](const auto& row) { return row.param.name; });

TEST(TrackController, AnItemThatWasMeddledWithTellsTheStateWhenItsMenuOpens) {
  TrackRig rig;
  rig.v_item->setEnabled(true);
  rig.faster_item->setEnabled(true);
  rig.menus.velocity_menu->menuAction()->setEnabled(true);
  rig.activate_item->setEnabled(false);
  Q_EMIT rig.menus.track_menu->aboutToShow();
  EXPECT_FALSE(rig.v_item->isEnabled());
  EXPECT_FALSE(rig.faster_item->isEnabled());
  EXPECT_FALSE(rig.menus.velocity_menu->menuAction()->isEnabled());
  EXPECT_TRUE(rig.activate_item->isEnabled());
  rig.v_item->setEnabled(true);
  Q_EMIT rig.menus.velocity_menu->aboutToShow();
  EXPECT_FALSE(rig.v_item->isEnabled());
  rig.faster_item->setEnabled(true);
  Q_EMIT rig.menus.speed_menu->aboutToShow();
  EXPECT_FALSE(rig.faster_item->isEnabled());
}

TEST(TrackController, ShortcutsObeyTheStateToo) {
  TrackRig rig;
  rig.activate();
  QTest::keyClick(rig.window, Qt::Key_J, Qt::ControlModifier);
  ASSERT_TRUE(rig.view->is_tracking());
  rig.model.setTimerSecs(1000.0);
  ASSERT_TRUE(wait_until([&] { return rig.view->trackTimer() != nullptr; }));
  const QTimer* timer = rig.view->trackTimer();
  rig.step(3);
  const std::int32_t points = rig.model.simulation().show_points();
  QTest::keyClick(rig.window, Qt::Key_J, Qt::ControlModifier);
  QTest::qWait(50);
  EXPECT_EQ(rig.view->trackTimer(), timer) << "a run is not started over";
  EXPECT_GE(rig.model.simulation().show_points(), points);
  QTest::keyClick(rig.window, Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(rig.model.simulation().clear_signal());
}

}  // namespace
}  // namespace velquon
