// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pages of worksheets and their answers in another language.

#include <gtest/gtest.h>

#include <QFile>
#include <QRectF>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <vector>

#include "printing/worksheets.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/windows/pseudo_language.h"

namespace velquon::test {

namespace {

/// A word on a page and the place that it takes, points from the upper left corner.
struct PrintedWord {
  QString text;
  QRectF box;
};

/// The words of a PDF file, page by page.
std::vector<std::vector<PrintedWord>> printed_words(const QString& path) {
  const QString listing =
      run_program("pdftotext", {QStringLiteral("-bbox"), path, QStringLiteral("-")}).output;
  static const QRegularExpression word(
      QStringLiteral("<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">(.*)</word>"));
  std::vector<std::vector<PrintedWord>> pages;
  for (const QString& line : listing.split(QLatin1Char('\n'))) {
    if (line.contains(QLatin1String("<page "))) {
      pages.emplace_back();
    } else if (const QRegularExpressionMatch match = word.match(line); match.hasMatch()) {
      const QPointF from(match.captured(1).toDouble(), match.captured(2).toDouble());
      const QPointF to(match.captured(3).toDouble(), match.captured(4).toDouble());
      pages.back().push_back({match.captured(5), QRectF(from, to)});
    }
  }
  return pages;
}

/// Expects words to lie between the side margins of an A4 page and none over another.
void expect_room(const std::vector<PrintedWord>& words) {
  constexpr QRectF between_margins(35.0, 0.0, 595.0 - 70.0, 842.0);
  constexpr QMarginsF touching(0.5, 3.0, 0.5, 3.0);
  for (std::size_t i = 0; i < words.size(); ++i) {
    EXPECT_TRUE(between_margins.contains(words[i].box)) << words[i].text.toStdString();
    for (std::size_t k = 0; k < i; ++k) {
      const QRectF core = words[i].box.marginsRemoved(touching);
      EXPECT_FALSE(core.intersects(words[k].box.marginsRemoved(touching)))
          << words[k].text.toStdString() << " and " << words[i].text.toStdString();
    }
  }
}

/// Expects each text of a page to be translated. One that is longer than its place lacks its end.
void expect_translated(const std::vector<PrintedWord>& words) {
  QString all;
  for (const PrintedWord& word : words) {
    all += word.text + QLatin1Char(' ');
  }
  const QStringList texts = all.split(QChar(u'«'));
  EXPECT_GT(texts.size(), 5);
  for (qsizetype i = 0; i < texts.size(); ++i) {
    const QString behind =
        i == 0 || texts[i].contains(QChar(u'»')) ? texts[i].section(QChar(u'»'), -1) : QString();
    EXPECT_EQ(untranslated_part(behind).toStdString(), "");
  }
}

class WorksheetLanguagesTest : public ::testing::TestWithParam<const char*> {};

TEST_P(WorksheetLanguagesTest, EveryTextIsTranslatedAndHasRoom) {
  const TestedLanguage language{QLatin1String(GetParam())};
  const WorksheetOrder order{.type = &event_types()[5], .values = {}, .seed = 3, .events = 4};
  const auto documents = make_worksheets(order, [](int) { return true; });
  const QTemporaryDir folder;
  for (const auto& [document, count] :
       {std::pair(documents->sheets, 4U), std::pair(documents->answers, 1U)}) {
    QFile file(folder.filePath(QStringLiteral("pages.pdf")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(document) == document.size());
    file.close();
    const auto pages = printed_words(file.fileName());
    EXPECT_EQ(pages.size(), count);
    for (const auto& words : pages) {
      language.isPseudo() ? expect_translated(words) : expect_room(words);
    }
    if (language.isPseudo()) {
      EXPECT_EQ(untranslated_part(title_of_pdf(file.fileName())).toStdString(), "");
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, WorksheetLanguagesTest,
                         ::testing::Values("pseudo", "de", "es", "fr", "it"));

}  // namespace

}  // namespace velquon::test
