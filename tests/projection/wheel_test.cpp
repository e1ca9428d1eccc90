// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse wheel over the projection.

#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/real_input.h"
#include "tests/support/windows/waiting.h"
#include "widgets/view_scroll_area.h"

namespace velquon::test {

namespace {

constexpr int notch = 120;

class WheelTest : public ApplicationFixture {
 protected:
  /// Turns the wheel over the middle of the picture.
  /// \param way across and up, eighths of a degree
  void turn(QPoint way, Qt::MouseButtons buttons = Qt::NoButton,
            Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QPointF place = projection().rect().center();
    QWheelEvent event(place, projection().mapToGlobal(place), {}, way, buttons, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&projection(), &event);
  }
  /// Turns the X server's wheel by a notch.
  void turnOnScreen(const char* button) {
    const QString place = click_at(projection(), projection().rect().center());
    const RealInput input(place.section(u' ', 0, -2) + u' ' + QLatin1String(button));
  }
  /// The zoom that the picture is drawn with, which has to be that of the chosen button.
  [[nodiscard]] int zoom() {
    const int drawn = qRound(projection().mapping().zoom);
    for (const auto& [name, number] :
         {std::pair{"zoom_1", 1}, std::pair{"zoom_2", 2}, std::pair{"zoom_3", 3}}) {
      EXPECT_EQ(control<QToolButton>(name).isChecked(), number == drawn) << name;
    }
    return drawn;
  }
};

}  // namespace

TEST_F(WheelTest, EachNotchAwayFromThePersonComesCloser) {
  for (const auto& [way, wanted] :
       {std::pair{notch, 2}, std::pair{notch, 3}, std::pair{notch, 3}, std::pair{-notch, 2},
        std::pair{-notch, 1}, std::pair{-notch, 1}, std::pair{2 * notch, 3}}) {
    turn({0, way});
    EXPECT_EQ(zoom(), wanted);
  }
  turn({0, -notch}, Qt::NoButton, Qt::ControlModifier);
  EXPECT_EQ(zoom(), 2);
}

TEST_F(WheelTest, PartsOfANotchAddUpUntilTheWheelIsTurnedBack) {
  for (int part = 0; part < 3; ++part) {
    turn({0, notch / 4});
    EXPECT_EQ(zoom(), 1);
  }
  turn({0, notch / 4});
  EXPECT_EQ(zoom(), 2);
  turn({0, notch - 1});
  turn({0, -1});
  turn({0, notch - 1});
  EXPECT_EQ(zoom(), 2);
  turn({0, 1});
  EXPECT_EQ(zoom(), 3);
}

TEST_F(WheelTest, TheOffsetsAreKeptAndTheTapeGoesAsWithTheButtons) {
  clickButton("grab_tool");
  drag(projection(), {100, 100}, {140, 130});
  clickButton("tape_tool");
  const ProjectionMapping before = projection().mapping();
  drag(projection(), {100, 50}, {200, 50});
  ASSERT_TRUE(projection().tape_visible());
  // There is nothing further away: nothing happens, and the tape stays.
  turn({0, -notch});
  EXPECT_TRUE(projection().tape_visible());
  turn({0, notch});
  EXPECT_FALSE(projection().tape_visible());
  EXPECT_EQ(projection().mapping().offset_across, before.offset_across);
  EXPECT_EQ(projection().mapping().offset_up, before.offset_up);
}

TEST_F(WheelTest, ItDoesNothingWhileTheMouseLaysOutATape) {
  press(projection(), {100, 50});
  move_pressed(projection(), {200, 50});
  turn({0, notch}, Qt::LeftButton);
  EXPECT_EQ(zoom(), 1);
  EXPECT_TRUE(projection().tape_visible());
  release(projection(), {200, 50});
}

TEST_F(WheelTest, InASmallWindowItStillZoomsAndScrollsToTheSideOnly) {
  projectorWindow().setMinimumSize(1, 1);
  projectorWindow().resize(projectorWindow().size() - QSize(120, 120));
  auto& area = control<ViewScrollArea>("projector_area");
  ASSERT_TRUE(wait_until([&] { return area.horizontalScrollBar()->isVisible(); }));
  run_loop_for(100);
  area.scrollPoint({60.0, 0.0});
  ASSERT_EQ(area.horizontalScrollBar()->value(), 60);
  const int down = area.verticalScrollBar()->value();
  // Wheels of the X server, which also reach what lies below when they are not taken.
  constexpr const char* up = "4";
  constexpr const char* to_the_side = "7";
  activate(projectorWindow());
  turnOnScreen(up);
  EXPECT_TRUE(wait_until([&] { return zoom() == 2; }));
  EXPECT_EQ(area.verticalScrollBar()->value(), down);
  turnOnScreen(to_the_side);
  EXPECT_TRUE(wait_until([&] { return area.horizontalScrollBar()->value() > 60; }));
  EXPECT_EQ(zoom(), 2);
}

}  // namespace velquon::test
