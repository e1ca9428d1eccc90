// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window that tells what happened in an event: its rows, and what it hides.

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "events/event_types.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/record_window_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class RecordWindowTest : public RecordWindowFixture {
 protected:
  [[nodiscard]] QStringList titles() {
    QStringList texts;
    for (int column = 0; column < tree().columnCount(); ++column) {
      texts << tree().headerItem()->text(column);
    }
    return texts;
  }
  /// The rows' texts, their columns joined by a stroke.
  [[nodiscard]] QStringList texts() {
    QStringList all;
    for (const QTreeWidgetItem* const row : rows()) {
      QStringList columns;
      for (int column = 0; column < tree().columnCount(); ++column) {
        columns << row->text(column);
      }
      all << columns.join(QLatin1Char('|'));
    }
    return all;
  }
  [[nodiscard]] QString message() { return recordControl<QLabel>("record_message").text(); }
  [[nodiscard]] QCheckBox& hideBox() { return recordControl<QCheckBox>("hide_answers_box"); }
  [[nodiscard]] QPushButton& revealButton() { return recordControl<QPushButton>("reveal_button"); }

  void expectRowsOfTheRecord() {
    const EventTracks& tracks = *model().shown()->tracks;
    const auto wanted = event_rows(*tracks.record, tracks.values);
    const auto found = rows();
    ASSERT_EQ(found.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      const auto parent = static_cast<std::size_t>(wanted[i].parent);
      EXPECT_EQ(found[i]->parent(), wanted[i].parent < 0 ? nullptr : found[parent]);
      EXPECT_EQ(found[i]->text(0).toStdString(),
                std::string(wanted[i].name) + ' ' + std::string(wanted[i].symbol));
      EXPECT_EQ(found[i]->text(1).toStdString(), wanted[i].fate);
      expectNumber(*found[i], 2, wanted[i].momentum);
      expectNumber(*found[i], 3, wanted[i].transverse_momentum);
      expectNumber(*found[i], 4, wanted[i].radius_cm);
      expectNumber(*found[i], 5, wanted[i].kinetic_energy);
      expectNumber(*found[i], 6, wanted[i].flight_cm);
      expectNumber(*found[i], 7, wanted[i].decay_length_cm);
    }
  }

 private:
  /// Expects a number with four digits, or a hyphen for none.
  static void expectNumber(const QTreeWidgetItem& row, int column,
                           const std::optional<double>& wanted) {
    if (!wanted) {
      EXPECT_EQ(row.text(column), QStringLiteral("-"));
      return;
    }
    bool is_number = false;
    EXPECT_NEAR(row.text(column).toDouble(&is_number), *wanted, std::abs(*wanted) * 5e-4);
    EXPECT_TRUE(is_number) << row.text(column).toStdString();
  }
};

/// The window of the program that has this title; null without one.
QWidget* window_titled(const QString& title) {
  const auto windows = QApplication::topLevelWidgets();
  const auto found = std::ranges::find(windows, title, &QWidget::windowTitle);
  return found != windows.end() ? *found : nullptr;
}

}  // namespace

TEST_F(RecordWindowTest, IsThereWhenAskedForAndHidesWhenClosed) {
  EXPECT_EQ(window_titled(QStringLiteral("Event Record")), nullptr);
  openRecord();
  EXPECT_EQ(window_titled(QStringLiteral("Event Record")), &recordWindow());
  EXPECT_EQ(item_named(recordWindow(), QStringLiteral("save_item")), &item("save_item"));
  recordWindow().close();
  EXPECT_FALSE(recordWindow().isVisible());
  EXPECT_TRUE(chamberWindow().isVisible());
  openRecord();
  EXPECT_TRUE(recordWindow().isVisible());
}

TEST_F(RecordWindowTest, OpensByItsKey) {
  QTest::keyClick(&chamberWindow(), Qt::Key_E, Qt::ControlModifier);
  EXPECT_TRUE(wait_until([this] { return recordWindow().isVisible(); }));
}

TEST_F(RecordWindowTest, SaysThatThereIsNoEventYet) {
  openRecord();
  EXPECT_EQ(message(), QStringLiteral("There is no event yet."));
  EXPECT_TRUE(rows().empty());
}

TEST_F(RecordWindowTest, NamesTheColumnsWithTheirUnits) {
  newEvent(negative_pion, lively);
  openRecord();
  EXPECT_EQ(
      titles().join(QLatin1Char('|')),
      QStringLiteral("Particle|Fate|p (MeV/c)|Transverse p (MeV/c)|Radius (cm)|Kinetic energy "
                     "(MeV)|Flight (cm)|Mean decay length (cm)"));
}

TEST_F(RecordWindowTest, ShowsTheRowsOfEachEventsRecord) {
  openRecord();
  for (int type = 0; type < static_cast<int>(event_types().size()); ++type) {
    for (int event = 0; event < 3; ++event) {
      newEvent(type, lively);
      expectRowsOfTheRecord();
    }
  }
  EXPECT_EQ(message(),
            QStringLiteral("Made with B = 2 kG, T = 40 MeV, L = 5 m. Choose rows to mark "
                           "their tracks in the other windows."));
}

TEST_F(RecordWindowTest, NumbersHaveFourDigits) {
  openRecord();
  newEvent(negative_pion, {.B_field = 1.0F, .sides_cm = 500.0F, .kinetic_Mev = 60.0F});
  // p = sqrt(199.6^2 - 139.6^2), R = 10 p / 3, p / m * 780.
  const QTreeWidgetItem& primary = *rows().front();
  EXPECT_EQ(primary.text(2), QStringLiteral("142.7"));
  EXPECT_EQ(primary.text(4), QStringLiteral("475.5"));
  EXPECT_EQ(primary.text(5), QStringLiteral("60.00"));
  EXPECT_EQ(primary.text(7), QStringLiteral("797.1"));
  // p = sqrt(195^2 - 135^2), and a length that is a small part of a cm.
  newEvent(neutral_pion, {.B_field = 1.0F, .sides_cm = 500.0F, .kinetic_Mev = 60.0F});
  EXPECT_EQ(rows().front()->text(2), QStringLiteral("140.7"));
  EXPECT_EQ(rows().front()->text(7), QStringLiteral("2.606E-06"));
}

TEST_F(RecordWindowTest, EveryRowIsSeenAtOnce) {
  openRecord();
  newEventUntil(neutral_pion, lively, [](const ShownEvent& shown) {
    return shown.tracks->record->particles().size() == 7;
  });
  for (const QTreeWidgetItem* const row : rows()) {
    EXPECT_FALSE(tree().visualItemRect(row).isEmpty());
  }
}

TEST_F(RecordWindowTest, HiddenAnswersLeaveTheColorsOfTheTracks) {
  openRecord();
  newEventUntil(negative_pion, slow,
                [](const ShownEvent& shown) { return visible_tracks(shown.points()).size() == 2; });
  EXPECT_FALSE(hideBox().isChecked());
  EXPECT_FALSE(revealButton().isEnabled());
  QTest::mouseClick(&hideBox(), Qt::LeftButton, {}, QPoint(8, hideBox().height() / 2));
  EXPECT_EQ(titles(), QStringList{QStringLiteral("Track")});
  EXPECT_EQ(texts(), (QStringList{QStringLiteral("Red"), QStringLiteral("Yellow")}));
  EXPECT_FALSE(message().contains(QRegularExpression(QStringLiteral("[0-9]"))));
  QTest::mouseClick(&revealButton(), Qt::LeftButton);
  expectRowsOfTheRecord();
  EXPECT_FALSE(revealButton().isEnabled());
}

TEST_F(RecordWindowTest, ANewEventHidesItsAnswersAgain) {
  newEvent(negative_pion, lively);
  openRecord();
  hideBox().click();
  revealButton().click();
  EXPECT_EQ(titles().size(), 8);
  newEvent(positive_pion, lively);
  EXPECT_EQ(titles().size(), 1);
  EXPECT_TRUE(revealButton().isEnabled());
  recordWindow().close();
  newEvent(positive_pion, lively);
  openRecord();
  EXPECT_TRUE(hideBox().isChecked());
  EXPECT_EQ(titles().size(), 1);
  hideBox().click();
  expectRowsOfTheRecord();
}

TEST_F(RecordWindowTest, AnOpenedEventHasItsTracksAndNoRecord) {
  openRecord();
  std::vector<PlotPoint> points(5);
  for (std::size_t i = 0; i < points.size(); ++i) {
    points[i] = point_at(static_cast<double>(10 * i), 20.0, 30.0, i < 2 ? 4 : 3);
  }
  const QString file = write(QStringLiteral("a.cwd"), event_file(points));
  ASSERT_TRUE(documents().readAndDisplayFile(file));
  EXPECT_EQ(message(), QStringLiteral("This event comes from a file, which does not tell what "
                                      "happened in it. These are its tracks."));
  EXPECT_EQ(titles().join(QLatin1Char('|')), QStringLiteral("Track|Code|Points"));
  EXPECT_EQ(texts(), (QStringList{QStringLiteral("Yellow|4|2"), QStringLiteral("Red|3|3")}));
  hideBox().click();
  EXPECT_FALSE(revealButton().isEnabled());
  EXPECT_EQ(texts().size(), 2);
}

TEST_F(RecordWindowTest, ControlsAreChosenByKeysThatNoMenuHas) {
  newEvent(negative_pion, lively);
  openRecord();
  const auto type = [this](const QAbstractButton& button) {
    const QKeyCombination keys = QKeySequence::mnemonic(button.text())[0];
    QTest::keyClick(&tree(), keys.key(), keys.keyboardModifiers());
  };
  type(hideBox());
  EXPECT_TRUE(wait_until([this] { return hideBox().isChecked(); }));
  EXPECT_TRUE(revealButton().isEnabled());
  type(revealButton());
  EXPECT_TRUE(wait_until([this] { return model().answersShown(); }));
}

TEST_F(RecordWindowTest, ControlsHaveTheirNamesAndFollowInTheOrderOfTab) {
  newEvent(negative_pion, lively);
  openRecord();
  hideBox().click();
  const auto name = [](QObject& object) {
    return QAccessible::queryAccessibleInterface(&object)->text(QAccessible::Name);
  };
  EXPECT_EQ(name(tree()), QStringLiteral("Particles of the event"));
  EXPECT_EQ(name(hideBox()), QStringLiteral("Hide answers"));
  EXPECT_EQ(name(revealButton()), QStringLiteral("Reveal"));
  tree().setFocus();
  for (QWidget* const next :
       {static_cast<QWidget*>(&hideBox()), static_cast<QWidget*>(&revealButton()),
        static_cast<QWidget*>(&tree())}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), next);
  }
}

}  // namespace velquon::test
