// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "record/histogram_plot.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QEvent>
#include <QPdfWriter>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace velquon {

namespace {

// Of a saved picture, in pixels of a screen of usual resolution.
constexpr QSize saved_size(640, 480);

QPalette paper_palette() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0x30, 0x70, 0xB0));
  return palette;
}

bool is_dark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

/// Marks whole numbers alone, as there are no halves of a measurement.
class CountTicker : public QCPAxisTicker {
 protected:
  double getTickStep(const QCPRange& range) override {
    return std::max(1.0, std::ceil(QCPAxisTicker::getTickStep(range)));
  }
  int getSubTickCount(double /*step*/) override { return 0; }
};

/// A plot by QCustomPlot.
class DrawnHistogram : public HistogramPlot {
 public:
  DrawnHistogram();
  void showHistogram(const Histogram& histogram, const std::pair<QString, QString>& titles,
                     const Curve& curve) override;
  QByteArray asPng() override;
  QByteArray asPdf() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void takeColors(const QPalette& palette);

  QCustomPlot* plot_;
  QCPBars* bars_;
  QCPGraph* curve_;
};

DrawnHistogram::DrawnHistogram()
    : plot_(new QCustomPlot(this)),
      bars_(new QCPBars(plot_->xAxis, plot_->yAxis)),
      curve_(plot_->addGraph()) {
  plot_->yAxis->setTicker(QSharedPointer<CountTicker>::create());
  bars_->setWidthType(QCPBars::wtPlotCoords);
  plot_->setFocusPolicy(Qt::NoFocus);
  constexpr QSize smallest(220, 150);
  plot_->setMinimumSize(smallest);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(plot_);
  takeColors(palette());
}

void DrawnHistogram::showHistogram(const Histogram& histogram,
                                   const std::pair<QString, QString>& titles, const Curve& curve) {
  QVector<double> places;
  QVector<double> numbers;
  double highest = 1.0;
  for (std::size_t bin = 0; bin < histogram.counts.size(); ++bin) {
    places << histogram.edge(bin) + histogram.width / 2.0;
    numbers << static_cast<double>(histogram.counts[bin]);
    highest = std::max(highest, numbers.back());
  }
  bars_->setWidth(histogram.width);
  bars_->setData(places, numbers, true);
  QVector<double> curve_places;
  QVector<double> heights;
  for (const auto& [place, height] : curve) {
    curve_places << place;
    heights << height;
    highest = std::max(highest, height);
  }
  curve_->setData(curve_places, heights, true);
  constexpr double room_above = 1.08;
  plot_->xAxis->setLabel(titles.first);
  plot_->yAxis->setLabel(titles.second);
  plot_->xAxis->setRange(histogram.low,
                         histogram.edge(std::max<std::size_t>(histogram.counts.size(), 1)));
  plot_->yAxis->setRange(0.0, highest * room_above);
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

QByteArray DrawnHistogram::asPng() {
  constexpr double scale = 2.0;
  takeColors(paper_palette());
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  plot_->toPixmap(saved_size.width(), saved_size.height(), scale).save(&buffer, "PNG");
  takeColors(palette());
  return bytes;
}

QByteArray DrawnHistogram::asPdf() {
  takeColors(paper_palette());
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(plot_->xAxis->label());
    // One unit of the plot is one of the page.
    writer.setResolution(plot_->logicalDpiX());
    constexpr double points_an_inch = 72.0;
    writer.setPageSize(QPageSize(QSizeF(saved_size) * points_an_inch / plot_->logicalDpiX(),
                                 QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QCPPainter painter;
    painter.begin(&writer);
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    plot_->toPainter(&painter, saved_size.width(), saved_size.height());
    painter.end();
  }
  takeColors(palette());
  return bytes;
}

void DrawnHistogram::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    takeColors(palette());
  }
}

void DrawnHistogram::takeColors(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Text);
  const QColor bar = palette.color(QPalette::Highlight);
  QColor grid = text;
  constexpr int faint = 50;
  grid.setAlpha(faint);
  plot_->setBackground(palette.color(QPalette::Base));
  for (QCPAxis* const axis : {plot_->xAxis, plot_->yAxis}) {
    axis->setBasePen(text);
    axis->setTickPen(text);
    axis->setSubTickPen(text);
    axis->setTickLabelColor(text);
    axis->setLabelColor(text);
    axis->setTickLabelFont(font());
    axis->setLabelFont(font());
    axis->grid()->setPen(QPen(grid, 1.0, Qt::DotLine));
    axis->grid()->setZeroLinePen(Qt::NoPen);
  }
  bars_->setPen(palette.color(QPalette::Base));
  bars_->setBrush(bar);
  // Seen on the bars and beside them.
  constexpr double curve_width = 2.0;
  curve_->setPen(
      QPen(is_dark(palette) ? QColor(0xFF, 0xC0, 0x40) : QColor(0xC0, 0x30, 0x00), curve_width));
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

}  // namespace

}  // namespace velquon

extern "C" velquon::HistogramPlot* velquon_make_histogram_plot();

extern "C" velquon::HistogramPlot* velquon_make_histogram_plot() {
  return new velquon::DrawnHistogram;
}
