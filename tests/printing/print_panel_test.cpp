// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

#include "printing/page_preview.h"
#include "tests/printing/print_panel_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/documents/printing.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class PrintPanelTest : public PrintPanelFixture {};

bool has_gray_near(const QImage& picture, QPoint place) {
  for (int x = place.x() - 2; x <= place.x() + 2; ++x) {
    const int light = qGray(picture.pixel(x, place.y()));
    if (light > 60 && light < 230) {
      return true;
    }
  }
  return false;
}

bool has_proportions(const QImage& page, const Paper& paper) {
  return !page.isNull() && std::abs(static_cast<double>(page.height()) / page.width() -
                                    paper.size.height() / paper.size.width()) < 0.01;
}

/// Whether what lies around the middle is white paper.
bool is_empty_in_the_middle(const QImage& picture) {
  const int reach = picture.width() / 4;
  const QPoint middle = picture.rect().center();
  const QRect part(middle - QPoint(reach, reach), middle + QPoint(reach, reach));
  QImage white(part.size(), picture.format());
  white.fill(Qt::white);
  return picture.copy(part) == white;
}

/// The frame of the projection is gray; the chamber's page has one colour.
bool shows_projection(const PdfPage& page) {
  return page.lines.size() == 4 + 3;
}

TEST_F(PrintPanelTest, PrintsTheViewWhoseWindowHasTheKeys) {
  const PdfPage chamber_page = savedPage(chamberWindow());
  EXPECT_FALSE(shows_projection(chamber_page));
  EXPECT_EQ(chamber_page.rectangles.size(), 20U);
  EXPECT_EQ(line_at(words_of_pdf(dialogs().answer), a4, 675.0),
            QStringLiteral("Particle Chamber: event.cwd"));
  const PdfPage projection_page = savedPage(projectorWindow());
  EXPECT_TRUE(shows_projection(projection_page));
  EXPECT_EQ(projection_page.rectangles.size(), 20U);
  EXPECT_EQ(line_at(words_of_pdf(dialogs().answer), a4, 675.0),
            QStringLiteral("Projector: event.cwd"));
}

TEST_F(PrintPanelTest, TakesTheKeysAndWithThemThePrintItem) {
  onPanel(chamberWindow(), [this](QWidget& panel) {
    EXPECT_FALSE(item("print_item").isEnabled());
    EXPECT_EQ(controller().printView(), nullptr);
    cancel(panel);
  });
  EXPECT_TRUE(wait_until([this] { return item("print_item").isEnabled(); }));
}

TEST_F(PrintPanelTest, OffersAPdfFileUnderTheNameOfTheEvent) {
  savedPage(chamberWindow());
  EXPECT_EQ(dialogs().questions,
            (std::vector{RecordingDialogs::Question{
                QStringLiteral("Save as PDF"), QStringLiteral("PDF files (*.pdf)"),
                QStringLiteral("event"), QStringLiteral("pdf")}}));
  EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(PrintPanelTest, EndsWithThePageThatIsSaved) {
  dialogs().answer = path(QStringLiteral("page.pdf"));
  onPanel(chamberWindow(), [](QWidget& panel) {
    click(panel, "pdf_button");
    EXPECT_FALSE(panel.isVisible());
  });
  EXPECT_TRUE(read(dialogs().answer).startsWith("%PDF-"));
}

TEST_F(PrintPanelTest, StaysWhenTheUserGivesUpTheFile) {
  dialogs().answer.clear();
  onPanel(chamberWindow(), [](QWidget& panel) {
    click(panel, "pdf_button");
    EXPECT_TRUE(panel.isVisible());
    cancel(panel);
  });
  EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(PrintPanelTest, StaysWhenTheFileCannotBeWritten) {
  dialogs().answer = path(QStringLiteral("missing/page.pdf"));
  onPanel(chamberWindow(), [](QWidget& panel) {
    click(panel, "pdf_button");
    EXPECT_TRUE(panel.isVisible());
    cancel(panel);
  });
  const RecordingDialogs::Alert not_saved{
      QStringLiteral("Not saved"),
      QStringLiteral("Velquon can't write the file %1: No such file or directory.")
          .arg(dialogs().answer)};
  EXPECT_EQ(dialogs().alerts, std::vector{not_saved});
}

TEST_F(PrintPanelTest, PrintsOnThePaperChosen) {
  struct Choice {
    const char* text;
    const Paper& paper;
  };
  for (const Choice& choice : {Choice{"Letter", letter}, Choice{"A4", a4}}) {
    dialogs().answer = path(QStringLiteral("page.pdf"));
    onPanel(projectorWindow(), [&](QWidget& panel) {
      auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
      papers.setCurrentIndex(papers.findText(QLatin1String(choice.text), Qt::MatchContains));
      EXPECT_TRUE(papers.currentText().contains(QLatin1String(choice.text)));
      click(panel, "pdf_button");
    });
    const PdfPage page = read_pdf(read(dialogs().answer));
    EXPECT_EQ(page.paper, choice.paper.size);
    EXPECT_EQ(line_at(words_of_pdf(dialogs().answer), choice.paper, 675.0),
              QStringLiteral("Projector: event.cwd"));
  }
}

TEST_F(PrintPanelTest, KeepsThePaperFromOnePrintToTheNext) {
  for (const char* const paper : {"Letter", "A4"}) {
    onPanel(chamberWindow(), [&](QWidget& panel) {
      auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
      papers.setCurrentIndex(papers.findText(QLatin1String(paper), Qt::MatchContains));
      cancel(panel);
    });
    onPanel(projectorWindow(), [&](QWidget& panel) {
      const auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
      EXPECT_TRUE(papers.currentText().contains(QLatin1String(paper)));
      cancel(panel);
    });
  }
}

TEST_F(PrintPanelTest, FindsTheTurntableAtRest) {
  activate(chamberWindow());
  choose("rotate_item");
  ASSERT_TRUE(wait_until([&] { return chamber().rotation_steps() > 5; }));
  bool turned_at_once = true;
  onPanel(chamberWindow(), [&](QWidget& panel) {
    turned_at_once = chamber().is_rotating();
    cancel(panel);
  });
  EXPECT_FALSE(turned_at_once);
  EXPECT_FALSE(chamber().is_rotating());
}

TEST_F(PrintPanelTest, TitlesAPdfFileAfterTheWindow) {
  savedPage(projectorWindow());
  EXPECT_EQ(title_of_pdf(dialogs().answer), QStringLiteral("Projector: event.cwd"));
}

TEST_F(PrintPanelTest, HasTheFocusOnItsDefaultButton) {
  onPanel(chamberWindow(), [](QWidget& panel) {
    const auto buttons = panel.findChildren<QPushButton*>();
    const auto usual = std::ranges::find_if(buttons, &QPushButton::isDefault);
    ASSERT_NE(usual, buttons.end());
    EXPECT_TRUE((*usual)->isEnabled());
    EXPECT_TRUE((*usual)->hasFocus());
    EXPECT_NE((*usual)->text().remove(QLatin1Char('&')), QStringLiteral("Cancel"));
    cancel(panel);
  });
}

TEST_F(PrintPanelTest, CancelWritesNothingAndLeavesTheScreen) {
  const Shown before = shown();
  onPanel(chamberWindow(), [](QWidget& panel) {
    const auto* const buttons = panel.findChild<QDialogButtonBox*>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
    EXPECT_FALSE(panel.isVisible());
  });
  EXPECT_TRUE(dialogs().questions.empty());
  EXPECT_EQ(differences(before, shown()), "");
}

TEST_F(PrintPanelTest, ShowsThePageBeforeItIsPrinted) {
  onPanel(projectorWindow(), [](QWidget& panel) {
    // What becomes known of printers can change the panel's layout.
    ASSERT_TRUE(wait_until([&] { return state_of(panel) != looking; }));
    auto& preview = *panel.findChild<PagePreview*>();
    auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
    for (const Paper& paper : {letter, a4}) {
      papers.setCurrentIndex(papers.findData(paper.id));
      ASSERT_TRUE(wait_until([&] { return has_proportions(preview.picture(), paper); }));
      const QImage seen = preview.grab().toImage().convertToFormat(QImage::Format_RGB32);
      const QImage& page = preview.picture();
      const double scale = page.width() / paper.size.width();
      EXPECT_GT(scale, 0.5);
      EXPECT_NEAR(page.height(), scale * paper.size.height(), 1.0);
      // The left side of the frame, and white paper beside it.
      const int x = qRound(scale * (paper.origin.x() + 55.0));
      const int y = qRound(scale * (paper.size.height() - paper.origin.y() - 310.5));
      EXPECT_TRUE(has_gray_near(page, {x, y}));
      EXPECT_EQ(page.pixel(x - 8, y), qRgb(255, 255, 255));
      // It is what the panel shows.
      const QPoint corner((seen.width() - page.width()) / 2, (seen.height() - page.height()) / 2);
      EXPECT_TRUE(has_gray_near(seen, corner + QPoint(x, y)));
    }
    cancel(panel);
  });
}

TEST_F(PrintPanelTest, ItsPaperIsEmptyUntilThePageIsDrawnByTheEventLoop) {
  onPanel(projectorWindow(), [](QWidget& panel) {
    // What becomes known of printers can change the panel's layout.
    ASSERT_TRUE(wait_until([&] { return state_of(panel) != looking; }));
    auto& preview = *panel.findChild<PagePreview*>();
    auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
    const auto seen = [&] {
      return preview.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    for (const Paper& paper : {letter, a4}) {
      papers.setCurrentIndex(papers.findData(paper.id));
      preview.setPaper(paper.size);
      EXPECT_TRUE(is_empty_in_the_middle(seen()));
      EXPECT_TRUE(wait_until([&] { return !is_empty_in_the_middle(seen()); }));
    }
    panel.resize(panel.size() + QSize(150, 150));
    EXPECT_FALSE(is_empty_in_the_middle(seen()));
    cancel(panel);
  });
}

TEST_F(PrintPanelTest, ThePageIsDrawnAnewForAnotherPaperOrSizeAndOnlyThen) {
  onPanel(projectorWindow(), [](QWidget& panel) {
    // What becomes known of printers can change the panel's layout.
    ASSERT_TRUE(wait_until([&] { return state_of(panel) != looking; }));
    const auto& preview = *panel.findChild<PagePreview*>();
    auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
    for (const Paper& paper : {letter, a4}) {
      papers.setCurrentIndex(papers.findData(paper.id));
      EXPECT_TRUE(wait_until([&] { return has_proportions(preview.picture(), paper); }));
    }
    const QSize before = preview.picture().size();
    panel.resize(panel.size() + QSize(150, 150));
    EXPECT_TRUE(wait_until([&] { return preview.picture().height() > before.height() + 50; }));
    run_loop_for(100);
    const qint64 drawn = preview.picture().cacheKey();
    panel.repaint();
    run_loop_for(100);
    EXPECT_EQ(preview.picture().cacheKey(), drawn);
    cancel(panel);
  });
}

}  // namespace

}  // namespace velquon::test
