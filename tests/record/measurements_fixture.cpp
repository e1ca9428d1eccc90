// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/record/measurements_fixture.h"

#include <QAction>
#include <QLabel>
#include <QTest>

#include "model/measurement_file.h"
#include "tests/support/windows/input.h"
#include "tests/support/windows/waiting.h"

namespace velquon::test {

namespace {

MeasurementTable rows_of(Quantity quantity, const std::vector<double>& values,
                         const std::string& note) {
  MeasurementTable rows;
  for (const double value : values) {
    Measurement row;
    row.event = "event";
    row.quantity = quantity;
    row.value = value;
    row.note = note;
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

void MeasurementsFixture::openMeasurements() {
  choose("measurements_item");
  ASSERT_TRUE(wait_until_exposed(&window()));
  ASSERT_TRUE(wait_until([this] { return window().isActiveWindow(); }));
  handle_waiting_events();
}

void MeasurementsFixture::layTape(QPoint from, QPoint to) {
  drag(projection(), from, to);
}

void MeasurementsFixture::addRows(Quantity quantity, const std::vector<double>& values) {
  measurements().add(rows_of(quantity, values, {}));
}

void MeasurementsFixture::run(const char* item_name) {
  auto* const item = window().findChild<QAction*>(QLatin1String(item_name));
  ASSERT_NE(item, nullptr) << item_name;
  ASSERT_TRUE(item->isEnabled()) << item_name;
  item->trigger();
}

std::string MeasurementsFixture::message() {
  return windowControl<QLabel>("measurements_message").text().toStdString();
}

std::string MeasurementsFixture::cell(int row, MeasurementColumn column) {
  const QAbstractItemModel& model = *table().model();
  return model.data(model.index(row, static_cast<int>(column))).toString().toStdString();
}

void MeasurementsFixture::clickCell(int row, MeasurementColumn column, Qt::KeyboardModifiers keys) {
  const QModelIndex index = table().model()->index(row, static_cast<int>(column));
  table().scrollTo(index);
  QTest::mouseClick(table().viewport(), Qt::LeftButton, keys, table().visualRect(index).center());
}

QByteArray measurement_file(Quantity quantity, const std::vector<double>& values,
                            const std::string& note) {
  return QByteArray::fromStdString(encode_measurements(rows_of(quantity, values, note)));
}

}  // namespace velquon::test
