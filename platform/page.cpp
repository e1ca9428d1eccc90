#include "platform/page.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>

namespace velquon {

void print_text(QPainter& page, QPointF place, const QString& text) {
  page.save();
  page.translate(place);
  page.scale(1.0, -1.0);
  page.drawText(QPointF(0.0, -QFontMetricsF(page.font()).descent()), text);
  page.restore();
}

}  // namespace velquon
