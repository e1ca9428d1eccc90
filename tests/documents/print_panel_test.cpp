#include "app/print_panel.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "gui/support/waiting.h"
#include "support/documents_fixture.h"
#include "support/event_bytes.h"
#include "support/modal.h"
#include "support/other_program.h"
#include "support/printing.h"

namespace velquon::test {

namespace {

class PrintPanelTest : public DocumentsFixture {
 protected:
  void SetUp() override {
    DocumentsFixture::SetUp();
    ASSERT_TRUE(
        documents().readAndDisplayFile(write(QStringLiteral("event.cwd"), event_file(spiral(20)))));
  }

  /// Presses Ctrl+P in a window and acts on the panel that comes up.
  void onPanel(QWidget& window, const std::function<void(QWidget&)>& act) {
    activate(window);
    EXPECT_TRUE(with_dialogs(
        [&] { QTest::keyClick(window.windowHandle(), Qt::Key_P, Qt::ControlModifier); },
        {{"velquon::PrintPanel", act}}));
  }

  static void click(QWidget& panel, const char* button) {
    QTest::mouseClick(panel.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
  }

  static void cancel(QWidget& panel) { QTest::keyClick(&panel, Qt::Key_Escape); }

  /// What the panel saves as a PDF file for a window.
  PdfPage savedPage(QWidget& window) {
    dialogs().answer = path(QStringLiteral("page.pdf"));
    onPanel(window, [](QWidget& panel) { click(panel, "pdf_button"); });
    return read_pdf(read(dialogs().answer));
  }
};

/// The frame of the projection is gray; the chamber's page has one colour.
bool shows_projection(const PdfPage& page) {
  return page.lines.size() == 4;
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
      QSignalSpy painted(panel.findChild<QPrintPreviewWidget*>(),
                         &QPrintPreviewWidget::paintRequested);
      papers.setCurrentIndex(papers.findText(QLatin1String(choice.text), Qt::MatchContains));
      EXPECT_TRUE(papers.currentText().contains(QLatin1String(choice.text)));
      EXPECT_TRUE(wait_until([&] { return painted.count() > 0 || choice.paper.id == a4.id; }));
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
  dialogs().answer = path(QStringLiteral("page.pdf"));
  onPanel(projectorWindow(), [](QWidget& panel) { click(panel, "pdf_button"); });
  const Ending info = run_program("pdfinfo", {dialogs().answer});
  EXPECT_TRUE(info.output.contains(QStringLiteral("Projector: event.cwd")))
      << info.output.toStdString();
}

TEST_F(PrintPanelTest, SaysWhenThereIsNoPrinter) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
    GTEST_SKIP() << "there is a printer";
  }
  onPanel(chamberWindow(), [](QWidget& panel) {
    EXPECT_EQ(panel.findChild<QLabel*>(QStringLiteral("printer_state"))->text(),
              QStringLiteral("No printer is set up on this computer. The page can be saved as a "
                             "PDF file."));
    EXPECT_FALSE(panel.findChild<QPushButton*>(QStringLiteral("print_button"))->isEnabled());
    EXPECT_TRUE(panel.findChild<QPushButton*>(QStringLiteral("pdf_button"))->isEnabled());
    cancel(panel);
  });
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

TEST_F(PrintPanelTest, HasAPageOfThePreview) {
  onPanel(chamberWindow(), [](QWidget& panel) {
    const auto& preview = *panel.findChild<QPrintPreviewWidget*>();
    EXPECT_TRUE(wait_until([&] { return preview.pageCount() == 1; }));
    cancel(panel);
  });
}

}  // namespace

}  // namespace velquon::test
