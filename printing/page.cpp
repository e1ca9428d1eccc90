#include "printing/page.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>
#include <cmath>

namespace velquon {

bool can_be_on_paper(QPointF place) {
  constexpr double limit = 1.0e6;  // points; some 350 metres
  return std::fabs(place.x()) < limit && std::fabs(place.y()) < limit;
}

void print_text(QPainter& page, QPointF place, const QString& text) {
  page.save();
  page.translate(place);
  page.scale(1.0, -1.0);
  page.drawText(QPointF(0.0, -QFontMetricsF(page.font()).descent()), text);
  page.restore();
}

}  // namespace velquon
