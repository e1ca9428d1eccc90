// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <optional>

#include "tests/support/documents/documents_fixture.h"
#include "tests/support/documents/environment.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

// What the panel says of printers.
inline const QString no_printer =
    QStringLiteral("No printer is set up on this computer. The page can be saved as a PDF file.");
inline const QString no_server =
    QStringLiteral("No print server answers. The page can be saved as a PDF file.");
inline const QString looking =
    QStringLiteral("Looking for printers… The page can be saved as a PDF file.");
inline const QString ready = QStringLiteral("The page can be printed or saved as a PDF file.");

/// The whole program with an event, and a command that answers what printers there are: none at first.
class PrintPanelFixture : public DocumentsFixture {
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

}  // namespace velquon::test
