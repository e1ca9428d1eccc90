// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The pages of the guide in its window.

#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class GuidePagesTest : public ApplicationFixture {
 protected:
  QTextBrowser* openGuide() {
    QTest::keyClick(&chamberWindow(), Qt::Key_F1);
    QTextBrowser* browser = nullptr;
    EXPECT_TRUE(wait_until([&] {
      QWidget* const window = QApplication::activeWindow();
      browser = window != nullptr ? window->findChild<QTextBrowser*>() : nullptr;
      return browser != nullptr;
    }));
    return browser;
  }
};

QString heading_of(const QTextBrowser& browser) {
  return browser.document()->firstBlock().text();
}

/// Clicks the link with a text, as it stands in the window.
void click_link(QTextBrowser& browser, const QString& text) {
  browser.moveCursor(QTextCursor::Start);
  ASSERT_TRUE(browser.find(text));
  browser.ensureCursorVisible();
  QTextCursor cursor = browser.textCursor();
  cursor.setPosition(cursor.selectionStart() + 1);
  QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, browser.cursorRect(cursor).center());
}

}  // namespace

TEST_F(GuidePagesTest, LinksLeadToTheLaboratoryAndToEachExerciseAndBack) {
  QTextBrowser* const browser = openGuide();
  ASSERT_NE(browser, nullptr);
  EXPECT_EQ(heading_of(*browser), QStringLiteral("Velquon Guide"));
  struct Step {
    const char* link;
    const char* heading;
  };
  for (const auto& [link, heading] :
       {Step{"momentum of a muon", "1. The momentum of a muon"},
        Step{"Electrons and positrons", "2. Electrons and positrons"},
        Step{"kink of a pion", "3. The kink of a pion"},
        Step{"Thirty decay lengths", "4. Thirty decay lengths"},
        Step{"The Lambda", "5. The Lambda"}, Step{"For the teacher", "For the teacher"}}) {
    click_link(*browser, QStringLiteral("laboratory"));
    EXPECT_EQ(heading_of(*browser), QStringLiteral("Laboratory"));
    click_link(*browser, QLatin1String(link));
    EXPECT_EQ(heading_of(*browser), QLatin1String(heading));
    browser->home();
  }
}

TEST_F(GuidePagesTest, PagesShowTheirPictures) {
  QTextBrowser* const browser = openGuide();
  ASSERT_NE(browser, nullptr);
  struct Shown {
    const char* page;
    const char* picture;
  };
  for (const auto& [page, picture] :
       {Shown{"curvature", "curvature"}, Shown{"pairs", "pairs"}, Shown{"pairs", "chamber"},
        Shown{"kink", "kink"}, Shown{"lambda", "lambda"}}) {
    const QString name = QStringLiteral("../images/laboratory/%1.png").arg(QLatin1String(picture));
    browser->setSource(QUrl(QStringLiteral("qrc:/docs/laboratory/%1.md").arg(QLatin1String(page))));
    EXPECT_TRUE(browser->toMarkdown().contains(name)) << picture;
    const QVariant found = browser->document()->resource(QTextDocument::ImageResource, QUrl(name));
    EXPECT_FALSE(found.isNull()) << picture;
  }
}

}  // namespace velquon::test
