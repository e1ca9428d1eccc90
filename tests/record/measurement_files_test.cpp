// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files of measurements and what is asked before rows are lost.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <cmath>
#include <ctime>
#include <functional>
#include <vector>

#include "tests/record/measurements_fixture.h"
#include "tests/support/documents/pdf_page.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

class MeasurementFilesTest : public MeasurementsFixture {
 protected:
  std::vector<double> values() {
    std::vector<double> all;
    for (const Measurement& row : measurements().rows()) {
      all.push_back(row.value);
    }
    return all;
  }
  /// Runs the program's loop, does something in it, and tells whether that ended it.
  static bool endsTheProgram(const std::function<void()>& action) {
    constexpr int still_running = 77;
    constexpr int patience = 1000;  // milliseconds
    QTimer::singleShot(0, qApp, action);
    QTimer give_up;
    give_up.setSingleShot(true);
    QObject::connect(&give_up, &QTimer::timeout, [] { QCoreApplication::exit(still_running); });
    give_up.start(patience);
    return QApplication::exec() == 0;
  }
};

using Values = std::vector<double>;

const RecordingDialogs::Alert unsaved{QStringLiteral("Measurements"),
                                      QStringLiteral("There are measurements that are not saved.")};

}  // namespace

TEST_F(MeasurementFilesTest, SavedRowsAreOpenedAgain) {
  addRows(Quantity::radius, {1.5, 2.5});
  dialogs().answer = path(QStringLiteral("a.csv"));
  run("save_measurements_item");
  EXPECT_EQ(dialogs().questions.back().filter.toStdString(), "Tables of measurements (*.csv)");
  EXPECT_EQ(read(path(QStringLiteral("a.csv"))), measurement_file(Quantity::radius, {1.5, 2.5}));
  addRows(Quantity::radius, {9.0});
  dialogs().save_answer = SaveAnswer::discard;
  run("open_measurements_item");
  EXPECT_EQ(values(), (Values{1.5, 2.5}));
  EXPECT_EQ(dialogs().unsaved_questions, std::vector{unsaved});
  // What is in a file is not asked about.
  run("open_measurements_item");
  EXPECT_EQ(dialogs().unsaved_questions.size(), 1U);
}

TEST_F(MeasurementFilesTest, OpeningOverUnsavedRowsCanBeCancelledOrSavesThemFirst) {
  const QString other = write(QStringLiteral("b.csv"), measurement_file(Quantity::length, {7.0}));
  addRows(Quantity::radius, {1.0});
  dialogs().answer = other;
  dialogs().save_answer = SaveAnswer::cancel;
  run("open_measurements_item");
  EXPECT_EQ(values(), Values{1.0});
  EXPECT_TRUE(dialogs().questions.empty());
  // Saved under the same name as is opened then.
  dialogs().save_answer = SaveAnswer::save;
  run("open_measurements_item");
  EXPECT_EQ(values(), Values{1.0});
  EXPECT_EQ(dialogs().questions.size(), 2U);
  EXPECT_EQ(read(other), measurement_file(Quantity::radius, {1.0}));
  EXPECT_FALSE(measurements().hasUnsaved());
}

TEST_F(MeasurementFilesTest, FilesOfAClassAreAddedEachRowWithItsFile) {
  write(QStringLiteral("anna.csv"), measurement_file(Quantity::length, {1.0, 2.0}));
  write(QStringLiteral("ben.csv"), measurement_file(Quantity::length, {3.0}));
  addRows(Quantity::length, {9.0});
  dialogs().file_answers = {path(QStringLiteral("anna.csv")), path(QStringLiteral("ben.csv"))};
  run("add_files_item");
  EXPECT_EQ(values(), (Values{9.0, 1.0, 2.0, 3.0}));
  EXPECT_EQ(cell(0, MeasurementColumn::file), "");
  EXPECT_EQ(cell(1, MeasurementColumn::file), "anna.csv");
  EXPECT_EQ(cell(3, MeasurementColumn::file), "ben.csv");
  run("undo_item");
  EXPECT_EQ(values(), Values{9.0});
  run("redo_item");
  // Once more through a file of all: a row keeps the file in which it was measured.
  dialogs().answer = path(QStringLiteral("class.csv"));
  run("save_measurements_item");
  dialogs().file_answers = {path(QStringLiteral("class.csv"))};
  run("add_files_item");
  EXPECT_EQ(cell(4, MeasurementColumn::file), "class.csv");
  EXPECT_EQ(cell(5, MeasurementColumn::file), "anna.csv");
}

TEST_F(MeasurementFilesTest, OneDamagedFileOfSeveralChangesNothingAndIsNamed) {
  write(QStringLiteral("good.csv"), measurement_file(Quantity::length, {1.0}));
  QByteArray damaged = measurement_file(Quantity::length, {2.0, 3.0});
  damaged.replace(",3,", ",three,");
  const QString bad = write(QStringLiteral("bad.csv"), damaged);
  addRows(Quantity::length, {9.0});
  dialogs().file_answers = {path(QStringLiteral("good.csv")), bad,
                            path(QStringLiteral("good.csv"))};
  run("add_files_item");
  EXPECT_EQ(values(), Values{9.0});
  const RecordingDialogs::Alert told{
      QStringLiteral("Not opened"),
      QStringLiteral(
          "Velquon can't read the file %1, line 3: the value is no finite number: \"three\".")
          .arg(bad)};
  EXPECT_EQ(dialogs().alerts, std::vector{told});
}

TEST_F(MeasurementFilesTest, ADamagedFileIsNotOpened) {
  addRows(Quantity::length, {9.0});
  dialogs().save_answer = SaveAnswer::discard;
  for (const QString& file : {write(QStringLiteral("bad.csv"), "nothing of the kind"),
                              path(QStringLiteral("missing.csv")), folder()}) {
    dialogs().alerts.clear();
    dialogs().answer = file;
    run("open_measurements_item");
    EXPECT_EQ(values(), Values{9.0});
    ASSERT_EQ(dialogs().alerts.size(), 1U);
    EXPECT_EQ(dialogs().alerts[0].title.toStdString(), "Not opened");
    EXPECT_TRUE(dialogs().alerts[0].message.contains(file));
  }
}

TEST_F(MeasurementFilesTest, AFullDiskLeavesTheOldFilesAndIsTold) {
  addRows(Quantity::length, std::vector<double>(100, 1.25));
  struct Saving {
    const char* item;
    const char* file;
  };
  for (const auto& [item_name, name] :
       {Saving{"save_measurements_item", "a.csv"}, Saving{"save_plot_item", "b.png"},
        Saving{"save_plot_item", "c.pdf"}}) {
    const QString file = write(QLatin1String(name), "old");
    dialogs().alerts.clear();
    dialogs().answer = file;
    {
      const velquon::test::FileSizeLimit limit(1000);
      run(item_name);
    }
    const RecordingDialogs::Alert told{
        QStringLiteral("Not saved"),
        QStringLiteral("Velquon can't write the file %1: File too large.").arg(file)};
    EXPECT_EQ(dialogs().alerts, std::vector{told});
    EXPECT_EQ(read(file), "old");
  }
  EXPECT_EQ(QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
            3);
  EXPECT_TRUE(measurements().hasUnsaved());
}

TEST_F(MeasurementFilesTest, ThePlotIsSavedAsAPictureAndAsAPage) {
  addRows(Quantity::decay_length, {1, 2, 3, 4, 5, 8, 13});
  openMeasurements();
  windowControl<QComboBox>("fit_popup").setCurrentIndex(1);
  dialogs().answer = path(QStringLiteral("plot.png"));
  run("save_plot_item");
  const QImage picture(path(QStringLiteral("plot.png")));
  ASSERT_EQ(picture.size(), QSize(1280, 960));
  // Dark on white, whatever the palette is.
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(Qt::white));
  dialogs().answer = path(QStringLiteral("plot.pdf"));
  run("save_plot_item");
  QString words;
  for (const PaperWord& word : words_of_pdf(path(QStringLiteral("plot.pdf")))) {
    words += word.text + QLatin1Char(' ');
  }
  EXPECT_TRUE(words.contains(QStringLiteral("decay length (cm)"))) << words.toStdString();
}

TEST_F(MeasurementFilesTest, TheNumbersInBinsAreMarkedByWholeNumbers) {
  // One bin from 0 to 500 has no mark of a length between 0 and 100.
  for (const auto& values : {std::vector<double>{200.0}, std::vector<double>(12, 300.0)}) {
    addRows(Quantity::length, values);
    openMeasurements();
    dialogs().answer = path(QStringLiteral("plot.pdf"));
    run("save_plot_item");
    int marks = 0;
    for (const PaperWord& word : words_of_pdf(path(QStringLiteral("plot.pdf")))) {
      bool is_number = false;
      const double number = word.text.toDouble(&is_number);
      if (is_number && number < 100.0) {
        EXPECT_EQ(number, std::floor(number)) << word.text.toStdString();
        ++marks;
      }
    }
    EXPECT_GE(marks, 2);
  }
}

TEST_F(MeasurementFilesTest, QuittingAsksAboutUnsavedRowsAndCancelKeepsTheProgram) {
  addRows(Quantity::length, {1.0});
  dialogs().save_answer = SaveAnswer::cancel;
  EXPECT_FALSE(endsTheProgram([this] { item("quit_item").trigger(); }));
  EXPECT_EQ(dialogs().unsaved_questions, std::vector{unsaved});
  EXPECT_TRUE(chamberWindow().isVisible());
}

TEST_F(MeasurementFilesTest, QuittingDiscardsWhenToldSo) {
  addRows(Quantity::length, {1.0});
  dialogs().save_answer = SaveAnswer::discard;
  EXPECT_TRUE(endsTheProgram([this] { item("quit_item").trigger(); }));
  EXPECT_EQ(dialogs().unsaved_questions.size(), 1U);
}

TEST_F(MeasurementFilesTest, QuittingSavesFirstAndStaysWhenThatFails) {
  addRows(Quantity::length, {1.0});
  dialogs().save_answer = SaveAnswer::save;
  dialogs().answer = QString();  // the user gives up the name
  EXPECT_FALSE(endsTheProgram([this] { item("quit_item").trigger(); }));
  dialogs().answer = path(QStringLiteral("missing/a.csv"));
  EXPECT_FALSE(endsTheProgram([this] { item("quit_item").trigger(); }));
  EXPECT_EQ(dialogs().alerts.size(), 1U);
  dialogs().answer = path(QStringLiteral("a.csv"));
  EXPECT_TRUE(endsTheProgram([this] { item("quit_item").trigger(); }));
  EXPECT_EQ(read(path(QStringLiteral("a.csv"))), measurement_file(Quantity::length, {1.0}));
}

TEST_F(MeasurementFilesTest, QuittingAsksNothingWhenAllIsSaved) {
  addRows(Quantity::length, {1.0});
  measurements().setSaved();
  EXPECT_TRUE(endsTheProgram([this] { item("quit_item").trigger(); }));
  EXPECT_TRUE(dialogs().unsaved_questions.empty());
}

TEST_F(MeasurementFilesTest, QuittingAsksAboutANoteThatIsStillBeingTyped) {
  const std::vector<std::function<void()>> ways{[this] { item("quit_item").trigger(); },
                                                [this] {
                                                  chamberWindow().close();
                                                  projectorWindow().close();
                                                  window().close();
                                                }};
  addRows(Quantity::length, {10.0});
  dialogs().save_answer = SaveAnswer::cancel;
  QString note;
  for (const auto& end : ways) {
    measurements().setSaved();
    openMeasurements();
    clickCell(0, MeasurementColumn::note);
    QTest::keyClick(&table(), Qt::Key_F2);
    note += QLatin1Char('x');
    QTest::keyClicks(QApplication::focusWidget(), note);
    dialogs().unsaved_questions.clear();
    EXPECT_FALSE(endsTheProgram(end));
    EXPECT_EQ(dialogs().unsaved_questions.size(), 1U);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(MeasurementFilesTest, ClosingTheLastWindowAsksAndCancelLeavesItOpen) {
  addRows(Quantity::length, {1.0});
  dialogs().save_answer = SaveAnswer::cancel;
  EXPECT_FALSE(endsTheProgram([this] {
    projectorWindow().close();
    EXPECT_TRUE(dialogs().unsaved_questions.empty());
    chamberWindow().close();
  }));
  EXPECT_EQ(dialogs().unsaved_questions.size(), 1U);
  EXPECT_TRUE(chamberWindow().isVisible());
  dialogs().save_answer = SaveAnswer::discard;
  EXPECT_TRUE(endsTheProgram([this] { chamberWindow().close(); }));
}

TEST_F(MeasurementFilesTest, ThirtyFilesOfThirtyRowsAreAddedDrawnAndFittedInHalfASecond) {
  openMeasurements();
  windowControl<QComboBox>("fit_popup").setCurrentIndex(1);
  for (int file = 0; file < 30; ++file) {
    Values lengths;
    for (int row = 0; row < 30; ++row) {
      lengths.push_back(1.0 + (file * 31 + row * 17) % 97);
    }
    dialogs().file_answers << write(QStringLiteral("class-%1.csv").arg(file),
                                    measurement_file(Quantity::decay_length, lengths));
  }
  // The processor's time of this program, whatever else the machine does.
  const std::clock_t begin = std::clock();
  run("add_files_item");
  handle_waiting_events();
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  EXPECT_EQ(measurements().rows().size(), 900U);
  EXPECT_TRUE(windowControl<QLabel>("histogram_summary")
                  .text()
                  .contains(QStringLiteral("Exponential: decay length")));
#ifndef VELQUON_SANITIZED
  EXPECT_LT(seconds, 0.5);
#endif
  RecordProperty("milliseconds", static_cast<int>(seconds * 1000.0));
}

}  // namespace velquon::test
