// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/value_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace velquon {

QString ValueLabel::shownText() const {
  const int room = contentsRect().width();
  const QFontMetrics metrics = fontMetrics();
  // Widths are rounded: a label made as wide as its text has room for it.
  return metrics.horizontalAdvance(text()) <= room
             ? text()
             : metrics.elidedText(text(), Qt::ElideRight, room);
}

bool ValueLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && shownText() != text()) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

void ValueLabel::paintEvent(QPaintEvent* event) {
  const QString shown = shownText();
  if (shown == text()) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(),
                        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
                        palette(), isEnabled(), shown, foregroundRole());
}

}  // namespace velquon
