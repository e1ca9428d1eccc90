#pragma once

#include <QPointF>

class QPainter;
class QString;

namespace velquon {

/// Writes a text on a page whose y points upwards.
/// \param place lower left corner of the text
void print_text(QPainter& page, QPointF place, const QString& text);

}  // namespace velquon
