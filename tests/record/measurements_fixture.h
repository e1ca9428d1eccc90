// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTableView>
#include <string>

#include "record/measurement_columns.h"
#include "record/measurements_window.h"
#include "tests/support/documents/documents_fixture.h"

namespace velquon::test {

/// The whole program, for tests of the window of measurements.
class MeasurementsFixture : public DocumentsFixture {
 protected:
  [[nodiscard]] MeasurementsWindow& window() { return application().measurementsWindow(); }
  [[nodiscard]] Measurements& measurements() { return application().measurements(); }
  [[nodiscard]] QTableView& table() { return window().table(); }

  /// Brings the window up by its menu item and waits until it is active.
  void openMeasurements();
  /// Lays the projector's tape from one place to another, view units, as a person does.
  void layTape(QPoint from, QPoint to);
  /// Appends rows of a quantity with values.
  void addRows(Quantity quantity, const std::vector<double>& values);
  /// Chooses an item of the window's own menu.
  void run(const char* item_name);
  /// What is told below the table.
  [[nodiscard]] std::string message();
  /// The number of rows in the table.
  [[nodiscard]] int rows() { return table().model()->rowCount(); }
  /// A cell's text on the screen.
  [[nodiscard]] std::string cell(int row, MeasurementColumn column);
  /// Clicks a cell as a person does.
  void clickCell(int row, MeasurementColumn column, Qt::KeyboardModifiers keys = Qt::NoModifier);
  /// A control in the window by its object name.
  template <typename Widget>
  [[nodiscard]] Widget& windowControl(const char* name) {
    auto* const widget = window().findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) {
      throw std::runtime_error(std::string("no control ") + name);
    }
    return *widget;
  }
};

/// A file of measurements with a row for each value, all of one quantity.
[[nodiscard]] QByteArray measurement_file(Quantity quantity, const std::vector<double>& values,
                                          const std::string& note = {});

}  // namespace velquon::test
