// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The menus: their titles and shortcuts, their check marks, and what their choices set.

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/menu_keys.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class MenusTest : public ApplicationFixture {
 protected:
  /// Expects one item of a group to be checked and no other.
  void expectOnlyChecked(const std::vector<const char*>& group, const char* chosen) {
    for (const char* const name : group) {
      EXPECT_EQ(item(name).isChecked(), name == std::string_view(chosen)) << name;
    }
  }
};

const std::vector<const char*> types{"piminus_item", "piplus_item", "pizero_item",
                                     "muminus_item", "muplus_item", "lambda_item"};
const std::vector<const char*> axis_items{"x_item", "y_item", "z_item"};
const std::vector<const char*> rates{"rotate_faster_item", "default_rotate_item",
                                     "rotate_slower_item"};
const std::vector<const char*> monitors{"mon_chamber", "mon_projector"};

struct TitleCase {
  std::vector<const char*> path;
  const char* name;
  const char* shortcut;
};

const std::vector<TitleCase> titles{
    {{"File", "Open Event…"}, "open_item", "Ctrl+O"},
    {{"File", "Import PC Event…"}, "import_item", "Ctrl+I"},
    {{"File", "Save Event…"}, "save_item", "Ctrl+S"},
    {{"File", "Save Picture…"}, "save_picture_item", "Ctrl+Shift+S"},
    {{"File", "Copy Picture"}, "copy_picture_item", "Ctrl+C"},
    {{"File", "Export Points…"}, "export_points_item", ""},
    {{"File", "Export Record…"}, "export_record_item", ""},
    {{"File", "Print…"}, "print_item", "Ctrl+P"},
    {{"File", "Print Worksheets…"}, "worksheets_item", ""},
    {{"File", "Quit"}, "quit_item", "Ctrl+Q"},
    {{"Action", "New Event"}, "new_event_item", "Ctrl+N"},
    {{"Action", "Replay"}, "replay_item", "Ctrl+R"},
    {{"Action", "Rotate"}, "rotate_item", "Ctrl+T"},
    {{"Action", "Reverse Rotation"}, "reverse_rotate_item", "Ctrl+Shift+T"},
    {{"Action", "Reset Orientation"}, "reset_orientation_item", "Ctrl+0"},
    {{"Event", "Negative Pion π⁻"}, "piminus_item", ""},
    {{"Event", "Positive Pion π⁺"}, "piplus_item", ""},
    {{"Event", "Neutral Pion π⁰"}, "pizero_item", ""},
    {{"Event", "Negative Muon μ⁻"}, "muminus_item", ""},
    {{"Event", "Positive Muon μ⁺"}, "muplus_item", ""},
    {{"Event", "Lambda Λ"}, "lambda_item", ""},
    {{"Settings", "Show Axes"}, "axes_item", ""},
    {{"Settings", "Show Values"}, "values_item", ""},
    {{"Settings", "Show Legend"}, "legend_item", ""},
    {{"Settings", "Axis Letters"}, "axis_letters_item", ""},
    {{"Settings", "Field Arrow"}, "field_arrow_item", ""},
    {{"Settings", "Colored Tracks in Projector"}, "colored_projector_item", ""},
    {{"Settings", "Reset Orientation for Each Event"}, "reset_each_item", ""},
    {{"Settings", "Slow Motion"}, "slomo_item", ""},
    {{"Settings", "Rotation Axis", "x"}, "x_item", ""},
    {{"Settings", "Rotation Axis", "y"}, "y_item", ""},
    {{"Settings", "Rotation Axis", "z"}, "z_item", ""},
    {{"Settings", "Rotation Rate", "Faster"}, "rotate_faster_item", ""},
    {{"Settings", "Rotation Rate", "Default"}, "default_rotate_item", ""},
    {{"Settings", "Rotation Rate", "Slower"}, "rotate_slower_item", ""},
    {{"Settings", "Window in Front", "Chamber"}, "mon_chamber", ""},
    {{"Settings", "Window in Front", "Projector"}, "mon_projector", ""},
    {{"Track", "Inject Particle"}, "inject_item", "Ctrl+J"},
    {{"Track", "Clear Screen"}, "clear_screen_item", "Ctrl+L"},
    {{"Window", "Chamber"}, "chamber_window_item", ""},
    {{"Window", "Projector"}, "projector_window_item", ""},
    {{"Window", "Event Record"}, "event_record_item", "Ctrl+E"},
    {{"Window", "Measurements"}, "measurements_item", "Ctrl+M"},
    {{"Help", "Velquon Guide"}, "guide_item", "F1"},
    {{"Help", "Keyboard Shortcuts"}, "shortcuts_item", ""},
    {{"Help", "About Velquon"}, "about_item", ""},
};

/// The window of the program that has a title; null without one on the screen.
QWidget* shown_window(const QString& title) {
  const auto windows = QApplication::topLevelWidgets();
  const auto found = std::ranges::find_if(windows, [&](const QWidget* window) {
    return window->isVisible() && window->windowTitle() == title;
  });
  return found != windows.end() ? *found : nullptr;
}

/// What is typed with Alt to choose an action of an open menu.
/// Holds keys down as a person does, on the keyboard of the X server, which repeats them.
void hold_down(const QString& keys, int milliseconds) {
  const auto type = [&](const QString& what) {
    QProcess::execute(QStringLiteral("xdotool"), {what, keys});
  };
  type(QStringLiteral("keydown"));
  run_loop_for(milliseconds);
  type(QStringLiteral("keyup"));
  run_loop_for(50);
}

}  // namespace

TEST_F(MenusTest, ItemsAreFoundByTheirTitlesInBothWindows) {
  for (const auto& [path, name, shortcut] : titles) {
    QStringList by_title;
    for (const char* const title : path) {
      by_title << QString::fromUtf8(title);
    }
    EXPECT_EQ(item_titled(chamberWindow(), by_title), &item(name)) << name;
    EXPECT_EQ(item_titled(projectorWindow(), by_title), &item(name)) << name;
    EXPECT_EQ(item(name).shortcut().toString().toStdString(), shortcut) << name;
  }
}

TEST_F(MenusTest, NoShortcutIsGivenTwice) {
  QStringList shortcuts;
  for (const QAction* const menu : chamberWindow().menuBar()->actions()) {
    for (const QAction* const action : menu->menu()->actions()) {
      if (!action->shortcut().isEmpty()) {
        shortcuts << action->shortcut().toString();
      }
    }
  }
  EXPECT_GE(shortcuts.size(), 10);
  EXPECT_EQ(shortcuts.removeDuplicates(), 0);
}

TEST_F(MenusTest, EachItemHasAMnemonicOfItsOwnInItsMenu) {
  expect_own_letters(chamberWindow().menuBar()->actions());
}

TEST_F(MenusTest, F1OpensTheGuide) {
  const QString title = QStringLiteral("Velquon Guide");
  for (QWidget* const window :
       {static_cast<QWidget*>(&chamberWindow()), static_cast<QWidget*>(&projectorWindow())}) {
    activate(*window);
    ASSERT_EQ(shown_window(title), nullptr);
    QTest::keyClick(window, Qt::Key_F1);
    EXPECT_TRUE(wait_until(
        [&] { return shown_window(title) != nullptr && shown_window(title)->isActiveWindow(); }));
    QTest::keyClick(shown_window(title), Qt::Key_Escape);
    EXPECT_TRUE(wait_until([&] { return shown_window(title) == nullptr; }));
  }
}

TEST_F(MenusTest, AKeyHeldDownMakesOneEventAndOneReplay) {
  constexpr int long_enough_to_repeat = 1000;
  // A key that repeats shows that this keyboard does.
  const QSignalSpy resets(&item("reset_orientation_item"), &QAction::triggered);
  hold_down(QStringLiteral("ctrl+0"), long_enough_to_repeat);
  EXPECT_GT(resets.size(), 3);
  struct Case {
    const char* name;
    const char* keys;
  };
  constexpr std::array cases{Case{"new_event_item", "ctrl+n"}, Case{"replay_item", "ctrl+r"},
                             Case{"rotate_item", "ctrl+t"},
                             Case{"reverse_rotate_item", "ctrl+shift+t"}};
  for (const auto& [name, keys] : cases) {
    const QSignalSpy chosen(&item(name), &QAction::triggered);
    hold_down(QLatin1String(keys), long_enough_to_repeat);
    EXPECT_EQ(chosen.size(), 1) << name;
    chamber().stopRotating();
  }
}

TEST_F(MenusTest, KeysPressedQuicklyOneAfterTheOtherAreAllFollowed) {
  const QSignalSpy events(&item("new_event_item"), &QAction::triggered);
  const QSignalSpy turns(&item("rotate_item"), &QAction::triggered);
  // The same key as quickly as a person types, and another one as soon as the first is up.
  const RealInput input(
      QStringLiteral("keydown ctrl keydown n sleep 0.05 keyup n sleep 0.15 keydown n sleep 0.05 "
                     "keyup n keydown t sleep 0.05 keyup t keyup ctrl"));
  EXPECT_TRUE(wait_until([&] { return input.isOver(); }));
  EXPECT_TRUE(wait_until([&] { return events.size() >= 2 && !turns.isEmpty(); }));
  run_loop_for(100);
  EXPECT_EQ(events.size(), 2);
  EXPECT_EQ(turns.size(), 1);
}

TEST_F(MenusTest, AKeyHeldDownInjectsOneParticleAndSwitchesTheTrackWindowOnce) {
  constexpr int long_enough_to_repeat = 1000;
  const QSignalSpy switched(&item("activate_item"), &QAction::triggered);
  hold_down(QStringLiteral("ctrl+k"), long_enough_to_repeat);
  EXPECT_EQ(switched.size(), 1);
  ASSERT_TRUE(wait_until([&] { return item("inject_item").isEnabled(); }));
  const QSignalSpy injected(&item("inject_item"), &QAction::triggered);
  hold_down(QStringLiteral("ctrl+j"), long_enough_to_repeat);
  EXPECT_EQ(injected.size(), 1);
}

TEST_F(MenusTest, CheckMarksAtStartAreTheViewsState) {
  EXPECT_TRUE(item("axes_item").isChecked());
  EXPECT_TRUE(chamber().show_axes());
  EXPECT_TRUE(item("values_item").isChecked());
  EXPECT_TRUE(chamber().show_values());
  EXPECT_FALSE(item("reset_each_item").isChecked());
  EXPECT_FALSE(chamber().reset_each());
  EXPECT_FALSE(item("slomo_item").isChecked());
  EXPECT_FALSE(chamber().slomo());
  expectOnlyChecked(axis_items, "x_item");
  EXPECT_EQ(chamber().rotation_axis(), 1);
  expectOnlyChecked(monitors, "mon_chamber");
  expectOnlyChecked(types, "piminus_item");
  EXPECT_EQ(chamber().event_type(), 0);
  expectOnlyChecked(rates, "default_rotate_item");
  EXPECT_EQ(chamber().rot_delay(), 0.01);
}

TEST_F(MenusTest, AnEventTypeIsItsIndexInTheMenu) {
  for (std::size_t i = 0; i < types.size(); ++i) {
    // Twice: what is chosen already stays chosen.
    for (int time = 0; time < 2; ++time) {
      choose(types[i]);
      EXPECT_EQ(chamber().event_type(), static_cast<int>(i));
      expectOnlyChecked(types, types[i]);
    }
  }
}

TEST_F(MenusTest, ChoosingATypeStopsTheTurntable) {
  choose("rotate_item");
  ASSERT_TRUE(chamber().is_rotating());
  choose("lambda_item");
  EXPECT_FALSE(chamber().is_rotating());
}

TEST_F(MenusTest, AxesAreNumberedFromOne) {
  for (const std::size_t i : {2U, 1U, 0U, 0U}) {
    choose(axis_items[i]);
    EXPECT_EQ(chamber().rotation_axis(), static_cast<int>(i) + 1);
    expectOnlyChecked(axis_items, axis_items[i]);
  }
}

TEST_F(MenusTest, AnyOtherAxisCountsAsZ) {
  for (const int other : {0, -1, 4}) {
    controller().set_axis(1);
    controller().set_axis(other);
    EXPECT_EQ(chamber().rotation_axis(), 3);
  }
}

TEST_F(MenusTest, RatesSetTheDelay) {
  struct Case {
    const char* name;
    double seconds;
  };
  constexpr std::array cases{Case{"rotate_faster_item", 0.005}, Case{"rotate_slower_item", 0.02},
                             Case{"default_rotate_item", 0.01}, Case{"default_rotate_item", 0.01}};
  for (const auto& [name, seconds] : cases) {
    choose(name);
    EXPECT_EQ(chamber().rot_delay(), seconds);
    expectOnlyChecked(rates, name);
  }
}

TEST_F(MenusTest, PreferencesToggleWithTheirMarks) {
  struct Case {
    const char* name;
    bool (ChamberView::*state)() const;
  };
  constexpr std::array cases{
      Case{"axes_item", &ChamberView::show_axes}, Case{"values_item", &ChamberView::show_values},
      Case{"reset_each_item", &ChamberView::reset_each}, Case{"slomo_item", &ChamberView::slomo}};
  for (const auto& [name, state] : cases) {
    const bool before = (chamber().*state)();
    choose(name);
    EXPECT_EQ((chamber().*state)(), !before) << name;
    EXPECT_EQ(item(name).isChecked(), !before) << name;
    choose(name);
    EXPECT_EQ((chamber().*state)(), before) << name;
    EXPECT_EQ(item(name).isChecked(), before) << name;
  }
}

TEST_F(MenusTest, AxesAndValuesAreRedrawnAtOnceUnlessTheTurntableRuns) {
  for (const char* const name : {"axes_item", "values_item"}) {
    const int passes = chamber().passes();
    choose(name);
    EXPECT_GT(chamber().passes(), passes) << name;
  }
  choose("rotate_item");
  const int passes = chamber().passes();
  choose("axes_item");
  EXPECT_EQ(chamber().passes(), passes);
  EXPECT_TRUE(chamber().is_rotating());
}

TEST_F(MenusTest, MonitorsExcludeEachOther) {
  for (const char* const name : {"mon_projector", "mon_projector", "mon_chamber", "mon_chamber"}) {
    choose(name);
    expectOnlyChecked(monitors, name);
  }
}

TEST_F(MenusTest, EveryItemButThoseOfTheViewInFrontMayAlwaysBeChosen) {
  constexpr std::array<std::string_view, 3> items_of_view{"print_item", "save_picture_item",
                                                          "copy_picture_item"};
  activateAnotherProgram();
  for (const auto& [path, name, shortcut] : titles) {
    // The Track menu has its own rules, and without an event there is nothing to export.
    const bool has_rules_of_its_own =
        path.front() == std::string_view("Track") || std::string_view(name).starts_with("export_");
    if (!has_rules_of_its_own) {
      const bool needs_view = std::ranges::find(items_of_view, name) != items_of_view.end();
      EXPECT_EQ(item(name).isEnabled(), !needs_view) << name;
      EXPECT_EQ(controller().validateMenuItem(item(name)), name != std::string_view("print_item"));
    }
  }
}

}  // namespace velquon::test
