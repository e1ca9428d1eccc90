// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projector by keys alone, and what it tells a screen reader.

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class ProjectionKeysTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    activate(projectorWindow());
    projection().setFocus();
    ASSERT_TRUE(projection().hasFocus());
  }
  void key(Qt::Key code, int times = 1, Qt::KeyboardModifiers modifiers = {}) {
    for (int i = 0; i < times; ++i) {
      QTest::keyClick(&projection(), code, modifiers);
    }
  }
  [[nodiscard]] Place cross() { return projection().cross().place(); }
  [[nodiscard]] std::string tape() { return control<QLabel>("tape_text").text().toStdString(); }
  [[nodiscard]] std::string readings() {
    return control<QLabel>("readings_text").text().toStdString();
  }
  [[nodiscard]] QPointF offsets() {
    return {projection().mapping().offset_across, projection().mapping().offset_up};
  }
  [[nodiscard]] std::vector<QPoint> crossPixels() {
    return pixels_of(picture_of(projection()), yellow);
  }
  [[nodiscard]] QString spoken() {
    return QAccessible::queryAccessibleInterface(&projection())->text(QAccessible::Description);
  }
};

}  // namespace

TEST_F(ProjectionKeysTest, ArrowKeysMoveACrossByOneAndWithShiftByTen) {
  EXPECT_TRUE(crossPixels().empty());
  key(Qt::Key_Right);
  const Place at = cross();
  const QRect drawn = extent_of(crossPixels());
  EXPECT_GE(crossPixels().size(), 28U);
  EXPECT_NEAR(drawn.center().x(), at.x, 1.0);
  EXPECT_NEAR(420 - drawn.center().y(), at.y, 1.0);
  key(Qt::Key_Right, 3);
  key(Qt::Key_Up, 2, Qt::ShiftModifier);
  key(Qt::Key_Down);
  key(Qt::Key_Left, 1, Qt::ShiftModifier);
  EXPECT_EQ(cross(), at + (Place{-7.0, 19.0}));
  EXPECT_EQ(extent_of(crossPixels()), drawn.translated(-7, -19));
}

TEST_F(ProjectionKeysTest, TheCrossIsSeenOnTheScreenAndGoesWithTheMouse) {
  // Where an earlier program has left the mouse, another move would change nothing.
  QTest::mouseMove(&projection(), QPoint(60, 60));
  run_loop_for(100);
  const QImage without = picture_of(projection());
  key(Qt::Key_Right);
  EXPECT_TRUE(screen_comes_to_show(projection(), picture_of(projection())));
  EXPECT_GE(count_on_screen(projection(), yellow), 28);
  QTest::mouseMove(&projection(), QPoint(50, 50));
  ASSERT_TRUE(wait_until([this] { return !projection().cross().visible(); }));
  EXPECT_EQ(picture_of(projection()), without);
  key(Qt::Key_Right);
  EXPECT_TRUE(projection().cross().visible());
  QTest::mousePress(&projection(), Qt::LeftButton, {}, QPoint(50, 50));
  EXPECT_FALSE(projection().cross().visible());
  QTest::mouseRelease(&projection(), Qt::LeftButton, {}, QPoint(50, 50));
}

TEST_F(ProjectionKeysTest, TheTapeIsLaidByReturnAndArrows) {
  struct Case {
    Qt::Key set;
    int tens;
    const char* reading;
  };
  for (const auto& [set, tens, reading] :
       {Case{Qt::Key_Return, 10, "D = 125.00 cm"}, Case{Qt::Key_Space, 12, "D = 150.00 cm"},
        Case{Qt::Key_Enter, 14, "D = 175.00 cm"}}) {
    key(Qt::Key_Up);
    key(set);
    key(Qt::Key_Right, tens, Qt::ShiftModifier);
    EXPECT_EQ(tape(), reading);
    key(set);
    key(Qt::Key_Left, tens, Qt::ShiftModifier);
    EXPECT_EQ(tape(), reading) << "fixed";
    // The cross lies over the end.
    EXPECT_GE(pixels_of(picture_of(projection()), red).size(), 90U);
  }
}

TEST_F(ProjectionKeysTest, EscapeGivesUpATapeThenTheCross) {
  key(Qt::Key_Up);
  key(Qt::Key_Return);
  key(Qt::Key_Right, 10);
  key(Qt::Key_Escape);
  EXPECT_EQ(tape(), "D =  0.00 cm");
  EXPECT_FALSE(projection().tape_visible());
  EXPECT_FALSE(crossPixels().empty());
  key(Qt::Key_Escape);
  EXPECT_TRUE(crossPixels().empty());
}

TEST_F(ProjectionKeysTest, ThePictureIsDraggedByReturnAndArrows) {
  key(Qt::Key_G);
  key(Qt::Key_Right);
  key(Qt::Key_Return);
  key(Qt::Key_Right, 2, Qt::ShiftModifier);
  key(Qt::Key_Up, 5);
  EXPECT_EQ(offsets(), QPointF(490.0, 415.0));
  key(Qt::Key_Return);
  key(Qt::Key_Right, 5);
  EXPECT_EQ(offsets(), QPointF(490.0, 415.0));
}

TEST_F(ProjectionKeysTest, ACircleIsSetMovedAndTakenBackByKeys) {
  key(Qt::Key_C);
  key(Qt::Key_S);
  key(Qt::Key_Return);
  const auto set_at = [&](Qt::Key way, int tens) {
    key(way, tens, Qt::ShiftModifier);
    key(Qt::Key_Return);
  };
  set_at(Qt::Key_Left, 10);
  key(Qt::Key_Right, 10, Qt::ShiftModifier);
  set_at(Qt::Key_Up, 10);
  key(Qt::Key_Down, 10, Qt::ShiftModifier);
  set_at(Qt::Key_Right, 10);
  EXPECT_NE(readings().find("R = 125.0 ± 0.4 cm"), std::string::npos) << readings();
  key(Qt::Key_Delete);
  EXPECT_EQ(readings(), "Set one more point along the track.");
  key(Qt::Key_Backspace);
  EXPECT_EQ(readings(), "Set two more points along the track.");
  key(Qt::Key_Escape);
  EXPECT_EQ(readings(), "Set three points or more along a track.");
  EXPECT_FALSE(crossPixels().empty());
}

TEST_F(ProjectionKeysTest, AnAngleIsSetByKeys) {
  key(Qt::Key_A);
  key(Qt::Key_Return);
  key(Qt::Key_Return);
  key(Qt::Key_Right, 10, Qt::ShiftModifier);
  key(Qt::Key_Return);
  key(Qt::Key_Left, 10, Qt::ShiftModifier);
  key(Qt::Key_Up, 8, Qt::ShiftModifier);
  key(Qt::Key_Space);
  EXPECT_EQ(readings(), "∠ = 90.0 ± 0.6 degrees");
}

TEST_F(ProjectionKeysTest, PlanesZoomsToolsAndSnapHaveKeysThatTheirTipsTell) {
  struct Case {
    Qt::Key key;
    const char* button;
  };
  constexpr std::array cases{Case{Qt::Key_Y, "xz_button"},  Case{Qt::Key_X, "yz_button"},
                             Case{Qt::Key_Z, "xy_button"},  Case{Qt::Key_2, "zoom_2"},
                             Case{Qt::Key_3, "zoom_3"},     Case{Qt::Key_1, "zoom_1"},
                             Case{Qt::Key_G, "grab_tool"},  Case{Qt::Key_C, "curve_tool"},
                             Case{Qt::Key_A, "angle_tool"}, Case{Qt::Key_T, "tape_tool"}};
  for (const auto& [code, name] : cases) {
    auto& button = control<QAbstractButton>(name);
    EXPECT_FALSE(button.isChecked()) << name;
    key(code);
    EXPECT_TRUE(button.isChecked()) << name;
    const QString told = QStringLiteral("(%1)").arg(QKeySequence(code).toString());
    EXPECT_TRUE(button.toolTip().contains(told)) << name;
  }
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::xy);
  EXPECT_EQ(projection().mapping().zoom, 1.0);
  auto& snap = control<QAbstractButton>("snap_button");
  EXPECT_TRUE(snap.isChecked());
  key(Qt::Key_S);
  EXPECT_FALSE(snap.isChecked());
}

TEST_F(ProjectionKeysTest, TheChamberWindowHasNoneOfTheseKeys) {
  activate(chamberWindow());
  for (const Qt::Key code : {Qt::Key_Y, Qt::Key_2, Qt::Key_G}) {
    QTest::keyClick(&chamberWindow(), code);
  }
  EXPECT_EQ(projection().projection_plane(), ProjectionPlane::xy);
  EXPECT_EQ(projection().mapping().zoom, 1.0);
  EXPECT_TRUE(control<QAbstractButton>("tape_tool").isChecked());
}

TEST_F(ProjectionKeysTest, CtrlReturnAsksForTheRecord) {
  const QSignalSpy asked(&projectorWindow(), &ProjectorWindow::recordAsked);
  key(Qt::Key_Return, 1, Qt::ControlModifier);
  EXPECT_EQ(asked.count(), 0) << "nothing is read";
  key(Qt::Key_Up);
  key(Qt::Key_Return);
  key(Qt::Key_Right, 9);
  key(Qt::Key_Return);
  key(Qt::Key_Return, 1, Qt::ControlModifier);
  EXPECT_EQ(asked.count(), 1);
  key(Qt::Key_Enter, 1, Qt::ControlModifier);
  EXPECT_EQ(asked.count(), 2);
}

TEST_F(ProjectionKeysTest, TheViewIsInTheTabOrderAndShowsItsCrossThere) {
  control<QWidget>("record_button").setEnabled(true);
  QStringList names;
  for (int i = 0; i < 40; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    names << QApplication::focusWidget()->objectName();
    if (projection().hasFocus()) {
      EXPECT_TRUE(projection().cross().visible());
    }
  }
  // Of buttons of which one is chosen, that one; arrow keys go to the others.
  for (const char* const name :
       {"projection_view", "xy_button", "zoom_1", "tape_tool", "snap_button", "record_button"}) {
    EXPECT_TRUE(names.contains(QLatin1String(name))) << name;
  }
  control<QWidget>("tape_tool").setFocus();
  for (const char* const name : {"grab_tool", "curve_tool", "angle_tool"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), name);
    EXPECT_TRUE(control<QAbstractButton>(name).isChecked());
  }
  control<QWidget>("xy_button").setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(projection().cross().visible());
}

TEST_F(ProjectionKeysTest, WhatIsMeasuredIsTold) {
  // Before anything is measured the event is told first.
  EXPECT_EQ(spoken().toStdString(), "There is no event yet. Set both ends of the tape.");
  key(Qt::Key_Up);
  key(Qt::Key_Return);
  for (int pixels = 1; pixels <= 10; ++pixels) {
    key(Qt::Key_Right);
    EXPECT_EQ(spoken().toStdString(),
              QStringLiteral("length %1 cm").arg(1.25 * pixels, 0, 'f', 2).toStdString());
  }
  key(Qt::Key_A);
  EXPECT_EQ(spoken().toStdString(), "There is no event yet. Set the vertex.");
  auto* const label = QAccessible::queryAccessibleInterface(&control<QLabel>("readings_text"));
  EXPECT_EQ(label->text(QAccessible::Name), QStringLiteral("Set the vertex."));
}

TEST_F(ProjectionKeysTest, RealKeysAndClicksMeasureACircle) {
  // The window manager looks at a click before the window gets it; one without time between its
  // press and the mouse's next place would end there.
  const auto click = [this](QPoint place) {
    return click_at(projection(), place)
               .replace(QStringLiteral("click"), QStringLiteral("sleep 0.2 click")) +
           QStringLiteral(" sleep 0.4");
  };
  {
    const RealInput input(QStringLiteral("key c key s %1 %2 key Escape %1 %2 %3")
                              .arg(click({150, 250}), click({250, 150}), click({350, 250})));
    ASSERT_TRUE(wait_until([&] { return input.isOver(); }));
  }
  EXPECT_TRUE(wait_until([&] {
    return readings().find("R = 125.0 ± 0.4 cm") != std::string::npos;
  })) << readings();
}

}  // namespace velquon::test
