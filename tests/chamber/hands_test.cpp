// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What hands do in the chamber's window: a drag turns the chamber, keys stop the turntable and show the
// events of the run again.

#include <QApplication>
#include <QTest>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr QPoint place(300, 250);

class HandsTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ApplicationFixture::SetUp();
    activate(chamberWindow());
  }

  [[nodiscard]] Matrix view() { return chamber().camera().modelView(); }
  void startTurntable() {
    choose("rotate_item");
    ASSERT_TRUE(wait_until([this] { return chamber().rotation_steps() > 3; }));
  }
};

}  // namespace

TEST_F(HandsTest, ADragTurnsTheChamberOnTheScreen) {
  const QImage before = screen_picture(chamber());
  drag(chamber(), place, place + QPoint(80, 30));
  Camera turned;
  turned.turnNearSide(40.0, 15.0);
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      EXPECT_NEAR(view()[row][column], turned.modelView()[row][column], 0.02) << row << column;
    }
  }
  EXPECT_TRUE(wait_until([&] { return screen_picture(chamber()) != before; }));
}

TEST_F(HandsTest, AClickOfAnUnquietHandTurnsNothing) {
  const Matrix before = view();
  drag(chamber(), place, place + QPoint(QApplication::startDragDistance() / 2, 1));
  EXPECT_EQ(view(), before);
}

TEST_F(HandsTest, TheOtherButtonsTurnNothing) {
  const Matrix before = view();
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    drag(chamber(), place, place + QPoint(60, 0), button);
    EXPECT_EQ(view(), before);
  }
}

TEST_F(HandsTest, AMoveAfterTheReleaseTurnsNothing) {
  drag(chamber(), place, place + QPoint(40, 0));
  const Matrix before = view();
  QTest::mouseMove(&chamber(), place - QPoint(90, 50));
  QApplication::processEvents();
  EXPECT_EQ(view(), before);
}

TEST_F(HandsTest, ResetOrientationBringsADraggedChamberBack) {
  drag(chamber(), place, place + QPoint(70, -50));
  EXPECT_NE(view(), Camera().modelView());
  choose("reset_orientation_item");
  EXPECT_EQ(view(), Camera().modelView());
}

TEST_F(HandsTest, EscapeAndSpaceStopTheTurntableWhereItIs) {
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space}) {
    startTurntable();
    chamberWindow().setFocus();
    QTest::keyClick(&chamberWindow(), key);
    EXPECT_FALSE(chamber().is_rotating());
    EXPECT_NE(view(), Camera().modelView());
  }
}

TEST_F(HandsTest, AltLeftAndRightShowTheEventsOfTheRun) {
  choose("piplus_item");
  choose("new_event_item");
  choose("lambda_item");
  choose("new_event_item");
  const QString first = QStringLiteral("Untitled Type 2 Decay");
  const QString second = QStringLiteral("Untitled Type 6 Decay");
  EXPECT_EQ(controller().shownName(), second);
  QTest::keyClick(&chamberWindow(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(controller().shownName(), first);
  EXPECT_TRUE(chamberWindow().windowTitle().endsWith(first));
  EXPECT_TRUE(projectorWindow().windowTitle().endsWith(first));
  EXPECT_EQ(chamber().data_ptr().data(), controller().model().shown()->points().data());
  QTest::keyClick(&chamberWindow(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(controller().shownName(), second);
}

TEST_F(HandsTest, TheItemsSayWhetherThereIsAnotherEvent) {
  const auto expect = [this](bool previous, bool next) {
    EXPECT_EQ(item("previous_event_item").isEnabled(), previous);
    EXPECT_EQ(item("next_event_item").isEnabled(), next);
  };
  expect(false, false);
  choose("new_event_item");
  expect(false, false);
  choose("new_event_item");
  expect(true, false);
  choose("previous_event_item");
  expect(false, true);
}

TEST_F(HandsTest, WhileTheTrackIsActiveNoOtherEventCanBeShown) {
  choose("new_event_item");
  choose("new_event_item");
  choose("activate_item");
  EXPECT_TRUE(wait_until([this] { return !item("new_event_item").isEnabled(); }));
  EXPECT_FALSE(item("previous_event_item").isEnabled());
  choose("activate_item");
  EXPECT_TRUE(wait_until([this] { return item("previous_event_item").isEnabled(); }));
}

}  // namespace velquon::test
