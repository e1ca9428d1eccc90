// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What stands on the pages of worksheets, measured on the paper.

#include <cmath>

#include "tests/support/documents/worksheet_run.h"

namespace velquon::test {

namespace {

class WorksheetPagesTest : public WorksheetTest {};

void expect_squares(const PdfPage& page, const EventPlaces& places) {
  const QRectF frame = frame_of(page);
  ASSERT_EQ(page.rectangles.size(), places.size());
  for (std::size_t i = 0; i < places.size(); ++i) {
    const auto& [x, y, z] = places[i];
    const QPointF middle = page.rectangles[i].area.center();
    EXPECT_NEAR(middle.x(), frame.left() + (y + 400.0) / 2.0, 0.02) << i;
    EXPECT_NEAR(middle.y(), frame.top() + (400.0 - x) / 2.0, 0.02) << i;
  }
}

TEST_F(WorksheetPagesTest, ShowEachPointOfTheSeedsEventsAtItsPlace) {
  for (const char* const type : {"pi-", "pi+", "pi0", "mu-", "mu+", "lambda"}) {
    const QStringList options =
        words("--field 7.3 --side 410 --energy 60 --seed 9 --events 8 --type") +
        QStringList{QLatin1String(type)};
    auto events = places_of_events(options);
    ASSERT_FALSE(events.empty()) << type;
    const auto made = pages(options);
    ASSERT_EQ(made.size(), 8U) << type;
    for (int number = 1; number <= 8; ++number) {
      expect_squares(made[static_cast<std::size_t>(number - 1)], events[number]);
      const QStringList text = lines_of_pdf_page(sheets(), number);
      EXPECT_EQ(text.contains(QStringLiteral("No track is visible in this event.")),
                events[number].empty())
          << type << ' ' << number;
    }
  }
}

TEST_F(WorksheetPagesTest, TheChambersSideIsFourHundredPointsWithinTheMargins) {
  for (const auto& [paper, size] :
       {std::pair{"A4", QSizeF(595.0, 842.0)}, std::pair{"Letter", QSizeF(612.0, 792.0)}}) {
    const auto made =
        pages(words("--type pi+ --seed 1 --paper") + QStringList{QLatin1String(paper)});
    const QRectF frame = frame_of(made.at(0));
    EXPECT_NEAR(made[0].paper.width(), size.width(), 0.5);
    EXPECT_NEAR(made[0].paper.height(), size.height(), 0.5);
    EXPECT_NEAR(frame.width(), 400.0, 0.01);
    EXPECT_NEAR(frame.height(), 400.0, 0.01);
    EXPECT_NEAR(frame.center().x(), size.width() / 2.0, 0.5);
    for (const PaperLine& line : made[0].lines) {
      for (const QPointF end : {line.from, line.to}) {
        EXPECT_TRUE(QRectF(QPointF(), size).adjusted(35.9, 35.9, -35.9, -35.9).contains(end));
      }
    }
    for (const PaperWord& word : words_of_pdf(sheets())) {
      EXPECT_GE(word.corner.x(), 35.0) << word.text.toStdString();
      EXPECT_GE(word.corner.y(), 35.0) << word.text.toStdString();
    }
  }
}

/// Where a ruler's marks of some length are, points from the left edge of the paper.
std::vector<double> marks_of(const PdfPage& page, double length) {
  const double ruler = frame_of(page).top() - 8.0;
  std::vector<double> marks;
  for (const PaperLine& line : page.lines) {
    const auto [low, high] = std::minmax({line.from.y(), line.to.y()});
    if (std::fabs(line.from.x() - line.to.x()) < 1e-6 && std::fabs(high - ruler) < 0.1 &&
        std::fabs(high - low - length) < 0.1) {
      marks.push_back(line.from.x());
    }
  }
  return marks;
}

TEST_F(WorksheetPagesTest, TheRulersNumbersAreCentimetresOfTheChamber) {
  struct Case {
    const char* side_cm;
    std::size_t numbers;
  };
  for (const auto& [side_cm, numbers] :
       {Case{"500", 11}, Case{"347", 7}, Case{"1000", 11}, Case{"0.8", 9}, Case{"90000", 10}}) {
    const auto made =
        pages(words("--type pi+ --seed 1 --side") + QStringList{QLatin1String(side_cm)});
    const double points_per_cm = 400.0 / QByteArray(side_cm).toDouble();
    const QRectF frame = frame_of(made.at(0));
    const std::vector<double> marks = marks_of(made[0], 9.0);
    ASSERT_EQ(marks.size(), numbers) << side_cm;
    std::size_t found = 0;
    for (const PaperWord& word : words_of_pdf(sheets())) {
      bool is_number = false;
      const double value = word.text.toDouble(&is_number);
      const double depth = frame.top() - word.corner.y();
      if (!is_number || depth < 20.0 || depth > 35.0) {
        continue;
      }
      ASSERT_LT(found, numbers) << side_cm;
      EXPECT_NEAR(marks[found], frame.left() + value * points_per_cm, 0.02) << side_cm;
      EXPECT_LT(word.corner.x(), marks[found]) << side_cm;
      EXPECT_GT(word.corner.x(), marks[found] - 20.0) << side_cm;
      ++found;
    }
    EXPECT_EQ(found, numbers) << side_cm;
    const double part = (marks[1] - marks[0]) / 10.0;
    for (const double length : {4.0, 6.5}) {
      for (const double mark : marks_of(made[0], length)) {
        const double parts = (mark - frame.left()) / part;
        EXPECT_NEAR(parts, std::round(parts), 0.01);
        EXPECT_LE(mark, frame.right() + 0.01);
      }
    }
  }
}

/// Which way the first track on a page turns: above 0 against the hands of a clock.
double turn_of(const PdfPage& page) {
  const auto place = [&](std::size_t i) { return page.rectangles.at(i).area.center(); };
  const QPointF before = place(1) - place(0);
  const QPointF after = place(2) - place(1);
  return before.x() * after.y() - before.y() * after.x();
}

TEST_F(WorksheetPagesTest, TheFieldPointsWhereTheForceOnTheChargeSaysSo) {
  struct Case {
    const char* arguments;
    int charge;
    const char* text;
    bool out;
  };
  for (const auto& [arguments, charge, text, out] :
       {Case{"--type mu+ --field 5", 1, "Magnetic field of 5 kG, out of the paper", true},
        Case{"--type mu- --field 5", -1, "Magnetic field of 5 kG, out of the paper", true},
        Case{"--type mu+ --field -2.5", 1, "Magnetic field of 2.5 kG, into the paper", false},
        Case{"--type mu- --field -2.5", -1, "Magnetic field of 2.5 kG, into the paper", false}}) {
    const auto made = pages(words(arguments) + words("--energy 50 --seed 1"));
    EXPECT_TRUE(
        lines_of_pdf_page(sheets(), 1).join(QLatin1Char('\n')).contains(QLatin1String(text)))
        << arguments;
    // q v x B with B to the reader turns a positive charge with the hands of a clock.
    EXPECT_LT(turn_of(made.at(0)) * charge * (out ? 1 : -1), 0.0) << arguments;
    // The point of the arrow, or its feathers.
    EXPECT_EQ(made[0].other_fills, out ? 1 : 0) << arguments;
    const auto slanted = std::ranges::count_if(made[0].lines, [](const PaperLine& line) {
      return std::fabs(line.from.x() - line.to.x()) > 1.0 &&
             std::fabs(line.from.y() - line.to.y()) > 1.0;
    });
    EXPECT_EQ(slanted, out ? 0 : 2) << arguments;
  }
  static_cast<void>(pages(words("--type mu+ --field 0 --energy 50 --seed 1")));
  EXPECT_TRUE(lines_of_pdf_page(sheets(), 1).contains(QStringLiteral("No magnetic field")));
}

TEST_F(WorksheetPagesTest, TheTextsTellNumberSeedAndValues) {
  ASSERT_EQ(pages(words("--type lambda --field 2 --side 350 --energy 800 --seed 4000000000 "
                        "--events 3"))
                .size(),
            3U);
  EXPECT_EQ(title_of_pdf(sheets()), QStringLiteral("Worksheets"));
  for (int number = 1; number <= 3; ++number) {
    const QString text = lines_of_pdf_page(sheets(), number).join(QLatin1Char('\n'));
    for (const QString& wanted :
         {QStringLiteral("Worksheet %1 Name").arg(number),
          QStringLiteral("Incoming particle: Lambda Seed 4000000000, event %1").arg(number),
          QStringLiteral("B = 2 kG, T = 800 MeV, L = 3.5 m"),
          QStringLiteral("1 mm on the paper is 2.48 cm."), QStringLiteral("Radius"),
          QStringLiteral("Momentum"), QStringLiteral("Angle at its vertex"),
          QStringLiteral("Length"), QStringLiteral("Notes")}) {
      EXPECT_TRUE(text.contains(wanted)) << wanted.toStdString() << "\nin\n" << text.toStdString();
    }
    EXPECT_TRUE(text.contains(QStringLiteral("\n1\n2\n3\n4\nNotes"))) << "room for four tracks";
  }
}

}  // namespace

}  // namespace velquon::test
