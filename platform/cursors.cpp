#include "platform/cursors.h"

#include <QPixmap>

namespace velquon {

QCursor cursor_named(const QString& name, QPoint hot_spot) {
  const QPixmap image(QStringLiteral(":/cursors/%1.png").arg(name));
  return QCursor(image, hot_spot.x(), hot_spot.y());
}

}  // namespace velquon
