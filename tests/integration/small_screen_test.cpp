// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The windows on a screen that has no room for their usual sizes. To be run on such a screen.

#include <QApplication>
#include <QFont>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWindow>
#include <array>

#include "tests/integration/screen_fixture.h"
#include "tests/support/windows/waiting.h"
#include "track/track_window.h"
#include "widgets/view_scroll_area.h"

// Last, because they define words such as None.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace velquon::test {

namespace {

/// A panel of the desktop along the lower edge of the screen. The window manager keeps other windows
/// off it.
class Panel {
 public:
  static constexpr int height = 50;  ///< logical pixels

  Panel() {
    panel_.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
    panel_.setAttribute(Qt::WA_ShowWithoutActivating);
    const QRect screen = panel_.screen()->geometry();
    panel_.setGeometry(0, screen.height() - height, screen.width(), height);
    reserve(static_cast<unsigned long>(height * panel_.devicePixelRatio()));
    panel_.show();
  }

 private:
  void reserve(unsigned long pixels) {
    Display* const display = XOpenDisplay(nullptr);
    const std::array<unsigned long, 4> left_right_top_bottom{0, 0, 0, pixels};
    XChangeProperty(display, panel_.winId(), XInternAtom(display, "_NET_WM_STRUT", False),
                    XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(left_right_top_bottom.data()),
                    static_cast<int>(left_right_top_bottom.size()));
    XCloseDisplay(display);
  }

  QWidget panel_;
};

class SmallScreenTest : public ScreenFixture {
 protected:
  void SetUp() override {
    ASSERT_LE(available_screen().height(), 600) << "this screen is not a small one";
    ScreenFixture::SetUp();
  }

  /// Where a widget is seen whole, its own rectangle; else less.
  static QRect seenPart(const QWidget& widget) { return widget.visibleRegion().boundingRect(); }

  /// Goes round a window by the Tab key and expects each control that gets the focus to be seen
  /// whole.
  /// \return the names of those controls
  static QStringList tabRound(QWidget& window) {
    constexpr int most_controls = 60;
    QStringList names;
    for (int i = 0; i < most_controls; ++i) {
      QTest::keyClick(
          QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &window,
          Qt::Key_Tab);
      handle_waiting_events();
      QWidget* const widget = QApplication::focusWidget();
      if (widget == nullptr || widget->window() != &window) {
        continue;
      }
      names << widget->objectName();
      const bool is_view =
          widget->inherits("QAbstractScrollArea") || widget->inherits("QOpenGLWidget");
      EXPECT_TRUE(is_view || seenPart(*widget) == widget->rect())
          << widget->objectName().toStdString() << ": " << seenPart(*widget).width() << " x "
          << seenPart(*widget).height() << " of " << widget->width() << " x " << widget->height();
    }
    names.removeDuplicates();
    return names;
  }
};

/// The same with a panel that was there first.
class SmallScreenWithPanelTest : public SmallScreenTest {
 protected:
  void SetUp() override {
    const QRect whole = available_screen();
    panel_ = std::make_unique<Panel>();
    ASSERT_TRUE(
        wait_until([&] { return available_screen().height() == whole.height() - Panel::height; }));
    SmallScreenTest::SetUp();
  }
  void TearDown() override {
    SmallScreenTest::TearDown();
    panel_.reset();
    EXPECT_TRUE(wait_until(
        [&] { return available_screen() == QGuiApplication::primaryScreen()->geometry(); }));
  }

 private:
  std::unique_ptr<Panel> panel_;
};

/// The same for a person who has large letters.
class SmallScreenLargeLettersTest : public SmallScreenTest {
 protected:
  void SetUp() override {
    usual_ = QApplication::font();
    QFont large = usual_;
    large.setPointSizeF(usual_.pointSizeF() * 2.2);
    QApplication::setFont(large);
    SmallScreenTest::SetUp();
  }
  void TearDown() override {
    SmallScreenTest::TearDown();
    QApplication::setFont(usual_);
  }

 private:
  QFont usual_;
};

const QStringList chamber_controls{QStringLiteral("magfield_slider"), QStringLiteral("size_slider"),
                                   QStringLiteral("efactor_popup"),
                                   QStringLiteral("energy_slider")};
const QStringList projector_controls{QStringLiteral("xy_button"), QStringLiteral("zoom_1"),
                                     QStringLiteral("tape_tool")};
const QStringList track_controls{QStringLiteral("vSlider"), QStringLiteral("inject_button"),
                                 QStringLiteral("clear_button")};

bool has_all(const QStringList& found, const QStringList& wanted) {
  return std::ranges::all_of(wanted, [&](const QString& name) { return found.contains(name); });
}

}  // namespace

TEST_F(SmallScreenTest, EveryWindowOpensWithinIt) {
  ASSERT_NO_FATAL_FAILURE(expectWindowsOfViewsOnScreen());
  for (const char* const item : window_items) {
    expect_window_on_screen([&] { choose(item); });
  }
}

TEST_F(SmallScreenTest, TheKeysAreTakenToControlsThatAreSeen) {
  // Narrow windows cannot show all of their controls at once.
  chamberWindow().resize(420, 400);
  projectorWindow().resize(300, 400);
  run_loop_for(100);
  activate(chamberWindow());
  QStringList found = tabRound(chamberWindow());
  EXPECT_TRUE(has_all(found, chamber_controls)) << found.join(u' ').toStdString();
  activate(projectorWindow());
  found = tabRound(projectorWindow());
  EXPECT_TRUE(has_all(found, projector_controls)) << found.join(u' ').toStdString();
}

TEST_F(SmallScreenTest, DialogsOpenWithinIt) {
  choose("new_event_item");
  for (const char* const item : dialog_items) {
    activate(chamberWindow());
    expect_dialog_on_screen([&] { choose(item); });
  }
}

TEST_F(SmallScreenTest, TheChamberStartsScrolledToItsPoint) {
  const auto& area = control<ViewScrollArea>("chamber_area");
  const int hidden = area.verticalScrollBar()->maximum();
  ASSERT_GT(hidden, 30);
  EXPECT_EQ(chamber().visibleRect().topLeft(), QPointF(0.0, 30.0));
  EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << "there is room beside the other bar";
}

TEST_F(SmallScreenTest, AViewTooNarrowAtFirstStartsScrolledToItsPointToo) {
  SilentDialogs dialogs;
  Application narrow(fixture_seed, dialogs);
  for (QWidget* const window : {static_cast<QWidget*>(&narrow.chamberWindow()),
                                static_cast<QWidget*>(&narrow.projectorWindow())}) {
    window->resize(400, 340);
    window->show();
    ASSERT_TRUE(wait_until_exposed(window));
  }
  EXPECT_EQ(narrow.chamberWindow().view()->visibleRect().topLeft(), QPointF(10.0, 30.0));
  EXPECT_EQ(narrow.projectorWindow().view()->visibleRect().topLeft(), QPointF(10.0, 30.0));
}

TEST_F(SmallScreenWithPanelTest, EveryWindowOpensBesideThePanel) {
  ASSERT_NO_FATAL_FAILURE(expectWindowsOfViewsOnScreen());
  expect_dialog_on_screen([&] { choose("print_item"); });
}

TEST_F(SmallScreenWithPanelTest, TheTrackWindowScrollsWhatItHasNoRoomFor) {
  application().trackWindow().resize(400, 400);
  ASSERT_NO_FATAL_FAILURE(showTrackWindow());
  const QStringList found = tabRound(application().trackWindow());
  EXPECT_TRUE(has_all(found, track_controls)) << found.join(u' ').toStdString();
}

TEST_F(SmallScreenLargeLettersTest, EveryWindowOpensWithinItAndReachesItsControls) {
  expect_on_screen(chamberWindow());
  expect_on_screen(projectorWindow());
  QStringList found = tabRound(chamberWindow());
  EXPECT_TRUE(has_all(found, chamber_controls)) << found.join(u' ').toStdString();
  activate(projectorWindow());
  found = tabRound(projectorWindow());
  EXPECT_TRUE(has_all(found, projector_controls)) << found.join(u' ').toStdString();
  ASSERT_NO_FATAL_FAILURE(showTrackWindow());
  expect_on_screen(application().trackWindow());
  found = tabRound(application().trackWindow());
  EXPECT_TRUE(has_all(found, track_controls)) << found.join(u' ').toStdString();
}

}  // namespace velquon::test
