// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the other windows tell and offer while the track window is active, also when it was closed.

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QTest>

#include "tests/support/windows/menu_keys.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/track_window_fixture.h"
#include "tests/support/windows/waiting.h"
#include "track/track_controller.h"

namespace velquon::test {

namespace {

constexpr const char* status_text =
    "The Track window is active: Track > Deactivate gives the menus back.";

/// The line of a window; null before the track window was wanted for the first time.
QLabel* status_in(const QMainWindow& window) {
  return window.findChild<QLabel*>(QStringLiteral("track_status_text"));
}

QLabel& status_of(const QMainWindow& window) {
  QLabel* const label = status_in(window);
  if (label == nullptr) {
    throw std::runtime_error("a window without a status");
  }
  return *label;
}

/// The part of a window that a widget of it takes.
QRect area_in(const QWidget& window, const QWidget& widget) {
  return {widget.mapTo(&window, QPoint()), widget.size()};
}

/// What was said to deserve attention; noted by a function without an object.
QList<QObject*> alerts;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void note_alert(QAccessibleEvent* event) {
  if (event->type() == QAccessible::Alert) {
    alerts << event->object();
  }
}

class TrackStatusTest : public TrackWindowFixture {
 protected:
  [[nodiscard]] std::array<QMainWindow*, 2> otherWindows() {
    return {&chamberWindow(), &projectorWindow()};
  }
  void expectStatus(bool is_told) {
    for (QMainWindow* const window : otherWindows()) {
      const QLabel* const status = status_in(*window);
      EXPECT_EQ(status != nullptr && status->isVisible(), is_told)
          << window->windowTitle().toStdString();
    }
  }
  /// Closes the active window as a person does, by the window manager.
  void closeByWindowManager(QWidget& window) {
    activate(window);
    ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"),
                                {QStringLiteral("key"), QStringLiteral("alt+F4")}),
              0);
    ASSERT_TRUE(wait_until([&] { return !window.isVisible(); }));
  }
  /// The places of both views on the screen.
  [[nodiscard]] std::array<QRect, 2> viewPlaces() {
    return {QRect(chamber().mapToGlobal(QPoint()), chamber().size()),
            QRect(projection().mapToGlobal(QPoint()), projection().size())};
  }
};

/// Run where a screen reader listens.
class TrackAnnouncementTest : public TrackStatusTest {};

}  // namespace

TEST_F(TrackStatusTest, IsToldInTheOtherWindowsWhileTheTrackWindowIsActive) {
  expectStatus(false);
  activateTrack();
  expectStatus(true);
  for (QMainWindow* const window : otherWindows()) {
    EXPECT_EQ(status_of(*window).text(), QLatin1String(status_text));
  }
  activate(projectorWindow());
  expectStatus(true);
  choose("activate_item");
  expectStatus(false);
  activateTrack();
  expectStatus(true);
}

TEST_F(TrackStatusTest, IsToldUntilTheWindowIsDeactivatedAndNotDuringARunOnly) {
  activateTrack();
  choose("inject_item");
  expectStatus(true);
  ASSERT_TRUE(wait_until([&] { return points() > 1; }));
  expectStatus(true);
  endRun();
  expectStatus(true);
}

TEST_F(TrackStatusTest, TheViewsKeepTheirSizePlaceAndPictureAndTheWindowsTheirSizeAfterwards) {
  choose("new_event_item");
  handle_waiting_events();
  const auto places = viewPlaces();
  const QSize chamber_size = chamberWindow().size();
  const QSize projector_size = projectorWindow().size();
  const QImage chamber_before = picture_of(chamber());
  const QImage projection_before = picture_of(projection());
  const int passes = chamber().passes() + projection().passes();
  activateTrack();
  run_loop_for(200);
  EXPECT_EQ(viewPlaces(), places);
  EXPECT_EQ(chamber().passes() + projection().passes(), passes) << "nor are they drawn again";
  EXPECT_EQ(differing_pixels(picture_of(chamber()), chamber_before), 0);
  EXPECT_EQ(differing_pixels(picture_of(projection()), projection_before), 0);
  EXPECT_GT(chamberWindow().height(), chamber_size.height());
  EXPECT_EQ(chamberWindow().width(), chamber_size.width());
  EXPECT_EQ(projectorWindow().width(), projector_size.width());
  choose("activate_item");
  run_loop_for(200);
  EXPECT_EQ(viewPlaces(), places);
  EXPECT_EQ(chamberWindow().size(), chamber_size);
  EXPECT_EQ(projectorWindow().size(), projector_size);
}

TEST_F(TrackStatusTest, AWindowThatFillsTheScreenMakesRoomForTheLine) {
  projectorWindow().showMaximized();
  ASSERT_TRUE(wait_until([&] { return projectorWindow().isMaximized(); }));
  run_loop_for(100);
  const QSize size = projectorWindow().size();
  activateTrack();
  run_loop_for(100);
  EXPECT_TRUE(projectorWindow().isMaximized());
  EXPECT_EQ(projectorWindow().size(), size);
  const QLabel& line = status_of(projectorWindow());
  EXPECT_TRUE(projectorWindow().rect().contains(area_in(projectorWindow(), line)));
  choose("activate_item");
  run_loop_for(100);
  EXPECT_EQ(projectorWindow().size(), size);
}

TEST_F(TrackStatusTest, TheScreenShowsTheWholeLine) {
  activateTrack();
  for (QMainWindow* const window : otherWindows()) {
    activate(*window);
    const QLabel& line = status_of(*window);
    EXPECT_GE(line.width(), line.sizeHint().width()) << "it is not cut off";
    EXPECT_GE(line.height(), line.sizeHint().height());
    EXPECT_TRUE(wait_until([&] {
      const QImage shown = screen_picture(line);
      return shown ==
             window->grab(area_in(*window, line)).toImage().convertToFormat(shown.format());
    })) << window->windowTitle().toStdString();
  }
}

TEST_F(TrackStatusTest, ScreenReadersFindItByItsText) {
  for (QMainWindow* const window : otherWindows()) {
    EXPECT_EQ(status_in(*window), nullptr);
  }
  activateTrack();
  for (QMainWindow* const window : otherWindows()) {
    auto* const told = QAccessible::queryAccessibleInterface(&status_of(*window));
    EXPECT_FALSE(told->state().invisible);
    EXPECT_EQ(told->text(QAccessible::Name), QLatin1String(status_text));
    EXPECT_EQ(told->parent()->role(), QAccessible::StatusBar);
    EXPECT_EQ(told->window(), window->windowHandle());
  }
  choose("activate_item");
  for (QMainWindow* const window : otherWindows()) {
    auto* const hidden = QAccessible::queryAccessibleInterface(&status_of(*window));
    ASSERT_NE(hidden, nullptr);
    EXPECT_TRUE(hidden->state().invisible);
  }
}

TEST_F(TrackStatusTest, AClosedTrackWindowStaysActiveAndComesBackByTheWindowMenu) {
  EXPECT_FALSE(item("track_window_item").isEnabled());
  activateTrack();
  EXPECT_TRUE(item("track_window_item").isEnabled());
  closeByWindowManager(trackWindow());
  EXPECT_TRUE(trackWindow().controller().activated());
  EXPECT_FALSE(item("rotate_item").isEnabled());
  expectStatus(true);

  activate(chamberWindow());
  ASSERT_TRUE(choose_by_keys(chamberWindow(), "Window/Track"));
  EXPECT_TRUE(wait_until([&] { return trackWindow().isActiveWindow(); }));
  EXPECT_TRUE(trackWindow().isVisible());
  EXPECT_TRUE(trackWindow().controller().activated());
  EXPECT_FALSE(item("rotate_item").isEnabled());

  ASSERT_TRUE(choose_by_keys(trackWindow(), "Track/Deactivate"));
  EXPECT_FALSE(trackWindow().isVisible());
  EXPECT_TRUE(item("rotate_item").isEnabled());
  EXPECT_FALSE(item("track_window_item").isEnabled());
  expectStatus(false);
}

TEST_F(TrackStatusTest, AClosedTrackWindowIsDeactivatedFromAnotherWindow) {
  activateTrack();
  closeByWindowManager(trackWindow());
  activate(projectorWindow());
  ASSERT_TRUE(choose_by_keys(projectorWindow(), "Track/Deactivate"));
  EXPECT_FALSE(trackWindow().controller().activated());
  EXPECT_TRUE(item("new_event_item").isEnabled());
  EXPECT_FALSE(item("track_window_item").isEnabled());
  expectStatus(false);
}

TEST_F(TrackStatusTest, TheWindowMenuBringsTheActiveTrackWindowInFrontOfTheOthers) {
  activateTrack();
  trackWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return trackWindow().isMinimized(); }));
  activate(chamberWindow());
  choose("track_window_item");
  EXPECT_TRUE(
      wait_until([&] { return !trackWindow().isMinimized() && trackWindow().isActiveWindow(); }));
}

TEST_F(TrackAnnouncementTest, AScreenReaderSaysTheStatusWhenItAppears) {
  ASSERT_TRUE(wait_until([] { return QAccessible::isActive(); }))
      << "no screen reader listens; run under scripts/with-accessibility";
  alerts.clear();
  const auto before = QAccessible::installUpdateHandler(note_alert);
  activateTrack();
  choose("activate_item");
  QAccessible::installUpdateHandler(before);
  const QList<QObject*> statuses{&status_of(chamberWindow()), &status_of(projectorWindow())};
  EXPECT_EQ(alerts, statuses) << "each once, and nothing when it goes";
}

}  // namespace velquon::test
