// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QWidget>
#include <utility>
#include <vector>

#include "model/histogram.h"

class QCPBars;
class QCPGraph;
class QCustomPlot;

namespace velquon {

/// Bars and a curve over them, in the colours of the palette. It tells screen readers nothing but
/// its name and description: what it shows belongs into a table, too.
class HistogramPlot : public QWidget {
  Q_OBJECT

 public:
  explicit HistogramPlot(QWidget* parent = nullptr);

  using Curve = std::vector<std::pair<double, double>>;
  /// \param title of the axis of values
  /// \param curve its points by rising values; empty for none
  void showHistogram(const Histogram& histogram, const QString& title, const Curve& curve);

  /// The picture for a page, dark on white, as a file of its kind.
  [[nodiscard]] QByteArray asPng();
  [[nodiscard]] QByteArray asPdf();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void takeColors(const QPalette& palette);

  QCustomPlot* plot_;
  QCPBars* bars_;
  QCPGraph* curve_;
};

}  // namespace velquon
