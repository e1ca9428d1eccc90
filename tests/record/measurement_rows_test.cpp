// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Rows in the table of measurements through mouse and keyboard: editing, deleting, copying, undoing.

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <cmath>

#include "tests/record/measurements_fixture.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

using RowColumn = MeasurementColumn;

class MeasurementRowsTest : public MeasurementsFixture {
 protected:
  /// Opens the editor of a cell by F2; null where there is none.
  QLineEdit* editorOf(int row, RowColumn column) {
    clickCell(row, column);
    QTest::keyClick(&table(), Qt::Key_F2);
    return table().findChild<QLineEdit*>();
  }
  /// Edits a cell by F2 and the keyboard.
  void typeInto(int row, RowColumn column, const QString& text) {
    QLineEdit* const editor = editorOf(row, column);
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    handle_waiting_events();
    // The editor goes before another one comes.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

}  // namespace

TEST_F(MeasurementRowsTest, ANoteIsEditedInItsPlaceAndUndoneByTheKeys) {
  addRows(Quantity::length, {10.0, 20.0});
  openMeasurements();
  typeInto(1, RowColumn::note, QStringLiteral("=my note, first"));
  EXPECT_EQ(measurements().rows()[1].note, "=my note, first");
  EXPECT_EQ(cell(1, RowColumn::note), "=my note, first");
  QTest::keyClick(&table(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(cell(1, RowColumn::note), "");
  QTest::keyClick(&table(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(cell(1, RowColumn::note), "=my note, first");
}

TEST_F(MeasurementRowsTest, TheLongestLengthIsANumberAboveZeroOrNothing) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  typeInto(0, RowColumn::longest, QStringLiteral("250.5"));
  EXPECT_EQ(measurements().rows()[0].longest_cm, 250.5);
  for (const char* const refused : {"-1", "0", "nan", "inf", "1,234.5", "1,234,567", "far"}) {
    typeInto(0, RowColumn::longest, QLatin1String(refused));
    EXPECT_EQ(measurements().rows()[0].longest_cm, 250.5) << refused;
  }
  typeInto(0, RowColumn::longest, QStringLiteral("1,234"));
  EXPECT_EQ(measurements().rows()[0].longest_cm, 1.234) << "a comma is a decimal point";
  typeInto(0, RowColumn::longest, QStringLiteral(" "));
  EXPECT_TRUE(std::isnan(measurements().rows()[0].longest_cm));
}

TEST_F(MeasurementRowsTest, WhatBecameOfATrackIsChosenFromAPopUp) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  clickCell(0, RowColumn::ending);
  QTest::keyClick(&table(), Qt::Key_F2);
  auto* const popup = table().findChild<QComboBox*>(QStringLiteral("ending_popup"));
  ASSERT_NE(popup, nullptr);
  QTest::keyClick(popup, Qt::Key_End);
  QTest::keyClick(popup, Qt::Key_Return);
  table().setFocus();
  handle_waiting_events();
  EXPECT_EQ(measurements().rows()[0].ending, Ending::left);
  EXPECT_EQ(cell(0, RowColumn::ending), "left");
}

TEST_F(MeasurementRowsTest, ValuesCannotBeEdited) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  EXPECT_EQ(editorOf(0, RowColumn::value), nullptr);
}

TEST_F(MeasurementRowsTest, ChosenRowsAreDeletedInOneStep) {
  addRows(Quantity::length, {10.0, 20.0, 30.0, 40.0});
  openMeasurements();
  clickCell(0, RowColumn::event);
  clickCell(2, RowColumn::event, Qt::ControlModifier);
  QTest::keyClick(&table(), Qt::Key_Delete);
  ASSERT_EQ(rows(), 2);
  EXPECT_EQ(cell(0, RowColumn::value), "20");
  EXPECT_EQ(cell(1, RowColumn::value), "40");
  QTest::keyClick(&table(), Qt::Key_Z, Qt::ControlModifier);
  ASSERT_EQ(rows(), 4);
  EXPECT_EQ(cell(2, RowColumn::value), "30");
}

TEST_F(MeasurementRowsTest, ChosenRowsAreCopiedAsLinesOfCellsSeparatedByTabs) {
  addRows(Quantity::length, {10.0, 20.0, 30.0});
  Measurement noted = measurements().rows()[2];
  noted.note = "a\tnote\nmore  of it";
  measurements().change(2, noted);
  openMeasurements();
  clickCell(2, RowColumn::event);
  clickCell(0, RowColumn::event, Qt::ControlModifier);
  QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
  ASSERT_EQ(lines.size(), 2);
  for (const int line : {0, 1}) {
    const QStringList cells = lines[line].split(QLatin1Char('\t'));
    ASSERT_EQ(cells.size(), table().model()->columnCount());
    for (int column = 0; column < cells.size(); ++column) {
      const std::string shown = cell(2 * line, static_cast<RowColumn>(column));
      EXPECT_EQ(cells[column].toStdString(), shown == noted.note ? "a note more  of it" : shown);
    }
  }
  EXPECT_TRUE(lines[1].contains(QStringLiteral("a note more")));
}

TEST_F(MeasurementRowsTest, TheKeysOfCopyDoNothingWithoutRowsAndSayWhatToChoose) {
  openMeasurements();
  QApplication::clipboard()->setText(QStringLiteral("from before"));
  QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
  addRows(Quantity::length, {10.0});
  table().clearSelection();
  QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(message(), "Choose the rows to copy.");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "from before");
  clickCell(0, RowColumn::event);
  QTest::keyClick(&table(), Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(message(), "");
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("\tlength\t")));
}

TEST_F(MeasurementRowsTest, ANoteThatIsBeingTypedStaysWhenRowsChange) {
  addRows(Quantity::length, {10.0, 20.0});
  makeEvent(1);
  activate(projectorWindow());
  layTape(QPoint(100, 200), QPoint(200, 200));
  openMeasurements();
  QLineEdit* const editor = editorOf(0, RowColumn::note);
  ASSERT_NE(editor, nullptr);
  QTest::keyClicks(editor, QStringLiteral("half a"));
  QTest::keyClick(editor, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(rows(), 3);
  EXPECT_EQ(measurements().rows()[0].note, "half a");
}

TEST_F(MeasurementRowsTest, AColumnThatThereIsNotHasNoTitle) {
  for (const int column : {-1, table().model()->columnCount()}) {
    EXPECT_FALSE(table().model()->headerData(column, Qt::Horizontal).isValid());
  }
}

TEST_F(MeasurementRowsTest, CopyInANoteTakesItsWords) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  typeInto(0, RowColumn::note, QStringLiteral("my words"));
  QLineEdit* const editor = editorOf(0, RowColumn::note);
  ASSERT_NE(editor, nullptr);
  editor->selectAll();
  QTest::keyClick(editor, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "my words");
}

TEST_F(MeasurementRowsTest, CopyInTheTableOfBinsTakesABinAndNoRows) {
  addRows(Quantity::length, {10.0, 20.0});
  openMeasurements();
  table().selectAll();
  windowControl<QTabWidget>("histogram_tabs").setCurrentIndex(1);
  auto& bins = windowControl<QTableWidget>("bins_table");
  bins.setFocus();
  bins.setCurrentCell(0, 2);
  QTest::keyClick(&bins, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), bins.item(0, 2)->text().toStdString());
}

TEST_F(MeasurementRowsTest, DeleteInANoteTakesALetterAndNoRow) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  typeInto(0, RowColumn::note, QStringLiteral("ab"));
  QLineEdit* const editor = editorOf(0, RowColumn::note);
  ASSERT_NE(editor, nullptr);
  editor->setCursorPosition(0);
  QTest::keyClick(editor, Qt::Key_Delete);
  QTest::keyClick(editor, Qt::Key_Return);
  handle_waiting_events();
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(measurements().rows()[0].note, "b");
  // Nor does it where another control has the focus.
  auto& popup = windowControl<QComboBox>("quantity_popup");
  popup.setFocus();
  QTest::keyClick(&popup, Qt::Key_Delete);
  EXPECT_EQ(rows(), 1);
}

}  // namespace velquon::test
