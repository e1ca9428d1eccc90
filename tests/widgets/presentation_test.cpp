// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The presentation of the view in front over the whole screen.

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "chamber/chamber_settings.h"
#include "files/event_file.h"
#include "record/record_window.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/track_window_fixture.h"
#include "tests/support/windows/waiting.h"
#include "track/track_panel.h"
#include "track/track_status.h"
#include "widgets/legend.h"
#include "widgets/presented_places.h"
#include "widgets/view_scroll_area.h"

namespace velquon::test {

namespace {

class PresentationTest : public TrackWindowFixture {
 protected:
  /// Starts the presentation by its key and waits until it is on the screen.
  void present(QMainWindow& window, GLView& view) {
    QTest::keyClick(&window, Qt::Key_F11);
    waitUntilPresented(window, view);
  }
  void waitUntilPresented(QMainWindow& window, GLView& view) {
    ASSERT_TRUE(wait_until([&] {
      return window.isFullScreen() && window.size() == screenSize() && view.magnification() > 1.5;
    }));
    run_loop_for(100);
  }
  /// Waits until a window has its own size again.
  void waitUntilOver(QMainWindow& window, GLView& view, QSize size) {
    ASSERT_TRUE(wait_until([&] { return !window.isFullScreen() && view.magnification() == 1.0; }));
    EXPECT_TRUE(wait_until([&] { return window.size() == size; }))
        << window.width() << " x " << window.height();
  }
  static QSize screenSize() { return QGuiApplication::primaryScreen()->size(); }

  /// The text of a label beside the view.
  static QString told(const QMainWindow& window, const char* name) {
    const auto* const label = window.findChild<QLabel*>(QLatin1String(name));
    return label != nullptr && label->isVisible() ? label->text() : QString();
  }

  const PlotPoint point_ = point_at(120.0, -100.0, 200.0, 3);
};

struct ScreenRoom {
  QSize size;
  bool panel_beside = false;  ///< of the chamber's picture
};

}  // namespace

TEST(PresentedPlacesTest, ThePictureIsAsLargeAsTheRoomBesideThePanelAllows) {
  const QSize chamber(682, 500);
  for (const auto& [room, panel_beside] :
       {ScreenRoom{{800, 600}, false}, ScreenRoom{{1280, 1024}, false},
        ScreenRoom{{1400, 1050}, false}, ScreenRoom{{1080, 1920}, false},
        ScreenRoom{{1920, 1080}, true}, ScreenRoom{{1920, 1200}, true},
        ScreenRoom{{3840, 2160}, true}, ScreenRoom{{2560, 1080}, true}}) {
    const auto [picture, magnification, panel] = presented_places(room, chamber);
    const QRect all(QPoint(0, 0), room);
    EXPECT_TRUE(all.contains(picture)) << room.width();
    EXPECT_TRUE(all.contains(panel)) << room.width();
    EXPECT_FALSE(picture.intersects(panel)) << room.width();
    EXPECT_NEAR(picture.width(), chamber.width() * magnification, 1.0);
    EXPECT_NEAR(picture.height(), chamber.height() * magnification, 1.0);
    EXPECT_LE(picture.width(), chamber.width() * magnification);
    EXPECT_EQ(panel.left() > picture.right(), panel_beside) << room.width();
    EXPECT_EQ(panel.top() > picture.bottom(), !panel_beside) << room.width();
    // Nothing is left that would make it larger.
    const QSize used = picture.united(panel).size();
    EXPECT_TRUE(used.width() > room.width() - 2 || picture.height() > room.height() - 2);
    EXPECT_TRUE(used.height() > room.height() - 2 || picture.width() > room.width() - 2);
    // A panel is no wider than its texts need, and both are in the middle.
    EXPECT_LE(panel.width() * panel.height(), room.width() * room.height() * 0.29);
    EXPECT_NEAR(picture.united(panel).center().x(), all.center().x(), 1.0);
    EXPECT_NEAR(picture.united(panel).center().y(), all.center().y(), 1.0);
    EXPECT_GE(panel.width() * panel.height(), room.width() * room.height() * 0.08);
  }
}

TEST_F(PresentationTest, TheScreenShowsNothingButTheMagnifiedPictureAndItsPanel) {
  chamber().set_show_values(false);
  showEvent(std::array{point_});
  present(chamberWindow(), chamber());
  EXPECT_TRUE(item("presentation_item").isChecked());
  const double times = chamber().magnification();
  const QImage picture = picture_of(chamber());
  EXPECT_NEAR(picture.width(), 682 * times, 1.0);
  EXPECT_NEAR(picture.height(), 500 * times, 1.0);
  const QPointF place = resting_camera().pixel({120.0, -100.0, 200.0});
  EXPECT_EQ(color_at(picture, place * times), red);
  EXPECT_TRUE(screen_comes_to_show(chamber(), picture));
  // Around it the screen is black but for the panel's white letters and what is between.
  const QImage whole = screen_picture(chamberWindow());
  ASSERT_EQ(whole.size(), screenSize());
  const QRect in_window(chamber().mapTo(&chamberWindow(), QPoint(0, 0)), chamber().size());
  const auto* const panel =
      chamberWindow().findChild<QWidget*>(QStringLiteral("presentation_panel"));
  ASSERT_NE(panel, nullptr);
  const QRect panel_in_window(panel->mapTo(&chamberWindow(), QPoint(0, 0)), panel->size());
  int other = 0;
  for (int y = 0; y < whole.height(); ++y) {
    for (int x = 0; x < whole.width(); ++x) {
      const bool is_told = in_window.contains(x, y) || panel_in_window.contains(x, y);
      other += !is_told && (whole.pixel(x, y) & RGB_MASK) != 0 ? 1 : 0;
    }
  }
  EXPECT_EQ(other, 0);
  EXPECT_GT(pixels_of(whole.copy(panel_in_window), white).size(), 100U);
}

TEST_F(PresentationTest, LinesAreAsThickAsThePictureIsMagnified) {
  hideAxesAndValues();
  present(chamberWindow(), chamber());
  const double times = chamber().magnification();
  const QImage picture = picture_of(chamber());
  const QPointF middle = resting_camera().pixel({-400.0, 400.0, 100.0}) * times;
  int width = 0;
  for (int across = -6; across <= 6; ++across) {
    width += color_at(picture, middle + QPointF(across, 0.0)) == edge_blue ? 1 : 0;
  }
  EXPECT_EQ(width, qRound(times));
}

TEST_F(PresentationTest, AMouseMeasuresWhatItPointsAt) {
  activate(projectorWindow());
  present(projectorWindow(), projection());
  const double times = projection().magnification();
  const QPoint from(200, 300);
  const QPoint to(700, 420);
  drag(projection(), from, to);
  const double pixels = std::hypot(500.0, 120.0);
  EXPECT_NEAR(projection().tapeLength(), pixels / times * projection().scaler(), 1.0e-9);
  const QImage picture = picture_of(projection());
  EXPECT_TRUE(has_line(picture, from, to, red));
  EXPECT_EQ(told(projectorWindow(), "presentation_readings"),
            QString::asprintf("D = %5.2f cm", projection().tapeLength()));
}

TEST_F(PresentationTest, EscapeBringsBackSizeScrolledPlaceAndFocus) {
  chamberWindow().setMinimumSize(1, 1);
  chamberWindow().resize(chamberWindow().size() - QSize(150, 150));
  ASSERT_TRUE(wait_until([&] { return chamber().width() < 560; }));
  run_loop_for(100);
  auto& bar = *control<ViewScrollArea>("chamber_area").verticalScrollBar();
  ASSERT_GT(bar.maximum(), 20);
  bar.setValue(bar.maximum() / 3);
  auto& slider = control<QWidget>("size_slider");
  slider.setFocus();
  const QRectF seen = chamber().visibleRect();
  const QRect place = chamberWindow().geometry();
  present(chamberWindow(), chamber());
  EXPECT_EQ(chamber().visibleRect().topLeft(), QPointF(0.0, 0.0));
  EXPECT_FALSE(slider.hasFocus());
  // Not to what is covered.
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Tab);
  EXPECT_TRUE(chamber().hasFocus());
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(chamber().hasFocus());
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Escape);
  waitUntilOver(chamberWindow(), chamber(), place.size());
  run_loop_for(100);
  EXPECT_EQ(chamberWindow().geometry(), place);
  EXPECT_EQ(chamber().visibleRect(), seen);
  EXPECT_TRUE(slider.hasFocus());
  EXPECT_FALSE(item("presentation_item").isChecked());
  EXPECT_EQ(told(chamberWindow(), "presentation_title"), QString());
}

TEST_F(PresentationTest, TheWindowHasItsPlaceAndItsPartsTheirsAtOnce) {
  const QRect place = chamberWindow().geometry();
  const auto& area = control<ViewScrollArea>("chamber_area");
  const QRect place_of_area = area.geometry();
  present(chamberWindow(), chamber());
  ASSERT_NE(area.geometry(), place_of_area);
  choose("presentation_item");
  // Before the window manager has heard of it.
  EXPECT_EQ(chamberWindow().geometry(), place);
  EXPECT_EQ(area.geometry(), place_of_area);
}

TEST_F(PresentationTest, AMaximizedWindowIsMaximizedAfterwards) {
  const QSize usual = chamberWindow().size();
  chamberWindow().showMaximized();
  ASSERT_TRUE(wait_until([&] { return chamberWindow().width() > 1000; }));
  run_loop_for(100);
  const QRect place = chamberWindow().geometry();
  present(chamberWindow(), chamber());
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Escape);
  EXPECT_TRUE(wait_until(
      [&] { return !chamberWindow().isFullScreen() && chamberWindow().geometry() == place; }));
  run_loop_for(100);
  EXPECT_TRUE(chamberWindow().isMaximized());
  EXPECT_EQ(chamberWindow().geometry(), place);
  chamberWindow().showNormal();
  EXPECT_TRUE(wait_until([&] { return chamberWindow().size() == usual; }));
}

TEST_F(PresentationTest, AMinimizedWindowIsPresentedWhenItComesBack) {
  present(chamberWindow(), chamber());
  chamberWindow().showMinimized();
  ASSERT_TRUE(wait_until([&] { return chamberWindow().isMinimized(); }));
  run_loop_for(200);
  EXPECT_TRUE(item("presentation_item").isChecked());
}

TEST_F(PresentationTest, AViewThatHadNoFocusHasNoneAfterwards) {
  if (QWidget* const holder = chamberWindow().focusWidget()) {
    holder->clearFocus();
  }
  const QSize usual = chamberWindow().size();
  present(chamberWindow(), chamber());
  ASSERT_TRUE(chamber().hasFocus());
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Escape);
  waitUntilOver(chamberWindow(), chamber(), usual);
  EXPECT_FALSE(chamber().hasFocus());
}

TEST_F(PresentationTest, TextsAreReadFromAfar) {
  showEvent(std::array{point_});
  present(chamberWindow(), chamber());
  const auto height_of = [](const QMainWindow& window, const char* name) {
    return window.findChild<QWidget*>(QLatin1String(name))->fontInfo().pixelSize();
  };
  const int least = screenSize().height() / 52;
  EXPECT_GE(height_of(chamberWindow(), "presentation_title"), least);
  EXPECT_GE(height_of(chamberWindow(), "presentation_legend"), least);
  choose("projector_window_item");
  waitUntilPresented(projectorWindow(), projection());
  EXPECT_GE(height_of(projectorWindow(), "presentation_readings"), least);
  // Nor are they so large that the names find no room.
  const auto* const legend =
      projectorWindow().findChild<QWidget*>(QStringLiteral("presentation_legend"));
  const std::vector<LegendLine> longest{{.color = Qt::red,
                                         .symbol = QStringLiteral("μ⁻"),
                                         .name = QStringLiteral("Electrón positivo")}};
  EXPECT_LE(
      legend_size(longest, {.font = legend->font(), .text = Qt::white}, legend->width()).width(),
      legend->width());
}

TEST_F(PresentationTest, ShortcutsGoOnWorkingAndF11EndsIt) {
  present(chamberWindow(), chamber());
  const QSize usual = chamberWindow().normalGeometry().size();
  QTest::keyClick(&chamberWindow(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(chamber().has_event());
  EXPECT_TRUE(told(chamberWindow(), "presentation_title")
                  .contains(QStringLiteral("Untitled Type 1 Decay")));
  const auto* const legend =
      chamberWindow().findChild<QWidget*>(QStringLiteral("presentation_legend"));
  ASSERT_NE(legend, nullptr);
  EXPECT_TRUE(legend->accessibleName().contains(QStringLiteral("π⁻")));
  QTest::keyClick(&chamberWindow(), Qt::Key_F11);
  waitUntilOver(chamberWindow(), chamber(), usual);
}

TEST_F(PresentationTest, TheTitleIsThatOfTheEventThatIsShown) {
  present(chamberWindow(), chamber());
  const auto title = [this] { return told(chamberWindow(), "presentation_title"); };
  application().model().open(encode_event(std::array{point_}, ChamberValues{}), "opened.cwd", {});
  EXPECT_TRUE(title().contains(QStringLiteral("opened.cwd"))) << title().toStdString();
  controller().renameWindows(QStringLiteral("saved.cwd"));
  EXPECT_TRUE(title().contains(QStringLiteral("saved.cwd"))) << title().toStdString();
}

TEST_F(PresentationTest, SpaceStopsTheTurntableAndEscapeLeavesItTurning) {
  present(chamberWindow(), chamber());
  const QSize usual = chamberWindow().normalGeometry().size();
  choose("rotate_item");
  const auto steps = chamber().rotation_steps();
  EXPECT_TRUE(wait_until([&] { return chamber().rotation_steps() > steps + 20; }));
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Space);
  EXPECT_FALSE(chamber().is_rotating());
  EXPECT_TRUE(item("presentation_item").isChecked());
  choose("rotate_item");
  QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Escape);
  waitUntilOver(chamberWindow(), chamber(), usual);
  EXPECT_TRUE(chamber().is_rotating());
}

TEST_F(PresentationTest, AnEscapeThatEndsAReplayEndsNothingElse) {
  showEvent(std::vector<PlotPoint>(300, point_));
  present(chamberWindow(), chamber());
  const RealInput input(QStringLiteral("sleep 0.6 key Escape"));
  choose("replay_item");
  EXPECT_TRUE(wait_until([&] { return input.isOver() && chamber().point_number() == 300; }));
  run_loop_for(200);
  EXPECT_TRUE(item("presentation_item").isChecked());
}

TEST_F(PresentationTest, AnotherViewThatComesToTheFrontIsPresentedInItsPlace) {
  const QSize usual = chamberWindow().size();
  present(chamberWindow(), chamber());
  choose("projector_window_item");
  waitUntilPresented(projectorWindow(), projection());
  waitUntilOver(chamberWindow(), chamber(), usual);
  EXPECT_TRUE(projectorWindow().isActiveWindow());
  EXPECT_TRUE(item("presentation_item").isChecked());
}

TEST_F(PresentationTest, TheTrackComesAndGoesWithTheSizesThatWindowsHadBefore) {
  const QSize usual = chamberWindow().size();
  present(chamberWindow(), chamber());
  activateTrack();
  waitUntilPresented(trackWindow(), view());
  // There is a line more at the foot of the chamber's window now.
  const auto* const status = chamberWindow().findChild<TrackStatus*>();
  waitUntilOver(chamberWindow(), chamber(), usual + QSize(0, status->sizeHint().height()));
  EXPECT_EQ(chamber().size(), QSize(682, 500));
  EXPECT_EQ(told(trackWindow(), "presentation_readings"), QStringLiteral("B = 0.00 B₀"));
  choose("activate_item");
  EXPECT_TRUE(wait_until([&] { return !item("presentation_item").isChecked(); }));
  EXPECT_TRUE(wait_until([&] { return chamberWindow().size() == usual; }));
  activateTrack();
  EXPECT_FALSE(trackWindow().isFullScreen());
  EXPECT_EQ(view().size(), QSize(490, 456));
}

TEST_F(PresentationTest, AWindowThatIsClosedIsNotPresented) {
  choose("event_record_item");
  const RecordWindow& record = application().recordWindow();
  ASSERT_TRUE(wait_until([&] { return record.isActiveWindow(); }));
  activateTrack();
  choose("activate_item");
  // The keys are back in a window that has no view.
  ASSERT_TRUE(wait_until([&] { return record.isActiveWindow(); }));
  choose("presentation_item");
  waitUntilPresented(chamberWindow(), chamber());
  EXPECT_FALSE(trackWindow().isVisible());
  EXPECT_EQ(told(chamberWindow(), "presentation_title"), chamberWindow().title());
}

TEST_F(PresentationTest, TheWindowThatIsLeftIsPresented) {
  choose("event_record_item");
  const RecordWindow& record = application().recordWindow();
  ASSERT_TRUE(wait_until([&] { return record.isActiveWindow(); }));
  chamberWindow().close();
  ASSERT_TRUE(wait_until([&] { return !chamberWindow().isVisible() && record.isActiveWindow(); }));
  choose("presentation_item");
  waitUntilPresented(projectorWindow(), projection());
  EXPECT_FALSE(chamberWindow().isVisible());
}

TEST_F(PresentationTest, AnEventWithoutTracksIsToldInItsPlace) {
  present(chamberWindow(), chamber());
  choose("lambda_item");
  controller().settings().setSidesControl(50.0F);
  controller().settings().setEnergyControl(9000.0F);
  const QString no_track = QStringLiteral("No visible track: ");
  constexpr int most_events = 200;
  bool is_empty = false;
  for (int i = 0; i < most_events && !is_empty; ++i) {
    choose("new_event_item");
    is_empty = application().model().shown()->points().empty();
    EXPECT_EQ(told(chamberWindow(), "presentation_title").contains(no_track), is_empty);
  }
  EXPECT_TRUE(is_empty);
  choose("projector_window_item");
  waitUntilPresented(projectorWindow(), projection());
  EXPECT_TRUE(told(projectorWindow(), "presentation_title").contains(no_track));
}

TEST_F(PresentationTest, ATrackGoesOnWhileItIsMagnified) {
  activateTrack();
  choose("inject_item");
  ASSERT_TRUE(wait_until([&] { return points() > 50; }));
  present(trackWindow(), view());
  holdRun();
  const double times = view().magnification();
  const int reached = points() * 2 - 8;
  step(20);
  const QImage picture = picture_of(view());
  const double row = picture.height() - 228.0 * times;
  EXPECT_TRUE(has_line(picture, {2.0 * times, row}, {(reached + 30) * times, row}, white));
}

}  // namespace velquon::test
