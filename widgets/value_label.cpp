// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/value_label.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
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

void ValueLabel::setEditable() {
  is_editable_ = true;
  setFocusPolicy(Qt::TabFocus);
  setToolTip(tr("Double click, or Return, to type a value"));
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
  QPainter painter(this);
  if (hasFocus()) {
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
  if (shown == text()) {
    painter.end();
    QLabel::paintEvent(event);
    return;
  }
  style()->drawItemText(&painter, contentsRect(),
                        static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())),
                        palette(), isEnabled(), shown, foregroundRole());
}

void ValueLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (is_editable_) {
    Q_EMIT editAsked();
  } else {
    QLabel::mouseDoubleClickEvent(event);
  }
}

void ValueLabel::keyPressEvent(QKeyEvent* event) {
  const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (is_editable_ && is_return) {
    Q_EMIT editAsked();
  } else {
    QLabel::keyPressEvent(event);
  }
}

}  // namespace velquon
