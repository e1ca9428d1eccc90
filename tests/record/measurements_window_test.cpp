// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window of measurements through mouse and keyboard: recording, the
// histogram, many rows.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <ctime>

#include "model/projector.h"
#include "tests/record/measurements_fixture.h"
#include "tests/support/documents/environment.h"
#include "tests/support/windows/pictures.h"
#include "tests/support/windows/screen_view.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

using Column = MeasurementColumn;

class MeasurementsWindowTest : public MeasurementsFixture {
 protected:
  std::string summary() { return windowControl<QLabel>("histogram_summary").text().toStdString(); }
};

}  // namespace

TEST_F(MeasurementsWindowTest, ComesUpByItsMenuItemWithAMenuOfItsOwn) {
  openMeasurements();
  EXPECT_EQ(window().windowTitle().toStdString(), "Measurements");
  QStringList titles;
  for (const QAction* const menu : window().menuBar()->actions()) {
    titles << menu->text().remove(QLatin1Char('&'));
  }
  EXPECT_EQ(titles.join(QLatin1Char(' ')).toStdString(),
            "File Action Event Settings Track Measurements Window Help");
  EXPECT_EQ(summary(), "There are no measurements yet.");
}

TEST_F(MeasurementsWindowTest, NoItemHasTheShortcutOfAnother) {
  QHash<QString, QString> taken;
  for (const QAction* const action : window().findChildren<QAction*>()) {
    for (const QKeySequence& keys : action->shortcuts()) {
      EXPECT_FALSE(taken.contains(keys.toString())) << keys.toString().toStdString();
      taken[keys.toString()] = action->objectName();
    }
  }
  for (const char* const name : {"save_item", "open_item", "quit_item", "new_event_item"}) {
    EXPECT_FALSE(taken.contains(item(name).shortcut().toString())) << name;
  }
}

TEST_F(MeasurementsWindowTest, RecordNotesWhatTheTapeReads) {
  makeEvent(1);
  openMeasurements();
  activate(projectorWindow());
  layTape(QPoint(100, 200), QPoint(200, 200));
  activate(window());
  QTest::keyClick(&table(), Qt::Key_Return, Qt::ControlModifier);
  ASSERT_EQ(rows(), 1);
  EXPECT_EQ(cell(0, Column::event), "Untitled Type 2 Decay 1");
  EXPECT_EQ(cell(0, Column::quantity), "length");
  EXPECT_EQ(cell(0, Column::plane), "xy");
  EXPECT_EQ(cell(0, Column::unit), "cm");
  EXPECT_EQ(cell(0, Column::field), "0.6");
  EXPECT_EQ(cell(0, Column::longest), "500");
  // 100 view units at 500 / 400 cm each, the whole row as the tape says.
  EXPECT_EQ(cell(0, Column::value), "125");
  EXPECT_EQ(measurements().rows().front().value, 125.0);
  // Plain Return in the table notes it once more.
  QTest::keyClick(&table(), Qt::Key_Return);
  EXPECT_EQ(rows(), 2);
}

TEST_F(MeasurementsWindowTest, EventsOfOneNameAreToldApart) {
  makeEvent(1);
  layTape(QPoint(100, 200), QPoint(200, 200));
  application().recordReadings();
  choose("new_event_item");
  layTape(QPoint(100, 200), QPoint(180, 200));
  application().recordReadings();
  ASSERT_EQ(rows(), 2);
  EXPECT_NE(cell(0, Column::event), cell(1, Column::event));
}

TEST_F(MeasurementsWindowTest, RecordingElsewhereShowsTheWindowAndLeavesTheKeys) {
  makeEvent(1);
  activate(projectorWindow());
  layTape(QPoint(100, 200), QPoint(200, 200));
  application().recordReadings();
  ASSERT_TRUE(wait_until_exposed(&window()));
  run_loop_for(200);
  EXPECT_TRUE(projectorWindow().isActiveWindow());
  EXPECT_EQ(rows(), 1);
}

TEST_F(MeasurementsWindowTest, RecordingElsewhereDoesNotCoverTheWindowInWhichOneMeasures) {
  makeEvent(1);
  activate(projectorWindow());
  layTape(QPoint(100, 200), QPoint(200, 200));
  window().move(projectorWindow().pos());
  application().recordReadings();
  ASSERT_TRUE(wait_until_exposed(&window()));
  EXPECT_TRUE(screen_comes_to_show(projection(), picture_of(projection())));
}

TEST_F(MeasurementsWindowTest, TheProjectorsButtonRecords) {
  makeEvent(1);
  activate(projectorWindow());
  layTape(QPoint(100, 200), QPoint(200, 200));
  auto* const button =
      projectorWindow().findChild<QAbstractButton*>(QStringLiteral("record_button"));
  ASSERT_NE(button, nullptr);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(measurements().rows().size(), 1U);
}

TEST_F(MeasurementsWindowTest, ColumnsWidenForWhatIsRecordedLater) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  addRows(Quantity::angle, {0.430143});
  addRows(Quantity::transverse_momentum, {22.615});
  Measurement long_texts;
  long_texts.event = "a name that is longer than the first one";
  long_texts.note = std::string(400, 'n');
  measurements().add({long_texts});
  for (const Column column : {Column::event, Column::quantity, Column::value, Column::unit}) {
    const int index = static_cast<int>(column);
    int widest = 0;
    for (int row = 0; row < rows(); ++row) {
      widest = std::max(widest, table().fontMetrics().horizontalAdvance(
                                    QString::fromStdString(cell(row, column))));
    }
    EXPECT_GT(table().columnWidth(index), widest) << index;
  }
  EXPECT_LE(table().columnWidth(static_cast<int>(Column::note)), 300);
  EXPECT_FALSE(table().wordWrap()) << "a number stays on one line";
}

TEST_F(MeasurementsWindowTest, AWidthThatIsChosenStays) {
  addRows(Quantity::length, {10.0});
  openMeasurements();
  table().setColumnWidth(0, 222);
  addRows(Quantity::length, {20.0});
  EXPECT_EQ(table().columnWidth(0), 222);
}

TEST_F(MeasurementsWindowTest, RecordWithoutAToolLaidOutSaysWhatToDo) {
  openMeasurements();
  run("record_item");
  EXPECT_EQ(rows(), 0);
  EXPECT_EQ(message(), "Nothing is measured: lay out a tool of the projector first.");
  EXPECT_TRUE(windowControl<QLabel>("measurements_message").isVisible());
}

TEST_F(MeasurementsWindowTest, TheHistogramFillsWhileOneMeasures) {
  openMeasurements();
  auto& bins = windowControl<QTableWidget>("bins_table");
  EXPECT_EQ(bins.rowCount(), 0);
  addRows(Quantity::length, {12.0});
  EXPECT_EQ(summary(), "One value, 12 cm.");
  addRows(Quantity::length, {14.0, 16.0});
  EXPECT_EQ(summary(), "3 values. Mean 14.0 ± 1.2 cm, spread 2 cm.");
  int counted = 0;
  for (int bin = 0; bin < bins.rowCount(); ++bin) {
    counted += bins.item(bin, 2)->text().toInt();
  }
  EXPECT_EQ(counted, 3);
}

TEST_F(MeasurementsWindowTest, ThePopUpListsTheQuantitiesThatArePresent) {
  addRows(Quantity::radius, {1.0});
  addRows(Quantity::length, {2.0});
  openMeasurements();
  auto& popup = windowControl<QComboBox>("quantity_popup");
  ASSERT_EQ(popup.count(), 2);
  EXPECT_EQ(popup.itemText(0).toStdString(), "length");
  EXPECT_EQ(popup.itemText(1).toStdString(), "radius");
  popup.setCurrentIndex(1);
  addRows(Quantity::tracks, {3.0});
  // What was chosen stays so.
  EXPECT_EQ(popup.currentText().toStdString(), "radius");
  EXPECT_EQ(popup.count(), 3);
}

TEST_F(MeasurementsWindowTest, ThePlotCanBeSavedWhenTheChosenQuantityHasValues) {
  addRows(Quantity::length, {5.0});
  Measurement row = measurements().rows().front();
  row.ending = Ending::left;
  measurements().change(0, row);
  addRows(Quantity::radius, {2.0});
  openMeasurements();
  auto& popup = windowControl<QComboBox>("quantity_popup");
  ASSERT_EQ(popup.currentText().toStdString(), "length");
  EXPECT_FALSE(windowControl<QAction>("save_plot_item").isEnabled());
  popup.setCurrentIndex(1);
  EXPECT_TRUE(windowControl<QAction>("save_plot_item").isEnabled());
  popup.setCurrentIndex(0);
  EXPECT_FALSE(windowControl<QAction>("save_plot_item").isEnabled());
}

TEST_F(MeasurementsWindowTest, TheNumberOfBinsIsAutomaticOrChosen) {
  addRows(Quantity::length, {0.0, 1.0, 2.0, 3.0, 10.0});
  openMeasurements();
  auto& box = windowControl<QSpinBox>("bins_box");
  EXPECT_EQ(box.text().toStdString(), "Automatic");
  box.setFocus();
  box.selectAll();
  QTest::keyClicks(&box, QStringLiteral("5"));
  QTest::keyClick(&box, Qt::Key_Return);
  const auto& bins = windowControl<QTableWidget>("bins_table");
  ASSERT_EQ(bins.rowCount(), 5);
  EXPECT_EQ(bins.item(0, 0)->text().toStdString(), "0");
  EXPECT_EQ(bins.item(0, 1)->text().toStdString(), "2");
  EXPECT_EQ(bins.item(0, 2)->text().toStdString(), "2");
  EXPECT_EQ(bins.item(4, 2)->text().toStdString(), "1");
}

TEST_F(MeasurementsWindowTest, AFitTellsItsResultWithTheChambersCut) {
  addRows(Quantity::decay_length, {10.0, 20.0, 30.0, 40.0});
  openMeasurements();
  windowControl<QComboBox>("fit_popup").setCurrentIndex(1);
  EXPECT_NE(summary().find("Exponential: decay length 25 ± 13 cm. The chamber's walls are not"),
            std::string::npos)
      << summary();
  MeasurementTable left(2);
  for (Measurement& row : left) {
    row.quantity = Quantity::decay_length;
    row.value = 50.0;
    row.ending = Ending::left;
  }
  measurements().add(left);
  EXPECT_NE(summary().find("Exponential: decay length 50 ± 25 cm. Tracks that left count"),
            std::string::npos)
      << summary();
  EXPECT_NE(summary().find("Tracks that left the chamber, not in the bars: 2."), std::string::npos);
  windowControl<QComboBox>("fit_popup").setCurrentIndex(2);
  EXPECT_NE(summary().find("Gaussian: mean 25.0 ± 5.6 cm, standard deviation 11.2 ± 4.0 cm."),
            std::string::npos)
      << summary();
}

TEST_F(MeasurementsWindowTest, ThePlotIsTheModulesAndTellsScreenReadersWhatItShows) {
  addRows(Quantity::length, {1.0, 2.0, 3.0});
  openMeasurements();
  auto& plot = windowControl<QWidget>("histogram_plot");
  EXPECT_EQ(qobject_cast<QLabel*>(&plot), nullptr);
  EXPECT_EQ(plot.accessibleName().toStdString(), "Histogram");
  EXPECT_NE(plot.accessibleDescription().toStdString().find("length (cm)"), std::string::npos);
  EXPECT_NE(plot.accessibleDescription().toStdString().find("3 values. Mean 2.00"),
            std::string::npos)
      << plot.accessibleDescription().toStdString();
}

TEST_F(MeasurementsWindowTest, BarsAndCurveAreOnTheScreenInEitherPalette) {
  addRows(Quantity::decay_length, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 15, 20, 30});
  openMeasurements();
  windowControl<QComboBox>("fit_popup").setCurrentIndex(1);
  auto& plot = windowControl<QWidget>("histogram_plot");
  const auto pixels_of = [&](const QColor& color) {
    run_loop_for(100);
    const QImage picture = plot.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        count += picture.pixelColor(x, y) == color ? 1 : 0;
      }
    }
    return count;
  };
  EXPECT_GT(pixels_of(window().palette().color(QPalette::Highlight)), 500);
  EXPECT_GT(pixels_of(QColor(0xC0, 0x30, 0x00)), 30);
  QPalette dark = window().palette();
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  dark.setColor(QPalette::Text, QColor(230, 230, 230));
  dark.setColor(QPalette::Highlight, QColor(90, 140, 220));
  window().setPalette(dark);
  EXPECT_GT(pixels_of(QColor(20, 20, 20)), 5000);
  EXPECT_GT(pixels_of(QColor(90, 140, 220)), 500);
  EXPECT_GT(pixels_of(QColor(0xFF, 0xC0, 0x40)), 30);
}

TEST_F(MeasurementsWindowTest, EveryControlHasANameForScreenReadersAndTheTabKeyReachesThem) {
  addRows(Quantity::length, {1.0, 2.0});
  openMeasurements();
  table().setFocus();
  QStringList reached;
  for (int step = 0; step < 40; ++step) {
    QWidget* const focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    if (reached.contains(focus->objectName()) && step > 20) {
      break;
    }
    reached << focus->objectName();
    QTest::keyClick(focus, Qt::Key_Tab);
  }
  for (const char* const name : {"measurements_table", "quantity_popup", "bins_box", "fit_popup"}) {
    EXPECT_TRUE(reached.contains(QLatin1String(name))) << name;
    EXPECT_FALSE(windowControl<QWidget>(name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(MeasurementsWindowTest, AHundredThousandRowsAreShownAndUndone) {
  openMeasurements();
  std::vector<double> values;
  values.reserve(100'000);
  for (int i = 0; i < 100'000; ++i) {
    values.push_back(i % 977);
  }
  const std::clock_t begin = std::clock();
  addRows(Quantity::decay_length, values);
  handle_waiting_events();
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  EXPECT_EQ(rows(), 100'000);
  EXPECT_EQ(cell(99'999, Column::value), std::to_string(99'999 % 977));
  EXPECT_LT(seconds, 5.0);
  run("undo_item");
  EXPECT_EQ(rows(), 0);
}

}  // namespace velquon::test
