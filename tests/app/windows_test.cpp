// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Titles and order of the windows, which of them is active, closing and coming back.

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <csignal>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"
#include "track/track_controller.h"
#include "track/track_window.h"

namespace velquon::test {

namespace {

class WindowsTest : public ApplicationFixture {
 protected:
  [[nodiscard]] bool mayPrint() {
    EXPECT_EQ(item("print_item").isEnabled(), controller().printView() != nullptr);
    return item("print_item").isEnabled();
  }
  void expectActive(QWidget& window) {
    EXPECT_TRUE(wait_until([&] { return window.isActiveWindow(); }))
        << window.windowTitle().toStdString();
  }
  /// Runs the program's loop, does something in it, and tells whether that ended it.
  static bool endsTheProgram(const std::function<void()>& action) {
    constexpr int still_running = 77;
    constexpr int patience = 1500;  // milliseconds
    QTimer first;
    first.setSingleShot(true);
    QObject::connect(&first, &QTimer::timeout, qApp, action);
    first.start(0);
    QTimer give_up;
    give_up.setSingleShot(true);
    QObject::connect(&give_up, &QTimer::timeout, [] { QCoreApplication::exit(still_running); });
    give_up.start(patience);
    return QApplication::exec() == 0;
  }
};

}  // namespace

TEST_F(WindowsTest, BothAreEmptyAtStart) {
  EXPECT_EQ(chamberWindow().windowTitle().toStdString(), "Particle Chamber: Empty");
  EXPECT_EQ(projectorWindow().windowTitle().toStdString(), "Projector: Empty");
  EXPECT_FALSE(chamber().has_event());
  EXPECT_EQ(chamber().point_number(), 0);
  EXPECT_TRUE(chamber().data_ptr().empty());
}

TEST_F(WindowsTest, BothShowTheirWholeViewAtStart) {
  // Also on a screen that leaves them little room.
  EXPECT_EQ(chamber().size(), QSize(682, 500));
  EXPECT_EQ(projection().size(), QSize(470, 420));
}

TEST_F(WindowsTest, BothTakeTheSameName) {
  controller().renameWindows(QStringLiteral("Untitled Type 3 Decay"));
  EXPECT_EQ(chamberWindow().windowTitle().toStdString(), "Particle Chamber: Untitled Type 3 Decay");
  EXPECT_EQ(projectorWindow().windowTitle().toStdString(), "Projector: Untitled Type 3 Decay");
}

TEST_F(WindowsTest, TheLongestNameThatFitsIsTaken) {
  const QString name(256 - 1 - 18, QLatin1Char('n'));
  controller().renameWindows(name);
  EXPECT_EQ(chamberWindow().windowTitle(), QStringLiteral("Particle Chamber: ") + name);
}

TEST_F(WindowsTest, ANameTooLongForATitleEndsTheProgramWithAClearLine) {
  const QString ascii(256 - 18, QLatin1Char('n'));
  EXPECT_EXIT(controller().renameWindows(ascii), testing::KilledBySignal(SIGABRT), "title");
  // Two bytes a letter.
  const QString greek(130, QChar(u'π'));
  EXPECT_EXIT(controller().renameWindows(greek), testing::KilledBySignal(SIGABRT), "title");
}

TEST_F(WindowsTest, ControlCharactersOfANameAreReplacedInTheLastLine) {
  const QString name = QStringLiteral("a\nb\x1b[31m") + QString(256, QLatin1Char('n'));
  EXPECT_EXIT(controller().renameWindows(name), testing::KilledBySignal(SIGABRT),
              "^velquon: the name 'a\\?b\\?\\[31mn+' does not fit into a window's title\n$");
}

TEST_F(WindowsTest, NoMenuOfTheToolBarHidesIt) {
  auto& bar = control<QToolBar>("chamber_tool_bar");
  for (QWidget* const place :
       {static_cast<QWidget*>(&bar), static_cast<QWidget*>(chamberWindow().menuBar()),
        static_cast<QWidget*>(&chamberWindow())}) {
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5),
                            place->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(place, &click);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << place->objectName().toStdString();
    if (QWidget* const popup = QApplication::activePopupWidget()) {
      popup->close();
    }
  }
  EXPECT_TRUE(bar.isVisible());
}

TEST_F(WindowsTest, PrintingIsPossibleFromTheStartAndGoesWithTheKeys) {
  EXPECT_EQ(controller().printView(), &chamber());
  EXPECT_TRUE(mayPrint());
  activate(projectorWindow());
  EXPECT_EQ(controller().printView(), &projection());
  EXPECT_TRUE(mayPrint());
  activateAnotherProgram();
  EXPECT_EQ(controller().printView(), nullptr);
  EXPECT_FALSE(mayPrint());
  activate(chamberWindow());
  EXPECT_EQ(controller().printView(), &chamber());
  EXPECT_TRUE(mayPrint());
}

TEST_F(WindowsTest, PrintingIsPossibleBeforeAnyWindowHasTheKeys) {
  SilentDialogs dialogs;
  Application unseen(fixture_seed, dialogs);
  EXPECT_NE(unseen.controller().printView(), nullptr);
  EXPECT_TRUE(item_named(unseen.chamberWindow(), QStringLiteral("print_item"))->isEnabled());
}

TEST_F(WindowsTest, AModalDialogTakesTheKeysAndGivesThemBack) {
  QDialog dialog(&chamberWindow());
  dialog.open();
  ASSERT_TRUE(wait_until([&] { return dialog.isActiveWindow(); }));
  EXPECT_FALSE(mayPrint());
  dialog.close();
  expectActive(chamberWindow());
  EXPECT_TRUE(mayPrint());
}

TEST_F(WindowsTest, AnEventBringsTheChamberToTheFrontUnlessTheProjectorIsChosen) {
  activate(projectorWindow());
  choose("new_event_item");
  expectActive(chamberWindow());

  choose("mon_projector");
  handle_waiting_events();
  EXPECT_TRUE(chamberWindow().isActiveWindow());
  choose("new_event_item");
  expectActive(projectorWindow());

  choose("mon_chamber");
  handle_waiting_events();
  EXPECT_TRUE(projectorWindow().isActiveWindow());
  choose("new_event_item");
  expectActive(chamberWindow());
}

TEST_F(WindowsTest, AnEventBringsAHiddenWindowBack) {
  chamberWindow().close();
  ASSERT_FALSE(chamberWindow().isVisible());
  choose("new_event_item");
  EXPECT_TRUE(chamberWindow().isVisible());
  expectActive(chamberWindow());
}

TEST_F(WindowsTest, TheWindowMenuBringsAClosedWindowBack) {
  projectorWindow().close();
  EXPECT_FALSE(projectorWindow().isVisible());
  choose("projector_window_item");
  EXPECT_TRUE(projectorWindow().isVisible());
  expectActive(projectorWindow());
  chamberWindow().close();
  EXPECT_FALSE(chamberWindow().isVisible());
  choose("chamber_window_item");
  EXPECT_TRUE(chamberWindow().isVisible());
  expectActive(chamberWindow());
}

TEST_F(WindowsTest, AMinimizedWindowComesBack) {
  projectorWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return projectorWindow().isMinimized(); }));
  choose("projector_window_item");
  EXPECT_TRUE(wait_until([&] { return !projectorWindow().isMinimized(); }));
  expectActive(projectorWindow());
}

TEST_F(WindowsTest, AMaximizedWindowComesBackMaximized) {
  projectorWindow().showMaximized();
  ASSERT_TRUE(wait_until([&] { return projectorWindow().isMaximized(); }));
  projectorWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return projectorWindow().isMinimized(); }));
  choose("projector_window_item");
  EXPECT_TRUE(wait_until([&] { return !projectorWindow().isMinimized(); }));
  EXPECT_TRUE(projectorWindow().isMaximized());
}

TEST_F(WindowsTest, DeactivatingTheLastWindowBringsTheChamberBack) {
  choose("activate_item");
  expectActive(application().trackWindow());
  projectorWindow().close();
  chamberWindow().close();
  choose("activate_item");
  EXPECT_FALSE(application().trackWindow().isVisible());
  EXPECT_TRUE(chamberWindow().isVisible());
  expectActive(chamberWindow());
}

TEST_F(WindowsTest, AMinimizedTrackWindowIsActivatedAgain) {
  choose("activate_item");
  expectActive(application().trackWindow());
  application().trackWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return application().trackWindow().isMinimized(); }));
  choose("activate_item");
  EXPECT_FALSE(application().trackWindow().isVisible());
  choose("activate_item");
  EXPECT_TRUE(wait_until([&] { return !application().trackWindow().isMinimized(); }));
  expectActive(application().trackWindow());
  EXPECT_TRUE(application().trackWindow().controller().activated());
}

TEST_F(WindowsTest, EveryCharacterOfANameStandsForItself) {
  controller().renameWindows(QStringLiteral("ok[*]x.cwd"));
  EXPECT_EQ(chamberWindow().title(), QStringLiteral("Particle Chamber: ok[*]x.cwd"));
  // What the desktop shows; a doubled mark is one.
  EXPECT_TRUE(wait_until([&] {
    return chamberWindow().windowHandle()->title().startsWith(
        QStringLiteral("Particle Chamber: ok[*]x.cwd"));
  })) << chamberWindow().windowHandle()->title().toStdString();
}

TEST_F(WindowsTest, AWildValueOfAFileDoesNotWidenTheWindow) {
  const int width = chamberWindow().width();
  controller().settings().setSidesControl(3.0e38F);
  controller().settings().setFieldControl(1.0e30F);
  controller().settings().setEnergyControl(1.0e30F);
  run_loop_for(50);
  EXPECT_EQ(chamberWindow().width(), width);
}

TEST_F(WindowsTest, AClosedWindowKeepsItsPicture) {
  choose("piplus_item");
  choose("new_event_item");
  const QImage chamber_before = picture_of(chamber());
  const QImage projection_before = picture_of(projection());
  chamberWindow().close();
  projectorWindow().hide();
  handle_waiting_events();
  choose("projector_window_item");
  choose("chamber_window_item");
  ASSERT_TRUE(wait_until_exposed(&chamberWindow()));
  ASSERT_TRUE(wait_until_exposed(&projectorWindow()));
  EXPECT_EQ(differing_pixels(picture_of(chamber()), chamber_before), 0);
  EXPECT_EQ(differing_pixels(picture_of(projection()), projection_before), 0);
  EXPECT_GT(pixels_of(chamber_before, edge_blue).size(), 500U);
}

TEST_F(WindowsTest, AnEventMadeWhileTheProjectorIsHiddenIsThereWhenItComesBack) {
  projectorWindow().close();
  const std::array points{point_at(10.6, 20.6, 0.0, 3)};
  showEvent(points);
  choose("projector_window_item");
  ASSERT_TRUE(wait_until_exposed(&projectorWindow()));
  // 0.5 (20.6 + 470) across; 420 - 0.5 (420 + 10.6) from the bottom.
  EXPECT_TRUE(wait_until([&] {
    return color_at(picture_of(projection()), {245.3, 215.3}) == white;
  }));
}

TEST_F(WindowsTest, ClosingOneWindowDoesNotEndTheProgram) {
  EXPECT_FALSE(endsTheProgram([&] { chamberWindow().close(); }));
  EXPECT_TRUE(projectorWindow().isVisible());
}

TEST_F(WindowsTest, ClosingTheLastWindowEndsTheProgram) {
  EXPECT_TRUE(endsTheProgram([&] {
    chamberWindow().close();
    projectorWindow().close();
  }));
}

TEST_F(WindowsTest, HidingTheLastWindowDoesNotEndTheProgram) {
  EXPECT_FALSE(endsTheProgram([&] {
    chamberWindow().hide();
    projectorWindow().hide();
  }));
}

TEST_F(WindowsTest, QuitEndsTheProgramWithBothWindowsOnTheScreen) {
  EXPECT_TRUE(endsTheProgram([&] { choose("quit_item"); }));
}

}  // namespace velquon::test
