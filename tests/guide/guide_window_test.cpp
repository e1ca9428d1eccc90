// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "guide/guide_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <QTreeWidget>
#include <QWheelEvent>

#include "guide/guide_browser.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class GuideWindowTest : public testing::Test {
 protected:
  void SetUp() override {
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(wait_until_active(&window_));
  }

  GuideBrowser& browser() { return *window_.findChild<GuideBrowser*>(); }
  QTreeWidget& contents() { return *window_.findChild<QTreeWidget*>(); }
  QLineEdit& words() { return *window_.findChild<QLineEdit*>(); }
  /// What the window tells of the search.
  QString found() {
    QString text;
    const auto labels = window_.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
      text += label->text();
    }
    return text.trimmed();
  }
  [[nodiscard]] QString selected() { return browser().textCursor().selectedText(); }
  [[nodiscard]] QString page() { return browser().source().fileName(); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void find(const QString& text) {
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(words().hasFocus());
    QTest::keyClicks(&words(), text);
  }
  /// Top of the block with a text in the part of the page that is seen, pixels.
  int topOf(const QString& text) {
    QTextBlock block = browser().document()->begin();
    while (block.isValid() && block.text() != text) {
      block = block.next();
    }
    return browser().cursorRect(QTextCursor(block)).top();
  }

  /// Every place of a word on the page, of which there are some, is marked, and nothing else is.
  void expectMarks(const QString& word) {
    const auto marks = browser().extraSelections();
    EXPECT_GT(marks.size(), 2);
    EXPECT_EQ(marks.size(), browser().toPlainText().count(word, Qt::CaseInsensitive));
    for (const QTextEdit::ExtraSelection& mark : marks) {
      EXPECT_EQ(mark.cursor.selectedText().toLower(), word);
    }
  }

  GuideWindow window_;
};

}  // namespace

TEST_F(GuideWindowTest, TheContentsListEachPageWithItsHeadings) {
  ASSERT_EQ(contents().topLevelItemCount(), 8);
  QStringList titles;
  for (int page = 0; page < 8; ++page) {
    titles << contents().topLevelItem(page)->text(0);
  }
  EXPECT_EQ(titles.first(), QStringLiteral("Velquon Guide"));
  EXPECT_TRUE(titles.contains(QStringLiteral("3. The kink of a pion")));
  EXPECT_EQ(titles.last(), QStringLiteral("For the teacher"));
  EXPECT_TRUE(contents().topLevelItem(0)->isExpanded());
  EXPECT_EQ(contents().topLevelItem(0)->child(0)->text(0), QStringLiteral("A first event"));
}

TEST_F(GuideWindowTest, AHeadingChosenInTheContentsIsGoneTo) {
  QTreeWidgetItem* const item = contents().topLevelItem(0)->child(3);
  QTest::mouseClick(contents().viewport(), Qt::LeftButton, {},
                    contents().visualItemRect(item).center());
  constexpr int near_the_top = 12;
  EXPECT_NEAR(topOf(item->text(0)), 0, near_the_top);

  contents().setFocus();
  contents().setCurrentItem(contents().topLevelItem(1));
  press(Qt::Key_Down);
  EXPECT_EQ(page(), QStringLiteral("curvature.md"));
}

TEST_F(GuideWindowTest, TheContentsFollowALinkAndBackLeadsBack) {
  browser().setSource(QUrl(QStringLiteral("qrc:/docs/laboratory/kink.md")));
  EXPECT_EQ(contents().currentItem(), contents().topLevelItem(4));
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page(), QStringLiteral("guide.md"));
  EXPECT_EQ(contents().currentItem(), contents().topLevelItem(0));
  press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(page(), QStringLiteral("kink.md"));
}

TEST_F(GuideWindowTest, ALinkToAPlaceInAPageIsOneToThePage) {
  find(QStringLiteral("pion"));
  browser().setSource(QUrl(QStringLiteral("qrc:/docs/laboratory/kink.md#the-task")));
  EXPECT_EQ(page(), QStringLiteral("kink.md"));
  EXPECT_EQ(contents().currentItem(), contents().topLevelItem(4));
  expectMarks(QStringLiteral("pion"));
  press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(page(), QStringLiteral("guide.md"));
  expectMarks(QStringLiteral("pion"));
}

TEST_F(GuideWindowTest, WordsAreFoundOnAllPages) {
  find(QStringLiteral("kink"));
  const QString first = found();
  EXPECT_TRUE(first.startsWith(QStringLiteral("1 of "))) << first.toStdString();
  EXPECT_EQ(selected().toLower(), QStringLiteral("kink"));
  const int all = first.section(QLatin1Char(' '), 2).toInt();
  ASSERT_GT(all, 10);
  QSet<QString> pages;
  for (int hit = 0; hit < all; ++hit) {
    pages.insert(page());
    EXPECT_EQ(selected().toLower(), QStringLiteral("kink")) << hit;
    press(hit % 2 == 0 ? Qt::Key_Return : Qt::Key_F3);
  }
  EXPECT_TRUE(pages.contains(QStringLiteral("kink.md")));
  EXPECT_TRUE(pages.contains(QStringLiteral("teacher.md")));
  EXPECT_EQ(found(), first);
  press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(found(), QStringLiteral("%1 of %1").arg(all));
}

TEST_F(GuideWindowTest, EveryPlaceOnThePageIsMarked) {
  find(QStringLiteral("tape"));
  expectMarks(QStringLiteral("tape"));
  words().clear();
  EXPECT_TRUE(browser().extraSelections().isEmpty());
}

TEST_F(GuideWindowTest, TellsWhenNothingIsFound) {
  find(QStringLiteral("quark"));
  EXPECT_EQ(found(), QStringLiteral("not found"));
  EXPECT_TRUE(selected().isEmpty());
}

TEST_F(GuideWindowTest, EscapeEndsTheSearchAndThenClosesTheWindow) {
  find(QStringLiteral("kink"));
  press(Qt::Key_Escape);
  EXPECT_TRUE(window_.isVisible());
  EXPECT_TRUE(words().text().isEmpty());
  press(Qt::Key_Escape);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(GuideWindowTest, TextGrowsAndShrinksByKeysAndByTheWheel) {
  const double usual = browser().font().pointSizeF();
  press(Qt::Key_Equal, Qt::ControlModifier);
  press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(browser().font().pointSizeF(), usual + 2.0);
  press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(browser().font().pointSizeF(), usual + 1.0);
  const auto turn_wheel = [&](QPoint angle) {
    const QPoint middle = browser().viewport()->rect().center();
    QWheelEvent turn(middle, browser().viewport()->mapToGlobal(middle), {}, angle, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(browser().viewport(), &turn);
  };
  turn_wheel({0, 80});
  turn_wheel({120, 0});
  EXPECT_DOUBLE_EQ(browser().font().pointSizeF(), usual + 1.0);
  turn_wheel({0, 40});
  EXPECT_DOUBLE_EQ(browser().font().pointSizeF(), usual + 2.0);
  press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(browser().font().pointSizeF(), usual);
  for (int step = 0; step < 30; ++step) {
    press(Qt::Key_Minus, Qt::ControlModifier);
  }
  EXPECT_GE(browser().font().pointSizeF(), usual - 3.0);
}

TEST_F(GuideWindowTest, TablesHaveLinesAndAMarkedHead) {
  int tables = 0;
  const auto frames = browser().document()->rootFrame()->childFrames();
  for (QTextFrame* const frame : frames) {
    const auto* const table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) {
      continue;
    }
    ++tables;
    EXPECT_EQ(table->format().border(), 1.0);
    EXPECT_TRUE(table->format().borderCollapse());
    EXPECT_GE(table->format().cellPadding(), 4.0);
    EXPECT_NE(table->cellAt(0, 0).format().background(), table->cellAt(1, 0).format().background());
  }
  EXPECT_GT(tables, 0);
}

TEST_F(GuideWindowTest, PicturesAreNoWiderThanThePage) {
  browser().setSource(QUrl(QStringLiteral("qrc:/docs/laboratory/pairs.md")));
  for (const int width : {500, 1100}) {
    window_.resize(width, 700);
    ASSERT_TRUE(wait_until([&] { return window_.width() == width; }));
    EXPECT_EQ(browser().horizontalScrollBar()->maximum(), 0) << width;
  }
}

}  // namespace velquon::test
