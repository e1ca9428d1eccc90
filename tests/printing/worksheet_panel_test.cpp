// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Worksheets from the File menu: the panel, the files, the progress, and what they leave alone.

#include "printing/worksheet_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>

#include "tests/support/documents/modal.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/windows/application_fixture.h"
#include "tests/support/windows/waiting.h"
#include "widgets/value_slider.h"

namespace velquon::test {

namespace {

/// Takes each name offered for a file, in a folder of its own.
class NamingDialogs : public SilentDialogs {
 public:
  QString fileToSave(const QString& /*title*/, const QString& suggestion, const QString& /*filter*/,
                     const QString& suffix) override {
    ++names_asked;
    if (names_asked > names_given) {
      return {};
    }
    return folder + QLatin1Char('/') +
           (only_name.isEmpty() ? suggestion + QLatin1Char('.') + suffix : only_name);
  }

  QString folder;
  QString only_name;  ///< unless it is empty, given for every file
  int names_asked = 0;
  int names_given = 2;  ///< after so many the user gives up
};

class WorksheetPanelTest : public ApplicationFixture {
 protected:
  void SetUp() override {
    dialogs_.folder = folder_.path();
    ApplicationFixture::SetUp();
  }

  [[nodiscard]] UserDialogs& dialogs() override { return dialogs_; }
  [[nodiscard]] NamingDialogs& naming() { return dialogs_; }
  [[nodiscard]] QString folder() const { return folder_.path(); }
  [[nodiscard]] QStringList files() const {
    return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  [[nodiscard]] std::vector<PdfPage> pagesOf(const QString& name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return read_pdf_pages(file.readAll());
  }

  /// Chooses the menu item and takes turns with the dialogs that come up.
  void onPanel(const std::function<void(QWidget&)>& act, std::vector<Turn> more = {}) {
    more.insert(more.begin(), Turn{"velquon::WorksheetPanel", act});
    EXPECT_TRUE(with_dialogs([&] { choose("worksheets_item"); }, std::move(more)));
  }

  template <typename Widget>
  static Widget& in(QWidget& panel, const char* name) {
    return *panel.findChild<Widget*>(QLatin1String(name));
  }
  static void save(QWidget& panel) {
    QTest::mouseClick(&in<QPushButton>(panel, "worksheet_save_button"), Qt::LeftButton);
  }

 private:
  QTemporaryDir folder_;
  NamingDialogs dialogs_;
};

TEST_F(WorksheetPanelTest, OffersWhatTheNextEventWouldBeAndMakesBothFiles) {
  choose("muplus_item");
  control<ValueSlider>("magfield_slider").moveTo(1.5);
  controller().settings().setEnergyControl(37.25F);
  onPanel([&](QWidget& panel) {
    EXPECT_EQ(in<QComboBox>(panel, "worksheet_type_popup").currentText(),
              QStringLiteral("Positive Muon"));
    EXPECT_EQ(in<QLineEdit>(panel, "field_box").text(), QStringLiteral("1.5"));
    EXPECT_EQ(in<QLineEdit>(panel, "side_box").text(), QStringLiteral("500"));
    EXPECT_EQ(in<QLineEdit>(panel, "energy_box").text(), QStringLiteral("37.25"));
    EXPECT_EQ(in<QSpinBox>(panel, "count_box").value(), 30);
    in<QSpinBox>(panel, "count_box").setValue(4);
    save(panel);
  });
  EXPECT_EQ(files(), (QStringList{QStringLiteral("Worksheet Answers.pdf"),
                                  QStringLiteral("Worksheets.pdf")}));
  EXPECT_EQ(pagesOf(QStringLiteral("Worksheets.pdf")).size(), 4U);
  EXPECT_EQ(title_of_pdf(folder() + QStringLiteral("/Worksheet Answers.pdf")),
            QStringLiteral("Answers to the worksheets"));
}

TEST_F(WorksheetPanelTest, WithoutAnswersOneFileOnTheChosenPaperIsMade) {
  onPanel([](QWidget& panel) {
    in<QCheckBox>(panel, "answers_check").setChecked(false);
    in<QComboBox>(panel, "worksheet_paper_popup").setCurrentIndex(1);
    in<QSpinBox>(panel, "count_box").setValue(1);
    save(panel);
  });
  EXPECT_EQ(files(), QStringList{QStringLiteral("Worksheets.pdf")});
  EXPECT_NEAR(pagesOf(QStringLiteral("Worksheets.pdf")).at(0).paper.width(), 612.0, 0.5);
}

TEST_F(WorksheetPanelTest, LeavesTheProgramsNextEventsAsTheyWouldBe) {
  const auto next_event = [this] {
    choose("new_event_item");
    return std::vector<PlotPoint>(chamber().data_ptr().begin(), chamber().data_ptr().end());
  };
  std::srand(5);
  const auto first = next_event();
  const auto second = next_event();
  ASSERT_FALSE(first.empty());
  ASSERT_NE(first, second);
  std::srand(5);
  EXPECT_EQ(next_event(), first);
  onPanel([](QWidget& panel) {
    in<QSpinBox>(panel, "count_box").setValue(3);
    save(panel);
  });
  ASSERT_EQ(files().size(), 2);
  EXPECT_EQ(chamber().data_ptr().size(), first.size());
  EXPECT_EQ(next_event(), second);
}

TEST_F(WorksheetPanelTest, WhatCannotBeIsToldAndNotSaved) {
  struct Case {
    const char* box;
    const char* text;
    const char* problem;
  };
  constexpr std::array cases{
      Case{"energy_box", "0", "'0' is not a finite energy in MeV above 0."},
      Case{"field_box", "strong", "'strong' is not a finite field in kG."},
      Case{"side_box", "-5", "'-5' is not a finite side in cm above 0."},
      Case{"seed_box", "1.5", "'1.5' is not a whole number from 0 to 4294967295."}};
  onPanel([&](QWidget& panel) {
    for (const auto& [box, text, problem] : cases) {
      auto& edit = in<QLineEdit>(panel, box);
      const QString before = edit.text();
      edit.setText(QLatin1String(text));
      EXPECT_EQ(in<QLabel>(panel, "problem_label").text(), QLatin1String(problem));
      EXPECT_FALSE(in<QPushButton>(panel, "worksheet_save_button").isEnabled()) << box;
      edit.setText(before);
      EXPECT_EQ(in<QLabel>(panel, "problem_label").text(), QString());
      EXPECT_TRUE(in<QPushButton>(panel, "worksheet_save_button").isEnabled()) << box;
    }
    QTest::keyClick(&panel, Qt::Key_Escape);
  });
  EXPECT_EQ(naming().names_asked, 0);
}

TEST_F(WorksheetPanelTest, GivenUpAtEitherNameNothingIsLeft) {
  for (const int names : {0, 1}) {
    naming().names_asked = 0;
    naming().names_given = names;
    onPanel([](QWidget& panel) { save(panel); });
    EXPECT_EQ(files(), QStringList()) << names;
  }
}

TEST_F(WorksheetPanelTest, OneFileForBothIsToldAndNothingIsLeft) {
  naming().only_name = QStringLiteral("both.pdf");
  onPanel([](QWidget& panel) { save(panel); });
  ASSERT_EQ(naming().alerts.size(), 1);
  EXPECT_TRUE(naming().alerts[0].contains(
      QStringLiteral("The worksheets and their answers need files of two names.")));
  EXPECT_EQ(files(), QStringList());
}

TEST_F(WorksheetPanelTest, EitherFileThatCannotBeWrittenIsToldOnce) {
  // A folder stands where the file would be.
  for (const QString& name :
       {QStringLiteral("Worksheets.pdf"), QStringLiteral("Worksheet Answers.pdf")}) {
    naming().alerts.clear();
    naming().names_asked = 0;
    ASSERT_TRUE(QDir(folder()).mkdir(name));
    onPanel([](QWidget& panel) {
      in<QSpinBox>(panel, "count_box").setValue(1);
      save(panel);
    });
    ASSERT_EQ(naming().alerts.size(), 1) << name.toStdString();
    EXPECT_TRUE(naming().alerts[0].contains(name)) << naming().alerts[0].toStdString();
    EXPECT_TRUE(naming().alerts[0].contains(QStringLiteral("Is a directory")));
    const bool sheets_are_there = QFileInfo(folder() + QStringLiteral("/Worksheets.pdf")).isFile();
    EXPECT_EQ(sheets_are_there, name == QStringLiteral("Worksheet Answers.pdf"));
    EXPECT_FALSE(QFileInfo(folder() + QStringLiteral("/Worksheet Answers.pdf")).isFile());
    ASSERT_TRUE(QDir(folder()).rmdir(name));
  }
}

TEST_F(WorksheetPanelTest, ReturnInAFieldSaves) {
  onPanel([](QWidget& panel) {
    auto& side = in<QLineEdit>(panel, "side_box");
    side.setFocus();
    QTest::keyClick(&side, Qt::Key_Return);
    EXPECT_FALSE(panel.isVisible());
  });
  EXPECT_EQ(naming().names_asked, 2);
}

/// What is typed to choose a control by the letter that is underlined in a text.
QKeyCombination key_of(const QString& text) {
  const QKeySequence keys = QKeySequence::mnemonic(text);
  return keys.isEmpty() ? QKeyCombination() : keys[0];
}

TEST_F(WorksheetPanelTest, EachFieldAndButtonIsReachedByAKeyOfItsOwn) {
  onPanel([](QWidget& panel) {
    const auto type = [&panel](const QString& text) {
      const QKeyCombination keys = key_of(text);
      ASSERT_NE(keys.key(), Qt::Key()) << text.toStdString();
      QTest::keyClick(&panel, keys.key(), keys.keyboardModifiers());
    };
    int fields = 0;
    for (const QLabel* const label : panel.findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) {
        type(label->text());
        EXPECT_TRUE(label->buddy()->hasFocus() || label->buddy()->isAncestorOf(panel.focusWidget()))
            << label->text().toStdString();
        ++fields;
      }
    }
    EXPECT_EQ(fields, 7);
    auto& answers = in<QCheckBox>(panel, "answers_check");
    type(answers.text());
    EXPECT_TRUE(wait_until([&] { return !answers.isChecked(); }));
    type(in<QPushButton>(panel, "worksheet_save_button").text());
    EXPECT_TRUE(wait_until([&] { return !panel.isVisible(); }));
    panel.close();
  });
  EXPECT_EQ(naming().names_asked, 1);
}

TEST_F(WorksheetPanelTest, CancelledOnTheWayNothingIsLeft) {
  onPanel(
      [](QWidget& panel) {
        in<QSpinBox>(panel, "count_box").setValue(1000);
        save(panel);
      },
      {{"QProgressDialog", [](QWidget& progress) {
          EXPECT_LT(qobject_cast<QProgressDialog*>(&progress)->value(), 1000);
          QTest::mouseClick(progress.findChild<QPushButton*>(), Qt::LeftButton);
        }}});
  EXPECT_EQ(naming().names_asked, 2);
  EXPECT_EQ(files(), QStringList());
}

TEST_F(WorksheetPanelTest, AFileThatCannotBeWrittenIsTold) {
  naming().folder = folder() + QStringLiteral("/none");
  onPanel([](QWidget& panel) {
    in<QSpinBox>(panel, "count_box").setValue(1);
    save(panel);
  });
  ASSERT_EQ(naming().alerts.size(), 1);
  EXPECT_TRUE(naming().alerts[0].contains(QStringLiteral("No such file or directory")))
      << naming().alerts[0].toStdString();
}

}  // namespace

}  // namespace velquon::test
