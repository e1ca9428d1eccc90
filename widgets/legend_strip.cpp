// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/legend_strip.h"

#include <QPainter>
#include <cmath>

namespace velquon {

namespace {

constexpr QMargins around_legend(8, 3, 8, 2);

}  // namespace

LegendStrip::LegendStrip(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void LegendStrip::setRoomFor(const std::vector<LegendLine>& lines, int width) {
  room_for_ = lines;
  room_width_ = width;
  updateGeometry();
}

void LegendStrip::setLegend(const std::vector<LegendLine>& lines, const QString& spoken) {
  lines_ = lines;
  setAccessibleName(spoken.isEmpty() ? tr("Legend") : tr("Legend: %1").arg(spoken));
  setToolTip(spoken);
  update();
}

QSize LegendStrip::sizeHint() const {
  const qreal width = room_width_ - around_legend.left() - around_legend.right();
  const qreal height = legend_size(room_for_, style(), width).height();
  return {room_width_,
          static_cast<int>(std::ceil(height)) + around_legend.top() + around_legend.bottom()};
}

void LegendStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paint_legend(painter, QRectF(rect().marginsRemoved(around_legend)), lines_, style());
}

LegendStyle LegendStrip::style() const {
  return {.font = font(), .text = palette().color(QPalette::WindowText)};
}

}  // namespace velquon
