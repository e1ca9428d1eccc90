// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>
#include <cstdint>
#include <vector>

#include "model/measurements.h"

namespace velquon {

/// Columns of the table of measurements on the screen.
enum class MeasurementColumn : std::uint8_t {
  event,
  quantity,
  plane,
  value,
  error,
  unit,
  field,
  ending,
  longest,
  note,
  file,
};

/// A number as the window tells it: five digits that count, nothing for one that is not known.
[[nodiscard]] QString number_text(double number);

/// The measurements for a table view. Ending, longest length and note can be edited; an edit that is
/// no word or number of the kind is refused.
class MeasurementColumns : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// \param measurements what it shows
  explicit MeasurementColumns(Measurements& measurements, QObject* parent = nullptr);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// \param rows indices below the number of rows
  /// \return the texts of the rows as they are shown, a line each, cells separated by tabs
  [[nodiscard]] QString linesOf(const std::vector<std::size_t>& rows) const;

  /// Shows the present rows: told apart are rows changed in place and rows added at the end, at which
  /// the view keeps what is chosen in it.
  void refresh();

 private:
  [[nodiscard]] QString text(const Measurement& row, MeasurementColumn column) const;

  Measurements& measurements_;
  int shown_rows_ = 0;
};

/// Words for an ending on the screen, in the order of Ending.
[[nodiscard]] QStringList ending_texts();

}  // namespace velquon
