// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Save Picture and Copy as commands: what is asked, what is refused, and what is copied where.

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidgetItem>

#include "record/measurement_columns.h"
#include "record/measurements_window.h"
#include "record/record_tree.h"
#include "record/record_window.h"
#include "tests/app/picture_files_fixture.h"
#include "tests/support/documents/modal.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/type_places.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

/// Chooses all in a window's focus and copies it.
/// \return the text on the clipboard
QString text_copied_in(QWidget& window) {
  QApplication::clipboard()->clear();
  QTest::keyClick(window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(window.windowHandle(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasImage());
  return QApplication::clipboard()->text();
}

using PictureCommandsTest = PictureFilesFixture;

}  // namespace

TEST_F(PictureCommandsTest, ACopyIsThePictureOnTheScreenWithoutTheCrossOfTheKeys) {
  EXPECT_EQ(copied(chamberWindow()), picture_of(chamber()));
  chamber().set_show_values(false);
  EXPECT_EQ(copied(chamberWindow()), picture_of(chamber()));
  const QImage without_cross = picture_of(projection());
  activate(projectorWindow());
  projection().setFocus();
  QTest::keyClick(&projection(), Qt::Key_Left);
  ASSERT_FALSE(pixels_of(picture_of(projection()), yellow).empty());
  EXPECT_EQ(copied(projectorWindow()), without_cross);
}

TEST_F(PictureCommandsTest, WhatCannotBeWrittenIsToldAndLeavesNoHalfFile) {
  const QString old = write(QStringLiteral("picture.png"), "old");
  const QStringList before = files();
  {
    const velquon::test::FileSizeLimit limit(1000);
    save(chamberWindow(), plain_picture, QStringLiteral("picture.png"));
  }
  save(chamberWindow(), plain_picture, QStringLiteral("missing/picture.png"));
  const auto not_saved = [](const QString& file, const char* reason) {
    return RecordingDialogs::Alert{
        QStringLiteral("Not saved"),
        QStringLiteral("Velquon can't write the file %1: %2.").arg(file, QLatin1String(reason))};
  };
  EXPECT_EQ(dialogs().alerts, (std::vector{not_saved(old, "File too large"),
                                           not_saved(path(QStringLiteral("missing/picture.png")),
                                                     "No such file or directory")}));
  EXPECT_EQ(read(old), "old");
  EXPECT_EQ(files(), before);
}

TEST_F(PictureCommandsTest, NothingIsWrittenWhenOneGivesUp) {
  const QStringList before = files();
  save(chamberWindow(), plain_picture, {});
  dialogs().answer = path(QStringLiteral("picture.png"));
  dialogs().questions.clear();
  EXPECT_TRUE(with_dialogs([&] { choose("save_picture_item"); },
                           {{"velquon::PicturePanel",
                             [](QWidget& panel) { QTest::keyClick(&panel, Qt::Key_Escape); }}}));
  EXPECT_TRUE(dialogs().questions.empty());
  EXPECT_EQ(files(), before);
}

TEST_F(PictureCommandsTest, AsksForAFileOfTheChosenFormatNamedAfterTheEvent) {
  save(projectorWindow(), {.format = PictureFormat::svg}, QStringLiteral("a.svg"));
  save(chamberWindow(), plain_picture, QStringLiteral("a.png"));
  const RecordingDialogs::Question drawing{
      QStringLiteral("Save Picture"), QStringLiteral("SVG files (*.svg)"),
      QStringLiteral("event Projector"), QStringLiteral("svg")};
  const RecordingDialogs::Question picture{QStringLiteral("Save Picture"),
                                           QStringLiteral("PNG files (*.png)"),
                                           QStringLiteral("event Chamber"), QStringLiteral("png")};
  EXPECT_EQ(dialogs().questions, (std::vector{drawing, picture}));
}

TEST_F(PictureCommandsTest, CanBeChosenWhileAViewIsInFront) {
  const auto can_be_chosen = [this] {
    return item("save_picture_item").isEnabled() && item("copy_picture_item").isEnabled();
  };
  EXPECT_TRUE(can_be_chosen());
  choose("activate_item");
  ASSERT_TRUE(wait_until([&] { return !can_be_chosen(); }));
  EXPECT_FALSE(item("save_picture_item").isEnabled());
  EXPECT_FALSE(item("copy_picture_item").isEnabled());
}

TEST_F(PictureCommandsTest, CtrlCInATextFieldCopiesItsText) {
  activate(chamberWindow());
  QTest::mouseDClick(&control<QWidget>("magfield_text"), Qt::LeftButton);
  ASSERT_TRUE(wait_until([] {
    return QApplication::focusWidget() != nullptr &&
           QApplication::focusWidget()->inherits("QAbstractSpinBox");
  }));
  EXPECT_EQ(text_copied_in(chamberWindow()), QStringLiteral("2"));
}

TEST_F(PictureCommandsTest, CtrlCInATableOrInTheGuideCopiesItsText) {
  makeEvent(lambda_type);
  choose("event_record_item");
  RecordWindow& record = application().recordWindow();
  ASSERT_TRUE(wait_until([&] { return record.isActiveWindow(); }));
  record.tree().setFocus();
  record.tree().setCurrentItem(record.tree().topLevelItem(0));
  EXPECT_EQ(text_copied_in(record), record.tree().topLevelItem(0)->text(0));
  Measurement row;
  row.value = 12.5;
  application().measurements().add({row});
  choose("measurements_item");
  MeasurementsWindow& measured = application().measurementsWindow();
  ASSERT_TRUE(wait_until([&] { return measured.isActiveWindow(); }));
  QTableView& table = measured.table();
  table.setFocus();
  table.selectAll();
  table.setCurrentIndex(table.model()->index(0, static_cast<int>(MeasurementColumn::value)));
  EXPECT_TRUE(text_copied_in(measured).contains(QStringLiteral("12.5")));
  choose("guide_item");
  ASSERT_TRUE(wait_until(
      [] { return qobject_cast<QTextBrowser*>(QApplication::focusWidget()) != nullptr; }));
  EXPECT_TRUE(text_copied_in(*QApplication::activeWindow()).contains(QStringLiteral("Velquon")));
}

}  // namespace velquon::test
