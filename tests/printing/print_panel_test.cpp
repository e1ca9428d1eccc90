// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/print_panel.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "printing/page_preview.h"
#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/documents/print_server.h"
#include "tests/support/documents/printing.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

const QString no_printer =
    QStringLiteral("No printer is set up on this computer. The page can be saved as a PDF file.");
const QString no_server =
    QStringLiteral("No print server answers. The page can be saved as a PDF file.");
const QString looking =
    QStringLiteral("Looking for printers… The page can be saved as a PDF file.");
const QString ready = QStringLiteral("The page can be printed or saved as a PDF file.");

class PrintPanelTest : public DocumentsFixture {
 protected:
  void SetUp() override {
    DocumentsFixture::SetUp();
    answerWith("exit 1");
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

  /// Lets a command of the shell answer in the place of lpstat.
  void answerWith(const QByteArray& command) {
    QFile script(write(QStringLiteral("lpstat"), "#!/bin/sh\n" + command + "\n"));
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    programs_.emplace("PATH", folder().toLocal8Bit() + ':' + usual_programs_);
  }
  /// Lets the lpstat of this computer answer, or none when there are no programs at all.
  void answerByProgramsOf(const QByteArray& folders) { programs_.emplace("PATH", folders); }

  static void click(QWidget& panel, const char* button) {
    QTest::mouseClick(&button_of(panel, button), Qt::LeftButton);
  }
  static QPushButton& button_of(QWidget& panel, const char* button) {
    return *panel.findChild<QPushButton*>(QLatin1String(button));
  }
  static QString state_of(const QWidget& panel) {
    return panel.findChild<QLabel*>(QStringLiteral("printer_state"))->text();
  }
  /// Opens the panel in a window, prints from it and acts on the dialog that asks for the printer.
  void onPrintDialog(QWidget& window, const std::function<void(QWidget&)>& act,
                     const std::function<void(QWidget&)>& act_after) {
    activate(window);
    EXPECT_TRUE(with_dialogs(
        [&] { QTest::keyClick(window.windowHandle(), Qt::Key_P, Qt::ControlModifier); },
        {{"velquon::PrintPanel",
          [&](QWidget& panel) {
            ASSERT_TRUE(wait_until([&] { return button_of(panel, "print_button").isEnabled(); }));
            EXPECT_EQ(state_of(panel), ready);
            click(panel, "print_button");
            act_after(panel);
          }},
         {"QPrintDialog", act}}));
  }

  static void cancel(QWidget& panel) { QTest::keyClick(&panel, Qt::Key_Escape); }

  /// What the panel saves as a PDF file for a window.
  PdfPage savedPage(QWidget& window) {
    dialogs().answer = path(QStringLiteral("page.pdf"));
    onPanel(window, [](QWidget& panel) { click(panel, "pdf_button"); });
    return read_pdf(read(dialogs().answer));
  }

  const QByteArray usual_programs_ = qgetenv("PATH");

 private:
  std::optional<EnvironmentVariable> programs_;
};

/// Chooses a file in the place of a printer and prints.
void print_into(QWidget& print_dialog, const QString& path) {
  auto* const name = print_dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
  ASSERT_NE(name, nullptr);
  name->setText(path);
  auto* const buttons = print_dialog.findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

bool has_gray_near(const QImage& picture, QPoint place) {
  for (int x = place.x() - 2; x <= place.x() + 2; ++x) {
    const int light = qGray(picture.pixel(x, place.y()));
    if (light > 60 && light < 230) {
      return true;
    }
  }
  return false;
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

TEST_F(PrintPanelTest, SaysWhenThereIsNoPrinter) {
  onPanel(chamberWindow(), [](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return state_of(panel) == no_printer; }));
    EXPECT_FALSE(button_of(panel, "print_button").isEnabled());
    EXPECT_TRUE(button_of(panel, "pdf_button").isEnabled());
    cancel(panel);
  });
}

TEST_F(PrintPanelTest, OffersPrintingOnceAPrinterIsFound) {
  const QString answer = path(QStringLiteral("go"));
  answerWith("while [ ! -e '" + answer.toUtf8() + "' ]; do /bin/sleep 0.01; done; echo Printer_1");
  onPanel(chamberWindow(), [&](QWidget& panel) {
    EXPECT_EQ(state_of(panel), looking);
    EXPECT_FALSE(button_of(panel, "print_button").isEnabled());
    write(QStringLiteral("go"), {});
    EXPECT_TRUE(wait_until([&] { return button_of(panel, "print_button").isEnabled(); }));
    EXPECT_EQ(state_of(panel), ready);
    EXPECT_TRUE(button_of(panel, "pdf_button").isDefault());
    cancel(panel);
  });
}

TEST_F(PrintPanelTest, SaysWhenPrintersCannotBeLookedFor) {
  answerByProgramsOf(QByteArray());
  onPanel(chamberWindow(), [](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return state_of(panel) != looking; }));
    EXPECT_TRUE(state_of(panel).contains(QStringLiteral("lpstat is not installed")));
    EXPECT_FALSE(button_of(panel, "print_button").isEnabled());
    cancel(panel);
  });
}

TEST_F(PrintPanelTest, IsUpAtOnceAndSavesWhileThePrintServerIsSilent) {
  answerByProgramsOf(usual_programs_);
  SilentPrintServer server(path(QStringLiteral("server")));
  dialogs().answer = path(QStringLiteral("page.pdf"));
  onPanel(chamberWindow(), [&](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return server.callers() > 0; })) << "lpstat asks the server";
    click(panel, "pdf_button");
    EXPECT_FALSE(panel.isVisible());
  });
  EXPECT_EQ(read_pdf(read(dialogs().answer)).rectangles.size(), 20U);
  EXPECT_FALSE(server.wasCalledByThisProgram());
}

TEST_F(PrintPanelTest, SaysWhenThePrintServerDoesNotAnswerInTime) {
  answerByProgramsOf(usual_programs_);
  SilentPrintServer server(path(QStringLiteral("server")));
  onPanel(chamberWindow(), [&](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return server.callers() > 0; }));
    auto* const limit = panel.findChild<QTimer*>(QStringLiteral("printer_search_limit"));
    ASSERT_NE(limit, nullptr);
    EXPECT_TRUE(limit->isActive());
    EXPECT_LE(limit->interval(), 5000);
    limit->start(0);
    EXPECT_TRUE(wait_until([&] { return state_of(panel) == no_server; }));
    EXPECT_FALSE(button_of(panel, "print_button").isEnabled());
    EXPECT_TRUE(button_of(panel, "pdf_button").isEnabled());
    cancel(panel);
  });
  EXPECT_FALSE(server.wasCalledByThisProgram());
}

TEST_F(PrintPanelTest, SendsThePageToThePrinter) {
  answerWith("echo Printer_1");
  const QString spool = path(QStringLiteral("spool.pdf"));
  onPrintDialog(
      projectorWindow(), [&](QWidget& dialog) { print_into(dialog, spool); },
      [](const QWidget& panel) { EXPECT_FALSE(panel.isVisible()); });
  const PdfPage page = read_pdf(read(spool));
  EXPECT_TRUE(shows_projection(page));
  EXPECT_EQ(page.rectangles.size(), 20U);
  EXPECT_EQ(page.paper, a4.size);
  EXPECT_EQ(line_at(words_of_pdf(spool), a4, 675.0), QStringLiteral("Projector: event.cwd"));
  EXPECT_EQ(title_of_pdf(spool), QStringLiteral("Projector: event.cwd"));
  EXPECT_TRUE(dialogs().alerts.empty());
}

TEST_F(PrintPanelTest, NamesEachPrintJobAfterTheWindowOfItsPage) {
  answerWith("echo Printer_1");
  for (const bool is_chamber : {true, false, true}) {
    const QString spool = path(QStringLiteral("spool.pdf"));
    QFile::remove(spool);
    QWidget& window = is_chamber ? static_cast<QWidget&>(chamberWindow()) : projectorWindow();
    onPrintDialog(
        window, [&](QWidget& dialog) { print_into(dialog, spool); }, [](const QWidget&) {});
    EXPECT_EQ(title_of_pdf(spool), window.windowTitle());
  }
}

TEST_F(PrintPanelTest, StaysWhenTheUserGivesUpThePrinter) {
  answerWith("echo Printer_1");
  onPrintDialog(
      chamberWindow(), [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
      [](QWidget& panel) {
        EXPECT_TRUE(panel.isVisible());
        cancel(panel);
      });
}

TEST_F(PrintPanelTest, StaysWhenThePrinterDoesNotTakeThePage) {
  answerWith("echo Printer_1");
  onPrintDialog(
      chamberWindow(),
      [&](QWidget& dialog) {
        const QString place = path(QStringLiteral("place"));
        QDir().mkdir(place);
        // Gone between the dialog, which looks whether it can be written to, and the page.
        QObject::connect(&static_cast<QDialog&>(dialog), &QDialog::accepted,
                         [place] { QDir().rmdir(place); });
        print_into(dialog, place + QStringLiteral("/spool.pdf"));
      },
      [](QWidget& panel) {
        EXPECT_TRUE(panel.isVisible());
        cancel(panel);
      });
  ASSERT_EQ(dialogs().alerts.size(), 1U);
  EXPECT_EQ(dialogs().alerts.front().title, QStringLiteral("Not printed"));
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
    auto& preview = *panel.findChild<PagePreview*>();
    auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
    for (const Paper& paper : {letter, a4}) {
      papers.setCurrentIndex(papers.findData(paper.id));
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

TEST_F(PrintPanelTest, ThePageIsDrawnAnewForAnotherPaperOrSizeAndOnlyThen) {
  onPanel(projectorWindow(), [](QWidget& panel) {
    const auto& preview = *panel.findChild<PagePreview*>();
    const auto proportions = [&preview] {
      const QSize page = preview.picture().size();
      return page.isEmpty() ? 0.0 : static_cast<double>(page.height()) / page.width();
    };
    auto& papers = *panel.findChild<QComboBox*>(QStringLiteral("paper_popup"));
    for (const Paper& paper : {letter, a4}) {
      papers.setCurrentIndex(papers.findData(paper.id));
      const double wanted = paper.size.height() / paper.size.width();
      EXPECT_TRUE(wait_until([&] { return std::abs(proportions() - wanted) < 0.01; }));
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

TEST_F(PrintPanelTest, LeavesNoSearchBehind) {
  // A process that is not ended by the program is ended by Qt with a warning.
  static int warnings = 0;
  warnings = 0;
  const auto usual_handler =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        warnings += message.contains(QStringLiteral("QProcess")) ? 1 : 0;
      });
  answerWith("echo $$ > '" + path(QStringLiteral("pid")).toUtf8() + "'; exec /bin/sleep 100");
  onPanel(chamberWindow(), [&](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return !read(path(QStringLiteral("pid"))).isEmpty(); }));
    cancel(panel);
  });
  qInstallMessageHandler(usual_handler);
  EXPECT_EQ(warnings, 0);
  const QByteArray pid = read(path(QStringLiteral("pid"))).trimmed();
  EXPECT_FALSE(QFile::exists(QStringLiteral("/proc/") + QString::fromLatin1(pid)));
}

}  // namespace

}  // namespace velquon::test
