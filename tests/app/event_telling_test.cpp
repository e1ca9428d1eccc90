// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the windows tell of the shown event: legend, status line, and the words for who cannot see the
// pictures.

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "app/event_telling.h"
#include "chamber/chamber_settings.h"
#include "projection/projection_view.h"
#include "render/camera.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"
#include "widgets/contrast.h"
#include "widgets/focus_line.h"
#include "widgets/legend_strip.h"
#include "widgets/status_line.h"
#include "wording/told_event.h"

namespace velquon::test {

namespace {

class EventTellingTest : public ApplicationFixture {
 protected:
  [[nodiscard]] std::string chamberStatus() {
    return control<QLabel>("chamber_status").text().toStdString();
  }
  [[nodiscard]] std::string projectorStatus() {
    return control<QLabel>("projector_status").text().toStdString();
  }
  [[nodiscard]] LegendStrip& chamberLegend() { return control<LegendStrip>("chamber_legend"); }
  [[nodiscard]] LegendStrip& projectorLegend() { return control<LegendStrip>("projector_legend"); }
  [[nodiscard]] ChamberModel& model() { return application().model(); }

  static QStringList symbolsOf(const LegendStrip& legend) {
    QStringList symbols;
    for (const LegendLine& line : legend.lines()) {
      symbols << line.symbol;
    }
    return symbols;
  }
  /// Makes events of the chosen kind until one has no points.
  void makeEmptyEvent() {
    constexpr int most = 200;
    for (int i = 0; i < most; ++i) {
      controller().makeNewEvent();
      if (model().shown()->points().empty()) {
        return;
      }
    }
    FAIL() << "no event without points";
  }
  void hideAnswers(bool hide) {
    ChamberPreferences preferences = model().preferences();
    preferences.hide_answers = hide;
    model().setPreferences(preferences);
  }
  /// Presses Tab until a widget has the focus.
  static bool reachByTab(QWidget& window, const QWidget& wanted) {
    constexpr int most_controls = 60;
    for (int i = 0; i < most_controls && !wanted.hasFocus(); ++i) {
      QWidget* const holder = window.focusWidget();
      QTest::keyClick(holder != nullptr ? holder : &window, Qt::Key_Tab);
    }
    return wanted.hasFocus();
  }
};

}  // namespace

TEST_F(EventTellingTest, AtTheStartTheWindowsSayHowToBegin) {
  EXPECT_EQ(chamberStatus(), "Choose an event and press New Event (Ctrl+N).");
  EXPECT_EQ(projectorStatus(), chamberStatus());
  EXPECT_TRUE(chamberLegend().lines().empty());
  EXPECT_EQ(chamber().accessibleDescription(), QStringLiteral("There is no event yet."));
}

TEST_F(EventTellingTest, ANewEventIsToldInBothWindows) {
  choose("new_event_item");
  const std::size_t points = model().shown()->points().size();
  const std::string begin = "Negative Pion · event 1 · seed " + std::to_string(seed()) + " · " +
                            std::to_string(points) + " points · ";
  EXPECT_TRUE(chamberStatus().starts_with(begin)) << chamberStatus();
  EXPECT_EQ(projectorStatus(), chamberStatus());
  ASSERT_FALSE(chamberLegend().lines().empty());
  EXPECT_EQ(chamberLegend().lines()[0].symbol, QStringLiteral("π⁻"));
  EXPECT_EQ(chamberLegend().lines()[0].color, QColor(red));
  EXPECT_FALSE(projectorLegend().lines()[0].color.has_value());
  EXPECT_TRUE(chamber().accessibleDescription().contains(QStringLiteral("Negative pion, red: ")));
  EXPECT_TRUE(projection().accessibleDescription().contains(QStringLiteral("Negative pion: ")));
}

TEST_F(EventTellingTest, TheStatusLineHasRoomForTheSeedInLettersOfAnySize) {
  const QString longest = long_status(seed());
  EXPECT_TRUE(longest.contains(QString::number(seed())));
  for (const auto& [name, width] : {std::pair("chamber_status", chamber_width),
                                    std::pair("projector_status", projection_width)}) {
    auto& line = control<StatusLine>(name);
    const QMargins around = line.contentsMargins();
    for (int height = 10; height <= 24; ++height) {
      QFont letters = line.font();
      letters.setPixelSize(height);
      line.setFont(letters);
      const QRect room(0, 0, width - around.left() - around.right(), 0);
      const QRect needed = line.fontMetrics().boundingRect(room, Qt::TextWordWrap, longest);
      EXPECT_GE(line.sizeHint().height() - around.top() - around.bottom(), needed.height())
          << name << ", " << height;
      EXPECT_TRUE(wait_until([&] { return line.height() == line.sizeHint().height(); }));
    }
  }
}

TEST_F(EventTellingTest, WhatFindsNoRoomIsReadInTheToolTip) {
  choose("new_event_item");
  EXPECT_EQ(control<StatusLine>("chamber_status").toolTip().toStdString(), chamberStatus());
  for (LegendStrip* const legend : {&chamberLegend(), &projectorLegend()}) {
    ASSERT_FALSE(legend->lines().empty());
    for (const LegendLine& line : legend->lines()) {
      EXPECT_TRUE(legend->toolTip().contains(line.name, Qt::CaseInsensitive))
          << legend->toolTip().toStdString();
    }
  }
}

TEST_F(EventTellingTest, AFilesNameIsToldLetterByLetter) {
  const auto letters_on_screen = [this](const QString& name) {
    controller().renameWindows(name);
    return control<QLabel>("chamber_status").grab().toImage();
  };
  showEvent(std::vector{point_at(0, 0, 0, 4), point_at(0, 20, 0, 4)});
  const QImage plain = letters_on_screen(QStringLiteral("x.cwd"));
  const QImage marked = letters_on_screen(QStringLiteral("<b>x</b>.cwd"));
  // The marks are told too, not followed.
  const auto width = [](const QImage& image) {
    int last = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        last = image.pixel(x, y) != image.pixel(0, 0) ? std::max(last, x) : last;
      }
    }
    return last;
  };
  EXPECT_GT(width(marked), width(plain) + 20);
}

TEST_F(EventTellingTest, AnEventThatIsShownAgainHasItsNumberAgain) {
  choose("new_event_item");
  choose("new_event_item");
  EXPECT_NE(chamberStatus().find("event 2"), std::string::npos);
  choose("previous_event_item");
  EXPECT_NE(chamberStatus().find("event 1"), std::string::npos);
}

TEST_F(EventTellingTest, ALambdaThatLeavesIsSaidToHaveLeft) {
  choose("lambda_item");
  controller().settings().setSidesControl(50.0F);
  controller().settings().setEnergyControl(9000.0F);
  makeEmptyEvent();
  EXPECT_NE(chamberStatus().find("No visible track: "), std::string::npos) << chamberStatus();
  EXPECT_TRUE(chamber().accessibleDescription().startsWith(QStringLiteral("No visible track: ")));
  hideAnswers(true);
  EXPECT_TRUE(chamberStatus().ends_with("No visible track")) << chamberStatus();
}

TEST_F(EventTellingTest, HiddenAnswersAreNotToldUntilTheyAreRevealed) {
  choose("new_event_item");
  const std::string told = chamberStatus();
  const QStringList symbols = symbolsOf(chamberLegend());
  hideAnswers(true);
  EXPECT_TRUE(chamberStatus().starts_with("Untitled Type 1 Decay · event 1")) << chamberStatus();
  EXPECT_EQ(symbolsOf(chamberLegend()).first(), QStringLiteral("?"));
  EXPECT_TRUE(symbolsOf(projectorLegend()).isEmpty());
  for (const QString& text :
       {chamberLegend().toolTip(), chamberLegend().accessibleName(),
        chamber().accessibleDescription(), projection().accessibleDescription()}) {
    EXPECT_FALSE(text.contains(QStringLiteral("ion"))) << text.toStdString();
  }
  model().revealAnswers();
  EXPECT_EQ(chamberStatus(), told);
  EXPECT_EQ(symbolsOf(chamberLegend()), symbols);
}

TEST_F(EventTellingTest, AnEventOfAFileIsToldByItsNameAndCodes) {
  showEvent(std::vector{point_at(0, 0, 0, 4), point_at(0, 20, 0, 4), point_at(0, 40, 0, 4),
                        point_at(300, 0, 0, 2), point_at(300, 20, 0, 2)});
  controller().renameWindows(QStringLiteral("lesson.cwd"));
  EXPECT_EQ(chamberStatus(),
            "lesson.cwd · event 1 · seed " + std::to_string(seed()) + " · 5 points · 2 tracks");
  EXPECT_EQ(symbolsOf(chamberLegend()), (QStringList{QStringLiteral("μ/e"), QStringLiteral("π")}));
  EXPECT_EQ(symbolsOf(projectorLegend()), symbolsOf(chamberLegend()));
}

TEST_F(EventTellingTest, TheLegendIsShownUntilItIsSwitchedOff) {
  EXPECT_TRUE(item("legend_item").isChecked());
  EXPECT_TRUE(chamberLegend().isVisible());
  EXPECT_TRUE(projectorLegend().isVisible());
  choose("legend_item");
  EXPECT_FALSE(item("legend_item").isChecked());
  EXPECT_FALSE(chamberLegend().isVisible());
  EXPECT_FALSE(projectorLegend().isVisible());
  choose("legend_item");
  EXPECT_TRUE(chamberLegend().isVisible());
}

TEST_F(EventTellingTest, TheStripsKeepTheirHeightWhateverTheyTell) {
  const QSize view_before = chamber().size();
  const QSize projection_before = projection().size();
  choose("lambda_item");
  for (int i = 0; i < 6; ++i) {
    choose("new_event_item");
    handle_waiting_events();
    EXPECT_EQ(chamber().size(), view_before);
    EXPECT_EQ(projection().size(), projection_before);
  }
}

TEST_F(EventTellingTest, PicturesAreAsEverUntilAnOptionIsChosenAndAfterwards) {
  choose("new_event_item");
  for (const auto& [name, view] : {std::pair<const char*, GLView*>{"axis_letters_item", &chamber()},
                                   {"field_arrow_item", &chamber()},
                                   {"colored_projector_item", &projection()}}) {
    EXPECT_FALSE(item(name).isChecked()) << name;
    const QImage before = picture_of(*view);
    choose(name);
    EXPECT_TRUE(item(name).isChecked()) << name;
    EXPECT_GT(differing_pixels(picture_of(*view), before), 3) << name;
    choose(name);
    EXPECT_EQ(picture_of(*view), before) << name;
  }
}

TEST_F(EventTellingTest, TheProjectorsPointsAndLegendTakeTheColours) {
  showEvent(std::vector{point_at(0, -100, 0, 3), point_at(0, 0, 0, 4), point_at(0, 100, 0, 5)});
  const QImage plain = picture_of(projection());
  EXPECT_TRUE(pixels_of(plain, red).empty());
  EXPECT_FALSE(projectorLegend().lines()[0].color.has_value());
  choose("colored_projector_item");
  const QImage colored = picture_of(projection());
  for (const QRgb color : {red, yellow, green}) {
    EXPECT_FALSE(pixels_of(colored, color).empty()) << color;
  }
  EXPECT_EQ(pixels_of(colored, white).size(), pixels_of(plain, white).size() - 3);
  EXPECT_EQ(projectorLegend().lines()[0].color, QColor(red));
}

TEST_F(EventTellingTest, TheViewsAreReachedByTabAndALineShowsIt) {
  struct Case {
    QWidget* window;
    QWidget* view;
    const char* line;
  };
  for (const auto& [window, view, line_name] :
       {Case{&chamberWindow(), &chamber(), "chamber_focus_line"},
        Case{&projectorWindow(), &projection(), "projector_focus_line"}}) {
    activate(*window);
    auto& line = control<FocusLine>(line_name);
    const auto line_pixels = [&line] {
      return line.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    if (QWidget* const holder = window->focusWidget()) {
      holder->clearFocus();
    }
    const QImage without = line_pixels();
    ASSERT_TRUE(reachByTab(*window, *view)) << line_name;
    EXPECT_TRUE(line.isOn());
    const QColor seen = line_pixels().pixelColor(line.rect().center());
    EXPECT_GE(contrast(seen, without.pixelColor(line.rect().center())), least_contrast);
    EXPECT_GE(contrast(seen, Qt::black), least_contrast);
    view->clearFocus();
    EXPECT_EQ(line_pixels(), without);
  }
}

TEST_F(EventTellingTest, TheLineIsGoneFromTheScreenWithTheFocus) {
  activate(chamberWindow());
  auto& line = control<FocusLine>("chamber_focus_line");
  const auto seen = [&line] {
    handle_waiting_events();
    return screen_picture(line);
  };
  chamber().clearFocus();
  const QImage without = seen();
  chamber().setFocus();
  EXPECT_TRUE(wait_until([&] { return seen() != without; }));
  chamber().clearFocus();
  EXPECT_TRUE(wait_until([&] { return seen() == without; }));
}

TEST_F(EventTellingTest, WhileOneMeasuresTheProjectionTellsTheStepAlone) {
  choose("new_event_item");
  activate(projectorWindow());
  clickButton("curve_tool");
  EXPECT_TRUE(projection().accessibleDescription().contains(QStringLiteral("Negative pion")));
  QTest::mouseClick(&projection(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
  EXPECT_FALSE(projection().accessibleDescription().isEmpty());
  EXPECT_FALSE(projection().accessibleDescription().contains(QStringLiteral("Negative pion")));
}

}  // namespace velquon::test
