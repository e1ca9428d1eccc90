// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/histogram_panel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "model/statistics.h"
#include "record/histogram_plot.h"
#include "record/measurement_columns.h"
#include "widgets/model_text.h"

namespace velquon {

namespace {

// In the order of the pop-up of fits.
constexpr int exponential = 1;
constexpr int gaussian = 2;

/// A value and its error, both with the decimals that two digits of the error have.
QString with_error(double value, double error) {
  if (!(error > 0.0) || !std::isfinite(error)) {
    return number_text(value);
  }
  constexpr int most_decimals = 9;
  const int decimals = 1 - static_cast<int>(std::floor(std::log10(error)));
  if (decimals < 0 || decimals > most_decimals) {
    return QStringLiteral("%1 ± %2").arg(number_text(value), number_text(error));
  }
  return QStringLiteral("%1 ± %2").arg(QString::number(value, 'f', decimals),
                                       QString::number(error, 'f', decimals));
}

QString with_unit(const QString& number, Quantity quantity) {
  const std::string_view unit = name_of(quantity).unit;
  return unit.empty() ? number : number + QLatin1Char(' ') + model_text(unit);
}

/// What stands in the place of a plot that can't be drawn.
QWidget* missing_plot() {
  auto* const label = new QLabel(
      HistogramPanel::tr("The library that draws histograms is not installed. The bins are in the "
                         "table behind the other tab."));
  label->setWordWrap(true);
  return label;
}

}  // namespace

HistogramPanel::HistogramPanel(const Measurements& measurements, QWidget* parent)
    : QWidget(parent),
      measurements_(measurements),
      quantity_popup_(new QComboBox(this)),
      bins_box_(new QSpinBox(this)),
      fit_popup_(new QComboBox(this)),
      summary_(new QLabel(this)),
      plot_(load_histogram_plot().release()),
      bins_(new QTableWidget(this)) {
  layOut();
  connect(quantity_popup_, &QComboBox::currentIndexChanged, this, &HistogramPanel::refresh);
  connect(bins_box_, &QSpinBox::valueChanged, this, &HistogramPanel::refresh);
  connect(fit_popup_, &QComboBox::currentIndexChanged, this, &HistogramPanel::refresh);
  refresh();
}

void HistogramPanel::layOut() {
  quantity_popup_->setObjectName(QStringLiteral("quantity_popup"));
  quantity_popup_->setAccessibleName(tr("Quantity"));
  quantity_popup_->setToolTip(tr("The measured quantity that is shown"));
  quantity_popup_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  bins_box_->setObjectName(QStringLiteral("bins_box"));
  bins_box_->setAccessibleName(tr("Number of bins"));
  bins_box_->setToolTip(tr("Number of bins; at 0 it goes by the values"));
  bins_box_->setRange(0, most_bins);
  bins_box_->setSpecialValueText(tr("Automatic"));
  fit_popup_->setObjectName(QStringLiteral("fit_popup"));
  fit_popup_->setAccessibleName(tr("Curve"));
  fit_popup_->setToolTip(tr("The curve that is fitted to the values"));
  fit_popup_->addItems({tr("No curve"), tr("Exponential"), tr("Gaussian")});
  summary_->setObjectName(QStringLiteral("histogram_summary"));
  summary_->setWordWrap(true);
  summary_->setTextFormat(Qt::PlainText);
  summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QWidget* const picture = plot_ != nullptr ? static_cast<QWidget*>(plot_) : missing_plot();
  picture->setObjectName(QStringLiteral("histogram_plot"));
  picture->setAccessibleName(tr("Histogram"));
  bins_->setObjectName(QStringLiteral("bins_table"));
  bins_->setAccessibleName(tr("Bins of the histogram"));
  bins_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  bins_->verticalHeader()->hide();

  auto* const bins_label = new QLabel(tr("&Bins:"), this);
  bins_label->setBuddy(bins_box_);
  auto* const controls = new QHBoxLayout;
  controls->addWidget(quantity_popup_);
  controls->addWidget(bins_label);
  controls->addWidget(bins_box_);
  controls->addWidget(fit_popup_);
  controls->addStretch();
  auto* const tabs = new QTabWidget(this);
  tabs->setObjectName(QStringLiteral("histogram_tabs"));
  tabs->addTab(picture, tr("H&istogram"));
  tabs->addTab(bins_, tr("B&ins as a table"));
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(controls);
  layout->addWidget(tabs, 1);
  layout->addWidget(summary_);
  setTabOrder(quantity_popup_, bins_box_);
  setTabOrder(bins_box_, fit_popup_);
  setTabOrder(fit_popup_, tabs);
}

void HistogramPanel::refresh() {
  listQuantities();
  const auto chosen = quantity_popup_->currentIndex();
  sample_ = chosen < 0
                ? MeasuredSample()
                : sample_of(measurements_.rows(), quantities_[static_cast<std::size_t>(chosen)]);
  const bool are_counts =
      chosen >= 0 && name_of(quantities_[static_cast<std::size_t>(chosen)]).unit.empty();
  if (bins_box_->value() > 0) {
    histogram_ = histogram_of(sample_.values, bins_box_->value());
  } else {
    histogram_ =
        are_counts ? histogram_of_counts(sample_.values) : automatic_histogram(sample_.values);
  }
  fit();
  summary_->setText(summary());
  showPlot();
  showBins();
  Q_EMIT sampleChanged();
}

void HistogramPanel::listQuantities() {
  std::vector<Quantity> present = quantities_in(measurements_.rows());
  if (present == quantities_) {
    return;
  }
  const QSignalBlocker quiet(quantity_popup_);
  const QString chosen = quantity_popup_->currentText();
  quantities_ = std::move(present);
  quantity_popup_->clear();
  for (const Quantity quantity : quantities_) {
    quantity_popup_->addItem(model_text(name_of(quantity).name));
  }
  quantity_popup_->setMinimumWidth(quantity_popup_->sizeHint().width());
  const int again = quantity_popup_->findText(chosen);
  quantity_popup_->setCurrentIndex(again >= 0 || quantities_.empty() ? again : 0);
}

QString HistogramPanel::axisTitle() const {
  if (quantity_popup_->currentIndex() < 0) {
    return {};
  }
  const auto& [name, unit] =
      name_of(quantities_[static_cast<std::size_t>(quantity_popup_->currentIndex())]);
  return unit.empty() ? model_text(name)
                      : QStringLiteral("%1 (%2)").arg(model_text(name), model_text(unit));
}

void HistogramPanel::fit() {
  decay_.reset();
  gaussian_.reset();
  if (fit_popup_->currentIndex() == exponential) {
    decay_ = fit_decay(sample_.lengths);
  } else if (fit_popup_->currentIndex() == gaussian) {
    gaussian_ = fit_gaussian(sample_.values);
  }
}

QString HistogramPanel::summary() const {
  if (quantity_popup_->currentIndex() < 0) {
    return tr("There are no measurements yet.");
  }
  const Quantity quantity = quantities_[static_cast<std::size_t>(quantity_popup_->currentIndex())];
  const SampleSummary numbers = summary_of(sample_.values);
  QStringList lines;
  if (numbers.count == 0) {
    lines << tr("No values.");
  } else if (numbers.count == 1) {
    lines << tr("One value, %1.").arg(with_unit(number_text(numbers.mean), quantity));
  } else {
    lines << tr("%1 values. Mean %2, spread %3.")
                 .arg(QString::number(numbers.count),
                      with_unit(with_error(numbers.mean, numbers.mean_error), quantity),
                      with_unit(number_text(numbers.spread), quantity));
  }
  if (sample_.left > 0) {
    lines << tr("Tracks that left the chamber, not in the bars: %1.").arg(sample_.left);
  }
  if (fit_popup_->currentIndex() > 0) {
    lines << fitText();
  }
  return lines.join(QLatin1Char('\n'));
}

QString HistogramPanel::fitText() const {
  const Quantity quantity = quantities_[static_cast<std::size_t>(quantity_popup_->currentIndex())];
  if (decay_) {
    const QString length = with_unit(with_error(decay_->length, decay_->error), quantity);
    switch (decay_->cut) {
      case ChamberCut::censored:
        return tr("Exponential: decay length %1. Tracks that left count with their lengths so far.")
            .arg(length);
      case ChamberCut::truncated:
        return tr("Exponential: decay length %1. The longest possible lengths are allowed for.")
            .arg(length);
      case ChamberCut::none:
        return tr("Exponential: decay length %1. The chamber's walls are not allowed for.")
            .arg(length);
    }
  }
  if (gaussian_) {
    return tr("Gaussian: mean %1, standard deviation %2.")
        .arg(with_unit(with_error(gaussian_->mean, gaussian_->mean_error), quantity),
             with_unit(with_error(gaussian_->sigma, gaussian_->sigma_error), quantity));
  }
  return fit_popup_->currentIndex() == exponential ? tr("No exponential fits these values.")
                                                   : tr("A Gaussian needs two different values.");
}

double HistogramPanel::expected(double value) const {
  if (decay_) {
    return value < 0.0 ? 0.0 : expected_density(*decay_, value) * histogram_.width;
  }
  return gaussian_ ? expected_density(*gaussian_, value) * histogram_.width : 0.0;
}

void HistogramPanel::showPlot() {
  if (plot_ == nullptr) {
    return;
  }
  constexpr int steps = 200;
  HistogramPlot::Curve curve;
  const auto bins = static_cast<double>(histogram_.counts.size());
  if (decay_ || gaussian_) {
    for (int step = 0; step <= steps; ++step) {
      const double place = histogram_.low + histogram_.width * bins * step / steps;
      curve.emplace_back(place, expected(place));
    }
  }
  plot_->showHistogram(histogram_, {axisTitle(), tr("Number in a bin")}, curve);
  QString description = summary_->text();
  if (!sample_.values.empty()) {
    const auto fullest = static_cast<std::size_t>(std::ranges::max_element(histogram_.counts) -
                                                  histogram_.counts.begin());
    description =
        tr("%1, %2 bins from %3 to %4; most values, %5, from %6 to %7. %8")
            .arg(axisTitle(), QString::number(histogram_.counts.size()),
                 number_text(histogram_.low),
                 number_text(histogram_.edge(histogram_.counts.size())),
                 QString::number(histogram_.counts[fullest]), number_text(histogram_.edge(fullest)),
                 number_text(histogram_.edge(fullest + 1)), description);
  }
  plot_->setAccessibleDescription(description);
}

void HistogramPanel::showBins() {
  const bool has_curve = decay_ || gaussian_;
  QStringList titles{tr("From"), tr("To"), tr("Number")};
  if (has_curve) {
    titles << tr("Curve in the middle");
  }
  bins_->setColumnCount(static_cast<int>(titles.size()));
  bins_->setHorizontalHeaderLabels(titles);
  bins_->setRowCount(static_cast<int>(histogram_.counts.size()));
  for (std::size_t bin = 0; bin < histogram_.counts.size(); ++bin) {
    QStringList texts{number_text(histogram_.edge(bin)), number_text(histogram_.edge(bin + 1)),
                      QString::number(histogram_.counts[bin])};
    if (has_curve) {
      texts << number_text(expected(histogram_.edge(bin) + histogram_.width / 2.0));
    }
    for (int column = 0; column < texts.size(); ++column) {
      auto* const item = new QTableWidgetItem(texts[column]);
      item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      bins_->setItem(static_cast<int>(bin), column, item);
    }
  }
}

QByteArray HistogramPanel::asPng() {
  return plot_->asPng();
}

QByteArray HistogramPanel::asPdf() {
  return plot_->asPdf();
}

}  // namespace velquon
