// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/status_line.h"

namespace velquon {

namespace {

constexpr QMargins around_status(8, 2, 8, 4);

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setContentsMargins(around_status);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void StatusLine::setRoomFor(const QString& text, int width) {
  room_for_ = text;
  room_width_ = width;
  updateGeometry();
}

void StatusLine::tell(const QString& text) {
  if (text != this->text()) {
    setText(text);
    setToolTip(text);
  }
}

QSize StatusLine::sizeHint() const {
  const int width = room_width_ - around_status.left() - around_status.right();
  const QRect lines =
      fontMetrics().boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, room_for_);
  return {room_width_, lines.height() + around_status.top() + around_status.bottom()};
}

}  // namespace velquon
