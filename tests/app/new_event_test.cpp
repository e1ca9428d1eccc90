// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What making a new event does to the views, the windows and the chamber values.

#include <QAbstractButton>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <bit>
#include <cstdlib>

#include "events/event_types.h"
#include "tests/support/scripted_rand.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/matrices.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

using Points = std::vector<PlotPoint>;

constexpr std::array<const char*, 6> type_items{"piminus_item", "piplus_item", "pizero_item",
                                                "muminus_item", "muplus_item", "lambda_item"};

/// The events of the types in order from one seed, as the engine makes them.
std::vector<Points> events_in_order(const std::vector<std::size_t>& types,
                                    const ChamberValues& values) {
  std::srand(fixture_seed);
  std::vector<Points> events;
  for (const std::size_t type : types) {
    TrackBuffer buffer;
    EXPECT_EQ(make_event(event_types()[type], values, buffer), HandOver::yes);
    events.emplace_back(buffer.points().begin(), buffer.points().end());
  }
  return events;
}

class NewEventTest : public ApplicationFixture {
 protected:
  [[nodiscard]] Points shown() {
    const auto points = chamber().data_ptr();
    return {points.begin(), points.end()};
  }
  [[nodiscard]] QAbstractButton& toolBarButton(const char* action) {
    auto& bar = control<QToolBar>("chamber_tool_bar");
    return dynamic_cast<QAbstractButton&>(*bar.widgetForAction(&item(action)));
  }
  /// The first event of the seed at the start-up values, and not the second.
  void expectFirstEventShown() {
    const auto events = events_in_order({0, 0}, ChamberValues{});
    EXPECT_EQ(shown(), events[0]);
    EXPECT_NE(shown(), events[1]);
  }
};

}  // namespace

TEST_F(NewEventTest, EventsOfEachTypeAreThoseOfTheEngine) {
  constexpr float side = 333.3F;
  const auto metres = static_cast<float>(static_cast<double>(side) * 0.01);
  controller().settings().setFieldControl(1.7F);
  controller().settings().setSidesControl(side);
  controller().settings().setEnergyControl(60.0F);
  std::vector<Points> events;
  for (const char* const type : type_items) {
    choose(type);
    choose("new_event_item");
    events.push_back(shown());
  }
  EXPECT_EQ(events,
            events_in_order({0, 1, 2, 3, 4, 5},
                            {.B_field = 1.7F, .sides_cm = metres * 100.0F, .kinetic_Mev = 60.0F}));
  EXPECT_FALSE(events[0].empty());
  EXPECT_FALSE(events[4].empty());
}

TEST_F(NewEventTest, WindowsAreNamedAfterTheType) {
  for (std::size_t type = 0; type < type_items.size(); ++type) {
    choose(type_items.at(type));
    choose("new_event_item");
    const QString name = QStringLiteral("Untitled Type %1 Decay").arg(type + 1);
    EXPECT_EQ(chamberWindow().windowTitle(), QStringLiteral("Particle Chamber: ") + name);
    EXPECT_EQ(projectorWindow().windowTitle(), QStringLiteral("Projector: ") + name);
    EXPECT_EQ(chamber().event_type(), static_cast<int>(type));
  }
}

TEST_F(NewEventTest, ATypeThatIsNoneRefreshesTheViewsAndKeepsTheEvent) {
  choose("piplus_item");
  choose("new_event_item");
  const Points before = shown();
  for (const int type : {6, 7, 1000, -1, -100}) {
    SCOPED_TRACE(type);
    chamber().setEventType(type);
    const int chamber_passes = chamber().passes();
    const int projection_passes = projection().passes();
    controller().settings().setFieldControl(static_cast<float>(2 + type % 3));
    choose("new_event_item");
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(chamberWindow().windowTitle().toStdString(),
              "Particle Chamber: Untitled Type 2 Decay");
    EXPECT_EQ(projectorWindow().windowTitle().toStdString(), "Projector: Untitled Type 2 Decay");
    EXPECT_GT(chamber().passes(), chamber_passes);
    EXPECT_GT(projection().passes(), projection_passes);
    EXPECT_EQ(chamber().B_field(), 2 + type % 3);
  }
}

TEST_F(NewEventTest, ATypeThatIsNoneStillCountsAsAnEventAtStart) {
  ASSERT_FALSE(chamber().has_event());
  chamber().setEventType(6);
  choose("new_event_item");
  EXPECT_TRUE(chamber().has_event());
  EXPECT_TRUE(shown().empty());
  EXPECT_EQ(chamberWindow().windowTitle().toStdString(), "Particle Chamber: Empty");
}

TEST_F(NewEventTest, TheFieldIsFlippedForTheGeneratorAlone) {
  for (const char* const type : {"piminus_item", "muminus_item"}) {
    choose(type);
    choose("new_event_item");
    EXPECT_EQ(std::bit_cast<std::uint32_t>(controller().model().next().B_field),
              std::bit_cast<std::uint32_t>(0.6F));
    EXPECT_EQ(chamber().B_field(), static_cast<double>(0.6F));
  }
}

TEST_F(NewEventTest, AnEventThatIsNotHandedOverLeavesThePointsAndRefreshesTheRest) {
  choose("piplus_item");
  choose("new_event_item");
  const Points before = shown();
  const QImage projection_before = picture_of(projection());
  ASSERT_FALSE(before.empty());
  controller().settings().setEnergyControl(50.0F);
  choose("muplus_item");
  const int chamber_passes = chamber().passes();
  const int projection_passes = projection().passes();
  using velquon::test::draw_of;
  using velquon::test::highest_draw;
  using velquon::test::lowest_draw;
  // The muon's second step ends it, the electron goes straight ahead, and its second step ends it,
  // which practically never happens: the last particle of a chain is stable.
  const velquon::test::ScriptedRand script({lowest_draw, highest_draw, draw_of(0.5), highest_draw,
                                            lowest_draw, lowest_draw, lowest_draw, highest_draw});
  choose("new_event_item");
  EXPECT_TRUE(script.played_out());
  EXPECT_EQ(shown(), before);
  EXPECT_EQ(differing_pixels(picture_of(projection()), projection_before), 0);
  EXPECT_EQ(chamberWindow().windowTitle().toStdString(), "Particle Chamber: Untitled Type 5 Decay");
  EXPECT_EQ(projectorWindow().windowTitle().toStdString(), "Projector: Untitled Type 5 Decay");
  EXPECT_EQ(chamber().kinetic_Mev(), 50.0);
  EXPECT_GT(chamber().passes(), chamber_passes);
  EXPECT_GT(projection().passes(), projection_passes);
}

TEST_F(NewEventTest, EnergyZeroMakesAnEventWithoutPoints) {
  choose("new_event_item");
  ASSERT_FALSE(shown().empty());
  controller().settings().setEnergyControl(0.0F);
  for (const char* const type : type_items) {
    choose(type);
    choose("new_event_item");
    EXPECT_TRUE(shown().empty()) << type;
    EXPECT_EQ(chamber().point_number(), 0) << type;
  }
  EXPECT_EQ(chamberWindow().windowTitle().toStdString(), "Particle Chamber: Untitled Type 6 Decay");
}

TEST_F(NewEventTest, TheShortcutMakesOneEventFromTheChamberWindow) {
  const QSignalSpy chosen(&item("new_event_item"), &QAction::triggered);
  QTest::keyClick(&chamberWindow(), Qt::Key_N, Qt::ControlModifier);
  ASSERT_TRUE(wait_until([&] { return !chosen.isEmpty(); }));
  handle_waiting_events();
  EXPECT_EQ(chosen.size(), 1);
  expectFirstEventShown();
}

TEST_F(NewEventTest, TheShortcutMakesOneEventFromTheProjectorWindow) {
  activate(projectorWindow());
  const QSignalSpy chosen(&item("new_event_item"), &QAction::triggered);
  QTest::keyClick(&projectorWindow(), Qt::Key_N, Qt::ControlModifier);
  ASSERT_TRUE(wait_until([&] { return !chosen.isEmpty(); }));
  handle_waiting_events();
  EXPECT_EQ(chosen.size(), 1);
  expectFirstEventShown();
}

TEST_F(NewEventTest, TheToolBarMakesOneEvent) {
  QTest::mouseClick(&toolBarButton("new_event_item"), Qt::LeftButton);
  expectFirstEventShown();
}

TEST_F(NewEventTest, TheMenuByItsTitleMakesOneEvent) {
  QAction* const by_title =
      item_titled(projectorWindow(), {QStringLiteral("Action"), QStringLiteral("New Event")});
  ASSERT_EQ(by_title, &item("new_event_item"));
  by_title->trigger();
  expectFirstEventShown();
}

TEST_F(NewEventTest, TheTypeButtonOpensTheTypesAndShowsTheChoice) {
  auto& button = control<QToolButton>("event_type_button");
  EXPECT_EQ(button.text(), QStringLiteral("Negative Pion π⁻"));
  ASSERT_NE(button.menu(), nullptr);
  QTimer menu_opens;
  menu_opens.setSingleShot(true);
  QObject::connect(&menu_opens, &QTimer::timeout, &button, [&] {
    EXPECT_TRUE(wait_until([&] { return button.menu()->isVisible(); }));
    const QRect place = button.menu()->actionGeometry(&item("muplus_item"));
    QTest::mouseClick(button.menu(), Qt::LeftButton, {}, place.center());
  });
  menu_opens.start(0);
  QTest::mouseClick(&button, Qt::LeftButton);
  ASSERT_TRUE(wait_until([&] { return chamber().event_type() == 4; }));
  EXPECT_EQ(button.text(), QStringLiteral("Positive Muon μ⁺"));
  EXPECT_TRUE(item("muplus_item").isChecked());
  EXPECT_FALSE(item("piminus_item").isChecked());
  choose("new_event_item");
  EXPECT_EQ(chamberWindow().windowTitle().toStdString(), "Particle Chamber: Untitled Type 5 Decay");
}

TEST_F(NewEventTest, ANewEventStopsTheTurntable) {
  choose("rotate_item");
  ASSERT_TRUE(wait_until([&] { return chamber().rotation_steps() > 5; }));
  choose("new_event_item");
  EXPECT_FALSE(chamber().is_rotating());
}

TEST_F(NewEventTest, TheOrientationIsResetForEachEventWhenWanted) {
  const std::array points{point_at(350.0, -200.0, 300.0, 3)};
  showEvent(points);
  const auto turn = [&] {
    const auto before = chamber().rotation_steps();
    choose("rotate_item");
    ASSERT_TRUE(wait_until([&] { return chamber().rotation_steps() >= before + 60; }));
    chamber().stopRotating();
  };
  const QPointF resting = resting_camera().pixel({350.0, -200.0, 300.0});
  turn();
  choose("new_event_item");
  showEvent(points);
  EXPECT_NE(color_at(picture_of(chamber()), resting), red);

  choose("reset_each_item");
  turn();
  choose("new_event_item");
  showEvent(points);
  EXPECT_EQ(color_at(picture_of(chamber()), resting), red);
}

TEST_F(NewEventTest, BothViewsAreDrawnAndTheProjectionGoesBackToItsPlace) {
  const int chamber_passes = chamber().passes();
  const int projection_passes = projection().passes();
  choose("new_event_item");
  EXPECT_GT(chamber().passes(), chamber_passes);
  EXPECT_GT(projection().passes(), projection_passes);
  EXPECT_EQ(projection().mapping().offset_across, 470.0);
  EXPECT_EQ(projection().mapping().offset_up, 420.0);
}

TEST_F(NewEventTest, EachViewIsDrawnOnce) {
  const int chamber_passes = chamber().passes();
  const int projection_passes = projection().passes();
  choose("new_event_item");
  run_loop_for(100);
  EXPECT_EQ(chamber().passes(), chamber_passes + 1);
  EXPECT_EQ(projection().passes(), projection_passes + 1);
}

TEST_F(NewEventTest, TheViewKeepsACopyOfItsOwn) {
  Points points{point_at(1.0, 2.0, 3.0, 4), point_at(5.0, 6.0, 7.0, 5)};
  showEvent(points);
  const Points handed_over = points;
  points[0].coords[0] = 300.0;
  EXPECT_NE(chamber().data_ptr().data(), points.data());
  EXPECT_EQ(shown(), handed_over);
  EXPECT_EQ(chamber().point_number(), 2);
}

}  // namespace velquon::test
