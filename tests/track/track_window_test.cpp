// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The track window in the whole program: how it is reached and left, and what its menu sets.

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "tests/support/windows/menu_keys.h"
#include "tests/support/windows/track_window_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class TrackWindowTest : public TrackWindowFixture {
 protected:
  /// The titles of the items that are checked in a submenu of the Track menu.
  [[nodiscard]] std::string checkedIn(const char* submenu) {
    QStringList titles;
    for (const QAction* const choice : itemAt(submenu).menu()->actions()) {
      if (choice->isChecked()) {
        titles << choice->text().remove(QLatin1Char('&'));
      }
    }
    return titles.join(QLatin1Char(' ')).toStdString();
  }
  [[nodiscard]] QAction& itemAt(const char* titles) {
    QAction* const found = item_titled(chamberWindow(), menu_path(titles));
    if (found == nullptr) {
      throw std::runtime_error(std::string("no menu item ") + titles);
    }
    return *found;
  }
  /// Starts a run and returns the period of its steps in milliseconds.
  [[nodiscard]] int periodOfARun() {
    choose("inject_item");
    const QTimer* const before = view().trackTimer();
    EXPECT_TRUE(wait_until([&] { return view().trackTimer() != before; }));
    const int period = view().trackTimer()->interval();
    endRun();
    return period;
  }
};

struct TrackTitleCase {
  const char* titles;
  const char* name;
  const char* shortcut;
};

}  // namespace

TEST_F(TrackWindowTest, IsMadeWhenItIsFirstWanted) {
  const auto made = [] {
    return std::ranges::count_if(QApplication::topLevelWidgets(), [](const QWidget* widget) {
      return qobject_cast<const TrackWindow*>(widget) != nullptr;
    });
  };
  EXPECT_EQ(made(), 0);
  choose("clear_screen_item");
  EXPECT_EQ(made(), 0) << "there is nothing to clear";
  activateTrack();
  EXPECT_EQ(made(), 1);
}

TEST_F(TrackWindowTest, ItemsAreFoundByTheirTitlesInEveryWindow) {
  constexpr std::array cases{TrackTitleCase{"Track/Activate", "activate_item", "Ctrl+K"},
                             TrackTitleCase{"Track/Inject Particle", "inject_item", "Ctrl+J"},
                             TrackTitleCase{"Track/Clear Screen", "clear_screen_item", "Ctrl+L"},
                             TrackTitleCase{"Track/Particle/Electron", "electron_item", ""},
                             TrackTitleCase{"Track/Particle/Positron", "positron_item", ""},
                             TrackTitleCase{"Track/Direction/Left to Right", "LtoR_item", ""},
                             TrackTitleCase{"Track/Direction/Right to Left", "RtoL_item", ""},
                             TrackTitleCase{"Track/Speed/v", "v_item", ""},
                             TrackTitleCase{"Track/Speed/2v", "two_v_item", ""},
                             TrackTitleCase{"Track/Speed/3v", "three_v_item", ""},
                             TrackTitleCase{"Track/Screen Speed/Faster", "faster_item", ""},
                             TrackTitleCase{"Track/Screen Speed/Default", "default_item", ""},
                             TrackTitleCase{"Track/Screen Speed/Slower", "slower_item", ""},
                             TrackTitleCase{"Window/Track", "track_window_item", ""}};
  for (const auto& [titles, name, shortcut] : cases) {
    const QStringList path = menu_path(titles);
    EXPECT_EQ(item_titled(chamberWindow(), path), &item(name)) << name;
    EXPECT_EQ(item_titled(projectorWindow(), path), &item(name)) << name;
    EXPECT_EQ(item_titled(trackWindow(), path), &item(name)) << name;
    EXPECT_EQ(item(name).shortcut().toString().toStdString(), shortcut) << name;
  }
}

TEST_F(TrackWindowTest, CheckMarksAtStartAreTheViewsState) {
  EXPECT_EQ(checkedIn("Track/Particle"), "Electron");
  EXPECT_EQ(settings().charge, -1.0);
  EXPECT_EQ(checkedIn("Track/Speed"), "2v");
  EXPECT_EQ(settings().speed, 2.0);
  EXPECT_EQ(checkedIn("Track/Direction"), "Left to Right");
  EXPECT_EQ(settings().direction, 1);
  EXPECT_EQ(settings().B_field, 0.0);
}

TEST_F(TrackWindowTest, NoScreenSpeedIsMarkedAsNoItemGivesThatOfTheStart) {
  EXPECT_EQ(trackWindow().model().timerSecs(), 0.01);
  for (const QAction* const choice : itemAt("Track/Screen Speed").menu()->actions()) {
    EXPECT_FALSE(choice->isCheckable()) << choice->text().toStdString();
  }
}

TEST_F(TrackWindowTest, ChoicesByTheKeysOfTheMenuReachTheParticle) {
  struct Case {
    const char* titles;
    double charge;
    double speed;
    int direction;
  };
  constexpr std::array cases{Case{"Track/Particle/Positron", 1.0, 2.0, 1},
                             Case{"Track/Speed/v", 1.0, 1.0, 1},
                             Case{"Track/Direction/Right to Left", 1.0, 1.0, 2},
                             Case{"Track/Speed/3v", 1.0, 3.0, 2},
                             Case{"Track/Particle/Electron", -1.0, 3.0, 2},
                             Case{"Track/Direction/Left to Right", -1.0, 3.0, 1},
                             Case{"Track/Speed/2v", -1.0, 2.0, 1}};
  activateTrack();
  for (const auto& [titles, charge, speed, direction] : cases) {
    SCOPED_TRACE(titles);
    ASSERT_TRUE(choose_by_keys(trackWindow(), titles));
    EXPECT_EQ(settings().charge, charge);
    EXPECT_EQ(settings().speed, speed);
    EXPECT_EQ(settings().direction, direction);
    const QStringList path = menu_path(titles);
    EXPECT_EQ(checkedIn(path.mid(0, 2).join(QLatin1Char('/')).toUtf8().constData()),
              path.back().toStdString())
        << "it alone is marked";
  }
}

TEST_F(TrackWindowTest, AScreenSpeedIsThePeriodOfTheNextRun) {
  struct Case {
    const char* titles;
    int period;  // milliseconds
  };
  constexpr std::array cases{
      Case{"Track/Screen Speed/Faster", 5}, Case{"Track/Screen Speed/Slower", 20},
      Case{"Track/Screen Speed/Faster", 5}, Case{"Track/Screen Speed/Default", 20}};
  activateTrack();
  EXPECT_EQ(periodOfARun(), 10);
  for (const auto& [titles, period] : cases) {
    SCOPED_TRACE(titles);
    ASSERT_TRUE(choose_by_keys(trackWindow(), titles));
    EXPECT_EQ(periodOfARun(), period);
  }
}

TEST_F(TrackWindowTest, ItsItemsAreChosenByTheKeysOfTheMenuAndByShortcuts) {
  const auto press = [](QWidget& window, Qt::Key key) {
    QTest::keyClick(&window, key, Qt::ControlModifier);
  };
  for (const bool by_shortcut : {false, true}) {
    SCOPED_TRACE(by_shortcut ? "by shortcut" : "by the menu");
    const auto do_it = [&](QMainWindow& window, Qt::Key key, const char* titles) {
      if (by_shortcut) {
        press(window, key);
      } else {
        ASSERT_TRUE(choose_by_keys(window, titles));
      }
    };
    activate(chamberWindow());
    do_it(chamberWindow(), Qt::Key_K, "Track/Activate");
    waitUntilActive();
    do_it(trackWindow(), Qt::Key_J, "Track/Inject Particle");
    ASSERT_TRUE(wait_until([&] { return view().is_tracking() && points() > 1; }));
    holdRun();
    do_it(trackWindow(), Qt::Key_L, "Track/Clear Screen");
    EXPECT_TRUE(simulation().clear_signal());
    do_it(trackWindow(), Qt::Key_K, "Track/Deactivate");
    EXPECT_FALSE(trackWindow().isVisible());
    EXPECT_FALSE(view().is_tracking());
  }
}

TEST_F(TrackWindowTest, EachItemOfItsMenusHasALetterOfItsOwn) {
  for (const bool active : {false, true, false}) {
    SCOPED_TRACE(active ? "active" : "inactive");
    if (active) {
      activateTrack();
    } else if (trackWindow().isVisible()) {
      choose("activate_item");
    }
    for (const char* const menu : {"Track", "Track/Particle", "Track/Direction", "Track/Speed",
                                   "Track/Screen Speed", "Window"}) {
      QStringList letters = letters_of(*itemAt(menu).menu());
      const auto actions = itemAt(menu).menu()->actions();
      EXPECT_EQ(letters.size(),
                std::ranges::count_if(actions,
                                      [](const QAction* action) { return !action->isSeparator(); }))
          << menu;
      EXPECT_EQ(letters.removeDuplicates(), 0) << menu;
    }
  }
}

TEST_F(TrackWindowTest, DeactivatedRightAfterAnInjectionTheRunStillStarts) {
  activateTrack();
  choose("inject_item");
  choose("activate_item");
  ASSERT_FALSE(view().is_tracking());
  ASSERT_TRUE(wait_until([&] { return points() > 1; }));
  EXPECT_TRUE(view().is_tracking());
  activateTrack();
  EXPECT_FALSE(item("electron_item").isEnabled()) << "the particle still flies";
  EXPECT_TRUE(item("faster_item").isEnabled());
}

TEST_F(TrackWindowTest, AHeldKeyInjectsOnce) {
  activateTrack();
  int injections = 0;
  QObject::connect(&item("inject_item"), &QAction::triggered, &view(), [&] { ++injections; });
  const auto press = [&](bool is_repeated) {
    QTest::simulateEvent(&trackWindow(), true, Qt::Key_J, Qt::ControlModifier, {}, is_repeated);
  };
  press(false);
  ASSERT_TRUE(wait_until([&] { return points() > 1; }));
  endRun();
  ASSERT_TRUE(item("inject_item").isEnabled());
  for (int repeat = 0; repeat < 5; ++repeat) {
    press(true);
  }
  EXPECT_EQ(injections, 1);
  EXPECT_FALSE(view().is_tracking());
  QTest::keyRelease(&trackWindow(), Qt::Key_J, Qt::ControlModifier);
  press(false);
  EXPECT_EQ(injections, 2);
}

}  // namespace velquon::test
