// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "model/decay_fit.h"
#include "model/histogram.h"
#include "model/measured_sample.h"
#include "model/measurements.h"

class QComboBox;
class QLabel;
class QSpinBox;
class QTableWidget;

namespace velquon {

class HistogramPlot;

/// The histogram of one of the quantities that are measured, its mean and spread, a fit when one is
/// chosen, and the same as a table of bins.
class HistogramPanel : public QWidget {
  Q_OBJECT

 public:
  /// \param measurements what it shows
  explicit HistogramPanel(const Measurements& measurements, QWidget* parent = nullptr);

  /// Shows the present rows.
  void refresh();

  /// Whether there is a picture of values.
  [[nodiscard]] bool canBeSaved() const { return plot_ != nullptr && !sample_.values.empty(); }
  [[nodiscard]] QByteArray asPng();
  [[nodiscard]] QByteArray asPdf();

 Q_SIGNALS:
  /// Other values are shown, or in another way.
  void sampleChanged();

 private:
  void layOut();
  void listQuantities();
  [[nodiscard]] QString axisTitle() const;
  /// What the numbers of the sample say.
  [[nodiscard]] QString summary() const;
  /// What the chosen fit gives; empty without one.
  [[nodiscard]] QString fitText() const;
  void fit();
  [[nodiscard]] double expected(double value) const;
  void showPlot();
  void showBins();

  const Measurements& measurements_;
  QComboBox* quantity_popup_;
  QSpinBox* bins_box_;
  QComboBox* fit_popup_;
  QLabel* summary_;
  HistogramPlot* plot_;  ///< null when none can be drawn
  QTableWidget* bins_;
  std::vector<Quantity> quantities_;  ///< in the order of the pop-up
  MeasuredSample sample_;
  Histogram histogram_;
  std::optional<DecayFit> decay_;
  std::optional<GaussianFit> gaussian_;
};

}  // namespace velquon
