// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace velquon {

/// A text at the foot of a window. It has room for as many lines as it is told, and never widens the
/// window; what finds no room can be read in the tool tip.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  /// Makes the line as high as a text takes at a width.
  void setRoomFor(const QString& text, int width);
  void tell(const QString& text);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  /// The height is the same for every text, so that the picture above keeps its size.
  [[nodiscard]] bool hasHeightForWidth() const override { return false; }

 private:
  QString room_for_;
  int room_width_ = 0;
};

}  // namespace velquon
