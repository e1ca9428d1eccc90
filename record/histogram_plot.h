// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QWidget>
#include <memory>
#include <utility>
#include <vector>

#include "model/histogram.h"

namespace velquon {

/// Bars and a curve over them, in the colours of the palette. It tells screen readers nothing but
/// its name and description: what it shows belongs into a table, too.
///
/// What draws it is a module of its own, `libvelquon-histogram.so`, which is loaded with the first
/// plot: so the plotting library costs a start of the program neither time nor memory.
class HistogramPlot : public QWidget {
 public:
  using QWidget::QWidget;

  using Curve = std::vector<std::pair<double, double>>;
  /// \param titles of the axis of values and of that of numbers
  /// \param curve  its points by rising values; empty for none
  virtual void showHistogram(const Histogram& histogram, const std::pair<QString, QString>& titles,
                             const Curve& curve) = 0;

  /// The picture for a page, dark on white, as a file of its kind.
  [[nodiscard]] virtual QByteArray asPng() = 0;
  [[nodiscard]] virtual QByteArray asPdf() = 0;
};

/// The one function of the module, by its name.
using HistogramPlotMaker = HistogramPlot* (*)();
inline constexpr const char* histogram_plot_maker = "velquon_make_histogram_plot";

/// Loads the module from beside the program, as installed or as built, and makes a plot.
/// \return null when the module or the library that it needs is missing
[[nodiscard]] std::unique_ptr<HistogramPlot> load_histogram_plot();

}  // namespace velquon
