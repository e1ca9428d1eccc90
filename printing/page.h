#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class QPainter;
class QString;

namespace velquon {

/// A page, in points from its lower left corner.
inline constexpr QSizeF page_size(500.0, 720.0);
/// The part of a page that is a view's; date, title and values stand above.
inline constexpr QRectF page_picture(0.0, 0.0, 500.0, 640.0);

/// A view that can be drawn on a page.
class Printable {
 public:
  Printable() = default;
  Printable(const Printable&) = delete;
  Printable& operator=(const Printable&) = delete;
  Printable(Printable&&) = delete;
  Printable& operator=(Printable&&) = delete;
  virtual ~Printable() = default;

  /// Switches to drawing on a page, in points with y upwards, or with null back to the screen.
  virtual void setPrinting(QPainter* page) = 0;
  /// One drawing pass on the page.
  virtual void printRect() = 0;
};

/// Whether a place can be written into a page: neither far beyond any paper nor no place at all.
[[nodiscard]] bool can_be_on_paper(QPointF place);

/// Writes a text on a page whose y points upwards.
/// \param place lower left corner of the text
void print_text(QPainter& page, QPointF place, const QString& text);

}  // namespace velquon
