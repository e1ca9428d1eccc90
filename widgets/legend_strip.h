// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include "widgets/legend.h"

namespace velquon {

/// The legend of a picture, in a strip beside it that keeps its height whatever the legend holds.
class LegendStrip : public QWidget {
  Q_OBJECT

 public:
  explicit LegendStrip(QWidget* parent = nullptr);

  /// Makes the strip as high as a legend of these lines beside a picture of a width. A longer legend is
  /// shown without its names.
  void setRoomFor(const std::vector<LegendLine>& lines, int width);

  /// \param spoken the same for a screen reader, and to be read where names find no room
  void setLegend(const std::vector<LegendLine>& lines, const QString& spoken);
  [[nodiscard]] const std::vector<LegendLine>& lines() const { return lines_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] LegendStyle style() const;

  std::vector<LegendLine> lines_;
  std::vector<LegendLine> room_for_;
  int room_width_ = 0;
};

}  // namespace velquon
