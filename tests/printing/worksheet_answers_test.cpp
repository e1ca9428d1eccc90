// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The answer key's numbers against what happened in the events.

#include <algorithm>
#include <cmath>
#include <complex>
#include <string_view>

#include "tests/support/documents/worksheet_run.h"

namespace velquon::test {

namespace {

class WorksheetAnswersTest : public WorksheetTest {
 protected:
  /// Makes worksheets with answers.
  /// \return lines of the key's table, each as its words
  [[nodiscard]] std::vector<QStringList> key(const QStringList& options) const {
    static_cast<void>(pages(options + QStringList{QStringLiteral("--answers"), answers()}));
    key_pages_ = read_pdf_pages(read(answers())).size();
    std::vector<QStringList> lines;
    for (std::size_t page = 1; page <= key_pages_; ++page) {
      for (const QString& line : lines_of_pdf_page(answers(), static_cast<int>(page))) {
        bool is_answer = false;
        static_cast<void>(line.section(QLatin1Char(' '), 0, 0).toInt(&is_answer));
        if (is_answer) {
          lines.push_back(line.split(QLatin1Char(' ')));
        }
      }
    }
    return lines;
  }
  [[nodiscard]] std::size_t keyPages() const { return key_pages_; }

 private:
  mutable std::size_t key_pages_ = 0;
};

QString symbol_of(const QString& pdg) {
  static const std::map<QString, QString> symbols{
      {QStringLiteral("11"), QStringLiteral("e⁻")},  {QStringLiteral("-11"), QStringLiteral("e⁺")},
      {QStringLiteral("13"), QStringLiteral("μ⁻")},  {QStringLiteral("-13"), QStringLiteral("μ⁺")},
      {QStringLiteral("211"), QStringLiteral("π⁺")}, {QStringLiteral("-211"), QStringLiteral("π⁻")},
      {QStringLiteral("111"), QStringLiteral("π⁰")}, {QStringLiteral("22"), QStringLiteral("γ")},
      {QStringLiteral("3122"), QStringLiteral("Λ")}, {QStringLiteral("2212"), QStringLiteral("p")}};
  return symbols.at(pdg);
}

/// Half a unit of the fourth digit.
double rounding_of(double value) {
  return value * 5.01e-4 + 1e-9;
}

/// Columns of the table of particles that `velquon-events` prints.
enum AnswerColumn {
  event,
  particle,
  pdg,
  parent,
  fate,
  code,
  first_point,
  points,
  x,
  y,
  z,
  px,
  py,
  pz
};

double number(const QStringList& row, int column) {
  return row[column].toDouble();
}

enum class Space { solid, paper };

/// Angle between two particles' momenta, degrees.
double angle_between(const QStringList& a, const QStringList& b, Space space) {
  const auto product = [space](const QStringList& c, const QStringList& d) {
    const double across = number(c, px) * number(d, px) + number(c, py) * number(d, py);
    return space == Space::paper ? across : across + number(c, pz) * number(d, pz);
  };
  const double cosine = product(a, b) / std::sqrt(product(a, a) * product(b, b));
  return std::acos(std::clamp(cosine, -1.0, 1.0)) * 180.0 / std::acos(-1.0);
}

/// Radius of the circle through three places of a track, cm.
double radius_through(const EventPlaces& places, std::size_t first, std::size_t count,
                      double side_cm) {
  const auto place = [&](std::size_t i) {
    return std::complex(places.at(i)[0], places.at(i)[1]) * (side_cm / 800.0);
  };
  const auto a = place(first);
  const auto b = place(first + count / 2) - a;
  const auto c = place(first + count - 1) - a;
  return std::abs(b) * std::abs(c) * std::abs(c - b) / (2.0 * std::fabs((std::conj(b) * c).imag()));
}

/// Expects what a line of the key tells of a particle's parent.
void expect_parent(const QStringList& answer, const QStringList& row,
                   const std::vector<QStringList>& rows) {
  if (row[parent] == QStringLiteral("-1")) {
    EXPECT_EQ(answer[2], QStringLiteral("–"));
    EXPECT_EQ(answer[8], QStringLiteral("–"));
    return;
  }
  const QStringList& parent_row = *std::ranges::find_if(rows, [&](const QStringList& other) {
    return other[event] == row[event] && other[particle] == row[parent];
  });
  EXPECT_EQ(answer[2], symbol_of(parent_row[pdg]));
  if (parent_row[points].isEmpty()) {
    // A straight parent keeps its direction to the vertex.
    EXPECT_NEAR(answer[8].toDouble(), angle_between(row, parent_row, Space::solid), 0.051);
    EXPECT_NEAR(answer[9].toDouble(), angle_between(row, parent_row, Space::paper), 0.051);
  }
}

TEST_F(WorksheetAnswersTest, EachTrackHasALineWithTheNumbersOfTheRecord) {
  for (const char* const type : {"pi-", "pi+", "pi0", "mu-", "mu+", "lambda"}) {
    const QStringList options =
        words("--field 6 --side 500 --energy 90 --seed 2 --events 25 --type") +
        QStringList{QLatin1String(type)};
    const auto lines = key(options);
    const auto rows = rows_of_events(options + words("--format particles"));
    auto places = places_of_events(options);
    std::size_t line = 0;
    std::size_t circles = 0;
    for (const QStringList& row : rows) {
      if (row[points].isEmpty()) {
        continue;
      }
      while (line < lines.size() && lines[line].size() < 11) {
        ++line;  // a worksheet without a track
      }
      ASSERT_LT(line, lines.size()) << type;
      const QStringList& answer = lines[line++];
      EXPECT_EQ(answer[0], row[event]);
      EXPECT_EQ(answer[1], symbol_of(row[pdg]));
      expect_parent(answer, row, rows);
      const double p = std::hypot(number(row, px), number(row, py), number(row, pz));
      const double pt = std::hypot(number(row, px), number(row, py));
      EXPECT_NEAR(answer[3].toDouble(), p, rounding_of(p));
      EXPECT_NEAR(answer[4].toDouble(), pt, rounding_of(pt));
      EXPECT_NEAR(answer[5].toDouble(), pt / 1.8, rounding_of(pt / 1.8));
      const double length = number(row, points) * 12.5;
      EXPECT_NEAR(answer[6].toDouble(), length, rounding_of(length));
      EXPECT_NEAR(answer[7].toDouble(), length * pt / p, rounding_of(length));
      EXPECT_EQ(answer[10], row[fate]);
      const QString kind = QLatin1String(type);
      const bool has_one_track_after_the_other =
          kind != QStringLiteral("pi0") && kind != QStringLiteral("lambda");
      const auto count = static_cast<std::size_t>(number(row, points));
      if (has_one_track_after_the_other && count >= 5 && pt / 1.8 > 13.0) {
        const double radius =
            radius_through(places[row[event].toInt()],
                           static_cast<std::size_t>(number(row, first_point)), count, 500.0);
        EXPECT_NEAR(answer[5].toDouble(), radius, rounding_of(radius) + radius * 1e-6);
        ++circles;
      }
    }
    for (; line < lines.size(); ++line) {
      EXPECT_LT(lines[line].size(), 11) << "no track is left over";
    }
    EXPECT_EQ(circles > 10, std::string_view(type) != "pi0" && std::string_view(type) != "lambda")
        << type;
  }
}

TEST_F(WorksheetAnswersTest, AWorksheetWithoutATrackIsNamedInItsPlace) {
  const QStringList options = words("--type lambda --energy 900 --side 200 --seed 4 --events 60");
  const auto lines = key(options);
  auto places = places_of_events(options);
  ASSERT_LT(places.size(), 60U);
  int last = 0;
  for (const QStringList& line : lines) {
    const int sheet = line[0].toInt();
    EXPECT_TRUE(sheet == last || sheet == last + 1) << sheet;
    last = sheet;
    EXPECT_EQ(line.mid(1).join(QLatin1Char(' ')) == QStringLiteral("no track is visible"),
              places[sheet].empty())
        << sheet;
  }
  EXPECT_EQ(last, 60);
  EXPECT_GT(keyPages(), 1U);
  for (std::size_t page = 1; page <= keyPages(); ++page) {
    const QString text =
        lines_of_pdf_page(answers(), static_cast<int>(page)).join(QLatin1Char('\n'));
    EXPECT_TRUE(text.contains(QStringLiteral("Page %1 of %2").arg(page).arg(keyPages())));
    EXPECT_TRUE(text.contains(QStringLiteral("Seed 4, events 1 to 60")));
    EXPECT_TRUE(text.contains(QStringLiteral("Radius")));
  }
}

TEST_F(WorksheetAnswersTest, StraightTracksAreCalledSo) {
  for (const QStringList& line :
       key(words("--type mu+ --field 0 --energy 90 --seed 1 --events 3"))) {
    EXPECT_EQ(line.at(5), QStringLiteral("straight"));
  }
}

TEST_F(WorksheetAnswersTest, NothingOfAPageStandsBeyondItsMargins) {
  static_cast<void>(key(words("--type lambda --energy 90000 --field 0.001 --seed 1 --events 60")));
  for (const PaperWord& word : words_of_pdf(answers())) {
    EXPECT_GE(word.corner.x(), 35.0) << word.text.toStdString();
    EXPECT_GE(word.corner.y(), 35.0) << word.text.toStdString();
  }
  const QImage page = picture_of_pdf(answers());
  EXPECT_EQ(ink_in(page, QRectF(595.0 - 35.0, 0.0, 34.0, 842.0)), 0);
}

}  // namespace

}  // namespace velquon::test
