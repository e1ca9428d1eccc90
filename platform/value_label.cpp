#include "platform/value_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace velquon {

QString ValueLabel::shownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
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
