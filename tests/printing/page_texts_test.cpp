// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QAbstractButton>
#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <limits>

#include "printing/projection_foot.h"
#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/printing.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

constexpr double date_height = 700.0;
constexpr double title_height = 675.0;
constexpr double values_height = 645.0;
constexpr double scale_height = 78.0;
constexpr double foot_height = 54.0;
constexpr double text_start = 120.0;

const QString values_line = QStringLiteral("B = 2 kG, T = 0.5 MeV, L = 4 m");

/// "Wed 06/12/24 03:07 PM" of a time, without the help of the program's own format.
QString date_text(const QDateTime& time) {
  const QDate date = time.date();
  const int hour = time.time().hour();
  const QString day = QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat);
  return day + QString::asprintf(" %02d/%02d/%02d %02d:%02d %s", date.month(), date.day(),
                                 date.year() % 100, hour % 12 == 0 ? 12 : hour % 12,
                                 time.time().minute(), hour < 12 ? "AM" : "PM");
}

class PageTextsTest : public DocumentsFixture {
 protected:
  void openEvent() {
    const QString file = write(QStringLiteral("event.cwd"), event_file(spiral(3)));
    ASSERT_TRUE(documents().readAndDisplayFile(file));
  }

  std::vector<PaperWord> words(Printable& view, const Paper& paper = a4) {
    const QString file = path(QStringLiteral("page.pdf"));
    print_to_pdf(view, chamber(), paper, file);
    return words_of_pdf(file);
  }

  QString valuesLine(Printable& view) { return line_at(words(view), a4, values_height); }
};

/// The place of a line's first word on the page.
QPointF start_of_line(const std::vector<PaperWord>& words, const Paper& paper, double height) {
  const auto first = std::ranges::find_if(words, [&](const PaperWord& word) {
    return std::fabs(word.corner.y() - paper.origin.y() - height) < 0.1;
  });
  return first == words.end() ? QPointF() : first->corner - paper.origin;
}

TEST_F(PageTextsTest, AreTheDateTheTitleAndTheValuesAtTheirPlaces) {
  openEvent();
  for (Printable* const view :
       {static_cast<Printable*>(&chamber()), static_cast<Printable*>(&projection())}) {
    for (const Paper& paper : {a4, letter}) {
      const QDateTime before = QDateTime::currentDateTime();
      const auto found = words(*view, paper);
      const QDateTime after = QDateTime::currentDateTime();
      const QString date = line_at(found, paper, date_height);
      EXPECT_TRUE(date == date_text(before) || date == date_text(after)) << date.toStdString();
      EXPECT_EQ(line_at(found, paper, title_height), QStringLiteral("Some Title"));
      EXPECT_EQ(line_at(found, paper, values_height), values_line);
      EXPECT_TRUE(is_near(start_of_line(found, paper, date_height), {0.0, date_height}, 0.1));
      EXPECT_TRUE(
          is_near(start_of_line(found, paper, title_height), {text_start, title_height}, 0.1));
      EXPECT_TRUE(
          is_near(start_of_line(found, paper, values_height), {text_start, values_height}, 0.1));
      const std::size_t foot_words = view == static_cast<Printable*>(&projection()) ? 2U + 4U : 0U;
      EXPECT_EQ(found.size(), 4U + 2U + 12U + foot_words);
    }
  }
}

TEST_F(PageTextsTest, AreBelowAProjectionItsScalePlaneZoomAndTape) {
  openEvent();
  const auto foot = [this] {
    const auto found = words(projection());
    return line_at(found, a4, scale_height) + QChar(u'|') + line_at(found, a4, foot_height);
  };
  EXPECT_EQ(foot(), QStringLiteral("100 cm|xy plane, zoom 1"));
  application().projectorWindow().findChild<QAbstractButton*>(QStringLiteral("yz_button"))->click();
  application().projectorWindow().findChild<QAbstractButton*>(QStringLiteral("zoom_3"))->click();
  drag(projection(), {100, 150}, {250, 210});
  // 161.55 view units; a third of a centimetre each.
  EXPECT_EQ(foot(), QStringLiteral("20 cm|yz plane, zoom 3, tape D = 53.85 cm"));
}

TEST(ScaleBarTest, IsTheLongestOfRoundLengthsThatHasRoom) {
  struct Case {
    double unit_cm;
    double length_cm;
  };
  for (const auto& [unit_cm, length_cm] :
       {Case{1.25, 100.0}, Case{1.0, 100.0}, Case{1.0 / 0.6, 200.0}, Case{0.999 / 0.6, 100.0},
        Case{5.0 / 1.2, 500.0}, Case{1e-3, 0.1}, Case{1e6, 1e8}}) {
    const ScaleBar bar = scale_bar(unit_cm, 120.0);
    EXPECT_NEAR(bar.length_cm, length_cm, 1e-9 * length_cm) << unit_cm;
    EXPECT_NEAR(bar.length * unit_cm, length_cm, 1e-9 * length_cm);
    EXPECT_LE(bar.length, 120.0 + 1e-6);
  }
  for (const double unit_cm : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(scale_bar(unit_cm, 120.0).length, 0.0);
  }
}

TEST_F(PageTextsTest, HaveNoValuesWithoutAnEvent) {
  EXPECT_EQ(valuesLine(chamber()), QString());
  EXPECT_EQ(valuesLine(projection()), QString());
}

TEST_F(PageTextsTest, HaveTheValuesOnTheChamberPageOnlyWhenTheyAreShown) {
  openEvent();
  chamber().set_show_values(false);
  EXPECT_EQ(valuesLine(chamber()), QString());
  EXPECT_EQ(valuesLine(projection()), values_line);
  chamber().set_show_values(true);
  EXPECT_EQ(valuesLine(chamber()), values_line);
}

TEST_F(PageTextsTest, HaveNoValuesOnTheChamberPageWhileItTurns) {
  openEvent();
  choose("rotate_item");
  ASSERT_TRUE(wait_until([this] { return chamber().rotation_steps() > 0; }));
  EXPECT_EQ(valuesLine(chamber()), QString());
  EXPECT_EQ(valuesLine(projection()), values_line);
  chamber().stopRotating();
  EXPECT_EQ(valuesLine(chamber()), values_line);
}

TEST_F(PageTextsTest, HaveTheValuesOfTheShownEventNotOfTheControls) {
  openEvent();
  controller().settings().setFieldControl(7.5F);
  EXPECT_EQ(valuesLine(chamber()), values_line);
  EXPECT_EQ(valuesLine(projection()), values_line);
}

}  // namespace

}  // namespace velquon::test
