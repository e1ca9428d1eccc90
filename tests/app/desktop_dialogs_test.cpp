// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <sys/inotify.h>
#include <unistd.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <array>

#include "app/desktop_dialogs.h"
#include "app/event_documents.h"
#include "tests/support/documents/event_bytes.h"
#include "tests/support/documents/modal.h"
#include "tests/support/documents/other_program.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// The dialogs that the program itself shows. What a user does with them comes from the event loop.
class DesktopDialogsTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    ApplicationFixture::SetUp();
  }

  [[nodiscard]] UserDialogs& dialogs() override { return desktop_dialogs_; }

  QString path(const QString& name) { return folder_.filePath(name); }
  void makeFile(const QString& name) {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  /// What fileToSave gives back when the user takes these turns.
  QString save(const std::vector<Turn>& turns, const QString& suggestion = {}) {
    QString result;
    EXPECT_TRUE(with_dialogs(
        [&] {
          result =
              dialogs().fileToSave(QStringLiteral("Save Event"), suggestion,
                                   QStringLiteral("Event files (*.cwd)"), QStringLiteral("cwd"));
        },
        turns));
    return result;
  }

  /// Types a name over the one offered and presses Return.
  Turn typing(const QString& name) {
    return {"QFileDialog", [this, name](QWidget& dialog) {
              auto& edit = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
              edit.setText(path(name));
              QTest::keyClick(&edit, Qt::Key_Return);
            }};
  }

  static Turn answering(QMessageBox::StandardButton button) {
    return {"QMessageBox", [button](QWidget& box) {
              QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(button), Qt::LeftButton);
            }};
  }

  static Turn giving_up() {
    return {"QFileDialog", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }};
  }

 private:
  DesktopDialogs desktop_dialogs_;
  QTemporaryDir folder_;
};

TEST_F(DesktopDialogsTest, AnAlertHasItsTitleItsTextAndOneButton) {
  const QString text = QStringLiteral("One.  Two <b>three</b> & four.");
  const bool well =
      with_dialogs([&] { dialogs().alert(QStringLiteral("You should know..."), text); },
                   {{"QMessageBox", [&](QWidget& widget) {
                       auto& box = dynamic_cast<QMessageBox&>(widget);
                       EXPECT_EQ(box.windowTitle(), QStringLiteral("You should know..."));
                       EXPECT_EQ(box.text(), text);
                       EXPECT_EQ(box.textFormat(), Qt::PlainText);
                       ASSERT_EQ(box.buttons().size(), 1);
                       EXPECT_EQ(box.buttons().front()->text(), QStringLiteral("OK"));
                       QTest::keyClick(&box, Qt::Key_Return);
                     }}});
  EXPECT_TRUE(well);
}

TEST_F(DesktopDialogsTest, AnAlertEndsByEscapeToo) {
  EXPECT_TRUE(
      with_dialogs([&] { dialogs().alert(QStringLiteral("Bad data"), QStringLiteral("text")); },
                   {{"QMessageBox", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }}}));
}

/// The files that an open dialog offers.
QStringList files_offered(QWidget& dialog) {
  const auto& list = *dialog.findChild<QListView*>(QStringLiteral("listView"));
  QStringList names;
  for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row) {
    names << list.model()->index(row, 0, list.rootIndex()).data().toString();
  }
  names.sort();
  return names;
}

TEST_F(DesktopDialogsTest, FilesAreOfferedByTheirEndingInItsCase) {
  for (const char* const name : {"a.cwd", "B.CWD", "c.txt", "D.TXT", "e.Cwd", "f.pdf", "cwd"}) {
    makeFile(QLatin1String(name));
  }
  struct Offer {
    const char* filter = nullptr;
    QStringList files;
  };
  const auto names = [](std::initializer_list<const char*> list) {
    QStringList result;
    for (const char* const name : list) {
      result << QLatin1String(name);
    }
    return result;
  };
  for (const Offer& offer : {Offer{"Event files (*.cwd)", names({"a.cwd"})},
                             Offer{"PC event files (*.cwd *.CWD *.txt *.TXT)",
                                   names({"B.CWD", "D.TXT", "a.cwd", "c.txt"})}}) {
    QString result;
    const Turn look{"QFileDialog", [&](QWidget& dialog) {
                      dynamic_cast<QFileDialog&>(dialog).setDirectory(path({}));
                      EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Open Event"));
                      EXPECT_TRUE(wait_until([&] { return files_offered(dialog) == offer.files; }))
                          << files_offered(dialog).join(u' ').toStdString();
                      QTest::keyClick(&dialog, Qt::Key_Escape);
                    }};
    EXPECT_TRUE(with_dialogs(
        [&] {
          result = dialogs().fileToOpen(QStringLiteral("Open Event"), QLatin1String(offer.filter));
        },
        {look}));
    EXPECT_EQ(result, QString());
  }
}

TEST_F(DesktopDialogsTest, AFileToOpenIsGivenBackWithItsPath) {
  makeFile(QStringLiteral("a.cwd"));
  QString result;
  EXPECT_TRUE(with_dialogs(
      [&] {
        result = dialogs().fileToOpen(QStringLiteral("Open Event"),
                                      QStringLiteral("Event files (*.cwd)"));
      },
      {typing(QStringLiteral("a.cwd"))}));
  EXPECT_EQ(result, path(QStringLiteral("a.cwd")));
}

/// Chooses files of an open dialog by mouse, the second and those after it with the Ctrl key.
void click_rows(QWidget& dialog, std::initializer_list<int> rows) {
  auto& list = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  Qt::KeyboardModifiers keys = Qt::NoModifier;
  for (const int row : rows) {
    const QModelIndex index = list.model()->index(row, 0, list.rootIndex());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, list.visualRect(index).center());
    keys = Qt::ControlModifier;
  }
}

TEST_F(DesktopDialogsTest, SeveralFilesAreChosenTogether) {
  for (const char* const name : {"a.csv", "b.csv", "c.csv", "d.cwd"}) {
    makeFile(QLatin1String(name));
  }
  const auto choose = [this](const Turn& turn) {
    QStringList result;
    EXPECT_TRUE(with_dialogs(
        [&] {
          result = dialogs().filesToOpen(QStringLiteral("Add Files"),
                                         QStringLiteral("Tables of measurements (*.csv)"));
        },
        {turn}));
    result.sort();
    return result;
  };
  const Turn choose_two{"QFileDialog", [this](QWidget& dialog) {
                          EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Add Files"));
                          dynamic_cast<QFileDialog&>(dialog).setDirectory(path({}));
                          EXPECT_TRUE(wait_until([&] { return files_offered(dialog).size() == 3; }))
                              << files_offered(dialog).join(u' ').toStdString();
                          click_rows(dialog, {0, 2});
                          auto& edit =
                              *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                          QTest::keyClick(&edit, Qt::Key_Return);
                        }};
  EXPECT_EQ(choose(choose_two),
            QStringList({path(QStringLiteral("a.csv")), path(QStringLiteral("c.csv"))}));
  const Turn give_up_chosen{
      "QFileDialog", [this](QWidget& dialog) {
        dynamic_cast<QFileDialog&>(dialog).setDirectory(path({}));
        EXPECT_TRUE(wait_until([&] { return files_offered(dialog).size() == 3; }));
        click_rows(dialog, {1});
        QTest::keyClick(&dialog, Qt::Key_Escape);
      }};
  EXPECT_EQ(choose(give_up_chosen), QStringList());
}

TEST_F(DesktopDialogsTest, WhatBecomesOfUnsavedMeasurementsIsAskedByThreeButtons) {
  const auto answer = [this](const std::function<void(QMessageBox&)>& act) {
    SaveAnswer given = SaveAnswer::cancel;
    EXPECT_TRUE(with_dialogs(
        [&] {
          given = dialogs().askToSave(QStringLiteral("Measurements"), QStringLiteral("<b>a</b>"));
        },
        {{"QMessageBox", [&](QWidget& box) { act(dynamic_cast<QMessageBox&>(box)); }}}));
    return given;
  };
  const auto click = [](QMessageBox::StandardButton button) {
    return [button](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), QStringLiteral("Measurements"));
      EXPECT_EQ(box.text(), QStringLiteral("<b>a</b>"));
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.buttons().size(), 3);
      QTest::mouseClick(box.button(button), Qt::LeftButton);
    };
  };
  EXPECT_EQ(answer(click(QMessageBox::Save)), SaveAnswer::save);
  EXPECT_EQ(answer(click(QMessageBox::Discard)), SaveAnswer::discard);
  EXPECT_EQ(answer(click(QMessageBox::Cancel)), SaveAnswer::cancel);
  EXPECT_EQ(answer([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }),
            SaveAnswer::save);
  EXPECT_EQ(answer([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
            SaveAnswer::cancel);
  EXPECT_EQ(answer([](QMessageBox& box) { box.close(); }), SaveAnswer::cancel);
}

TEST_F(DesktopDialogsTest, ANewNameGetsItsEndingWithoutAQuestion) {
  EXPECT_EQ(save({typing(QStringLiteral("new"))}), path(QStringLiteral("new.cwd")));
  EXPECT_EQ(save({typing(QStringLiteral("new.cwd"))}), path(QStringLiteral("new.cwd")));
  EXPECT_EQ(save({typing(QStringLiteral("NEW.CWD"))}), path(QStringLiteral("NEW.cwd")))
      << "which the dialog to open a file offers";
  EXPECT_EQ(save({typing(QStringLiteral("pi 0.5 MeV"))}), path(QStringLiteral("pi 0.5 MeV.cwd")));
}

TEST_F(DesktopDialogsTest, OverwritingIsAskedOnce) {
  makeFile(QStringLiteral("old.cwd"));
  for (const char* const typed : {"old.cwd", "old"}) {
    EXPECT_EQ(save({typing(QLatin1String(typed)), answering(QMessageBox::Yes)}),
              path(QStringLiteral("old.cwd")));
  }
}

TEST_F(DesktopDialogsTest, OverwritingIsAskedAboutTheFileThatIsWritten) {
  makeFile(QStringLiteral("old.txt"));
  EXPECT_EQ(save({typing(QStringLiteral("old.txt"))}), path(QStringLiteral("old.txt.cwd")));
  makeFile(QStringLiteral("old.txt.cwd"));
  const Turn read_question{"QMessageBox", [](QWidget& box) {
                             EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().startsWith(
                                 QStringLiteral("old.txt.cwd already exists.")));
                             QTest::keyClick(&box, Qt::Key_Escape);
                           }};
  EXPECT_EQ(save({typing(QStringLiteral("old.txt")), read_question, giving_up()}), QString());
}

TEST_F(DesktopDialogsTest, AFileThatIsToBeKeptLeavesTheChoiceOfAnother) {
  makeFile(QStringLiteral("old.cwd"));
  EXPECT_EQ(save({typing(QStringLiteral("old")), answering(QMessageBox::No),
                  typing(QStringLiteral("other"))}),
            path(QStringLiteral("other.cwd")));
}

TEST_F(DesktopDialogsTest, KeepingTheFileIsTheAnswerOfTheReturnKey) {
  makeFile(QStringLiteral("old.cwd"));
  const Turn just_return{"QMessageBox",
                         [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }};
  EXPECT_EQ(save({typing(QStringLiteral("old")), just_return, giving_up()}), QString());
}

TEST_F(DesktopDialogsTest, GivingUpGivesNoPath) {
  EXPECT_EQ(save({giving_up()}), QString());
}

TEST_F(DesktopDialogsTest, TheSuggestionIsOffered) {
  QString offered;
  const Turn look{"QFileDialog", [&](QWidget& dialog) {
                    offered = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
                    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save Event"));
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                  }};
  save({look}, QStringLiteral("Untitled Type 1 Decay"));
  EXPECT_EQ(offered, QStringLiteral("Untitled Type 1 Decay.cwd"));
  save({look}, QStringLiteral("EVENT.CWD"));
  EXPECT_EQ(offered, QStringLiteral("EVENT.cwd"));
}

TEST_F(DesktopDialogsTest, TheNameOfAFileIsOnePlainLineBelowTheMessage) {
  struct Case {
    QString path;
    QString line;
  };
  const std::array cases{Case{QStringLiteral("/tmp/<b>x<b>.cwd"), QStringLiteral("<b>x<b>.cwd")},
                         Case{QStringLiteral("/tmp/a\nb\x1b.cwd"), QStringLiteral("a?b?.cwd")}};
  for (const Case& tested : cases) {
    const QString text = QStringLiteral("Sorry.");
    EXPECT_TRUE(with_dialogs(
        [&] { dialogs().alertAboutFile(QStringLiteral("Bad data"), text, tested.path); },
        {{"QMessageBox", [&](QWidget& widget) {
            auto& box = dynamic_cast<QMessageBox&>(widget);
            EXPECT_EQ(box.text(), text);
            EXPECT_EQ(box.informativeText(), tested.line);
            for (const QLabel* const label : box.findChildren<QLabel*>()) {
              EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
            }
            ASSERT_EQ(box.buttons().size(), 1);
            EXPECT_EQ(box.buttons().front()->text(), QStringLiteral("OK"));
            QTest::keyClick(&box, Qt::Key_Return);
          }}}));
  }
}

TEST_F(DesktopDialogsTest, ALongNameDoesNotWidenAnAlertBeyondTheScreen) {
  const QString path = QLatin1Char('/') + QString(250, QLatin1Char('n')) + QStringLiteral(".cwd");
  EXPECT_TRUE(with_dialogs(
      [&] { dialogs().alertAboutFile(QStringLiteral("Bad data"), QStringLiteral("Sorry."), path); },
      {{"QMessageBox", [](QWidget& box) {
          EXPECT_LT(box.width(), 700);
          EXPECT_TRUE(
              dynamic_cast<QMessageBox&>(box).informativeText().endsWith(QStringLiteral("n.cwd")));
          QTest::keyClick(&box, Qt::Key_Return);
        }}}));
}

/// The widget that an alert belongs to, which is closed at once.
QWidget* owner_of_an_alert(UserDialogs& dialogs) {
  QWidget* owner = nullptr;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    if (QWidget* const box = QApplication::activeModalWidget()) {
      look.stop();
      owner = box->parentWidget();
      box->close();
    }
  });
  look.start(10);
  dialogs.alert(QStringLiteral("Bad data"), QStringLiteral("text"));
  return owner;
}

TEST_F(DesktopDialogsTest, AnAlertBelongsToTheWindowInFront) {
  EXPECT_EQ(owner_of_an_alert(dialogs()), &chamberWindow());
  activate(projectorWindow());
  EXPECT_EQ(owner_of_an_alert(dialogs()), &projectorWindow());
}

TEST_F(DesktopDialogsTest, WhileAnotherProgramHasTheKeysAnAlertBelongsToTheWindowThatHadThem) {
  for (GLPanel* const window :
       {static_cast<GLPanel*>(&projectorWindow()), static_cast<GLPanel*>(&chamberWindow())}) {
    activate(*window);
    const RunningProgram other(VELQUON_PROGRAM, {});
    ASSERT_TRUE(wait_until([] { return QApplication::activeWindow() == nullptr; }));
    EXPECT_EQ(owner_of_an_alert(dialogs()), window);
  }
}

/// Counts how often the files of a folder are opened, by whatever program.
class OpenedFiles {
 public:
  explicit OpenedFiles(const QString& folder) : events_(::inotify_init1(IN_NONBLOCK)) {
    EXPECT_GE(::inotify_add_watch(events_, qPrintable(folder), IN_OPEN), 0);
  }
  ~OpenedFiles() { ::close(events_); }
  OpenedFiles(const OpenedFiles&) = delete;
  OpenedFiles& operator=(const OpenedFiles&) = delete;
  OpenedFiles(OpenedFiles&&) = delete;
  OpenedFiles& operator=(OpenedFiles&&) = delete;

  [[nodiscard]] int count() const {
    int files = 0;
    alignas(inotify_event) std::array<char, 65536> bytes{};
    for (ssize_t size = 0; (size = ::read(events_, bytes.data(), bytes.size())) > 0;) {
      for (ssize_t at = 0; at < size;) {
        const auto* const event = reinterpret_cast<const inotify_event*>(bytes.data() + at);
        files += event->len > 0 && (event->mask & IN_ISDIR) == 0 ? 1 : 0;
        at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
      }
    }
    return files;
  }

 private:
  int events_;
};

TEST_F(DesktopDialogsTest, FilesAreOfferedWithoutALookIntoThem) {
  constexpr int many = 2000;
  for (int i = 0; i < many; ++i) {
    makeFile(QStringLiteral("event-%1.cwd").arg(i));
  }
  const OpenedFiles opened(path({}));
  const Turn look{"QFileDialog", [&](QWidget& dialog) {
                    dynamic_cast<QFileDialog&>(dialog).setDirectory(path({}));
                    EXPECT_TRUE(wait_until([&] { return files_offered(dialog).size() == many; }));
                    EXPECT_TRUE(dynamic_cast<QFileDialog&>(dialog).testOption(
                        QFileDialog::DontUseNativeDialog));
                    dialog.grab();
                    QTest::keyClick(&dialog, Qt::Key_Escape);
                  }};
  EXPECT_TRUE(with_dialogs(
      [&] {
        dialogs().fileToOpen(QStringLiteral("Open Event"), QStringLiteral("Event files (*.cwd)"));
      },
      {look}));
  EXPECT_EQ(opened.count(), 0);
}

TEST_F(DesktopDialogsTest, ARefusedFileIsToldInAnAlertOfThisProgram) {
  QFile file(path(QStringLiteral("a.cwd")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(event_file(0, {}));
  file.close();
  const bool well = with_dialogs(
      [&] { EXPECT_FALSE(application().documents().readAndDisplayFile(file.fileName())); },
      {{"QMessageBox", [](QWidget& widget) {
          auto& box = dynamic_cast<QMessageBox&>(widget);
          EXPECT_EQ(box.windowTitle(), QStringLiteral("Bad data"));
          EXPECT_EQ(box.text(), QStringLiteral("Sorry, Velquon can't read this file."));
          EXPECT_EQ(box.informativeText(), QStringLiteral("a.cwd"));
          QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        }}});
  EXPECT_TRUE(well);
}

}  // namespace

}  // namespace velquon::test
