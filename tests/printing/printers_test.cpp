// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Printers that the print panel finds, and what is sent to them.

#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "tests/printing/print_panel_fixture.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/print_server.h"
#include "tests/support/documents/printing.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class PrintersTest : public PrintPanelFixture {};

/// Chooses a file in the place of a printer and prints.
void print_into(QWidget& print_dialog, const QString& path) {
  auto* const name = print_dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
  ASSERT_NE(name, nullptr);
  name->setText(path);
  auto* const buttons = print_dialog.findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

TEST_F(PrintersTest, SaysWhenThereIsNoPrinter) {
  onPanel(chamberWindow(), [](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return state_of(panel) == no_printer; }));
    EXPECT_FALSE(button_of(panel, "print_button").isEnabled());
    EXPECT_TRUE(button_of(panel, "pdf_button").isEnabled());
    cancel(panel);
  });
}

TEST_F(PrintersTest, OffersPrintingOnceAPrinterIsFound) {
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

TEST_F(PrintersTest, SaysWhenPrintersCannotBeLookedFor) {
  answerByProgramsOf(QByteArray());
  onPanel(chamberWindow(), [](QWidget& panel) {
    EXPECT_TRUE(wait_until([&] { return state_of(panel) != looking; }));
    EXPECT_TRUE(state_of(panel).contains(QStringLiteral("lpstat is not installed")));
    EXPECT_FALSE(button_of(panel, "print_button").isEnabled());
    cancel(panel);
  });
}

TEST_F(PrintersTest, IsUpAtOnceAndSavesWhileThePrintServerIsSilent) {
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

TEST_F(PrintersTest, SaysWhenThePrintServerDoesNotAnswerInTime) {
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

TEST_F(PrintersTest, SendsThePageToThePrinter) {
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

TEST_F(PrintersTest, NamesEachPrintJobAfterTheWindowOfItsPage) {
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

TEST_F(PrintersTest, StaysWhenTheUserGivesUpThePrinter) {
  answerWith("echo Printer_1");
  onPrintDialog(
      chamberWindow(), [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
      [](QWidget& panel) {
        EXPECT_TRUE(panel.isVisible());
        cancel(panel);
      });
}

TEST_F(PrintersTest, StaysWhenThePrinterDoesNotTakeThePage) {
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

TEST_F(PrintersTest, LeavesNoSearchBehind) {
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
