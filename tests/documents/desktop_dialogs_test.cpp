#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "app/event_documents.h"
#include "app/user_dialogs.h"
#include "gui/support/application_fixture.h"
#include "gui/support/waiting.h"
#include "support/event_bytes.h"
#include "support/modal.h"

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
          QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        }}});
  EXPECT_TRUE(well);
}

}  // namespace

}  // namespace velquon::test
