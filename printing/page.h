// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class QPainter;
class QPen;
class QString;

namespace velquon {

/// A page, in points from its lower left corner.
inline constexpr QSizeF page_size(500.0, 720.0);
/// The part of a page that is a picture's; date, title and values stand above.
inline constexpr QRectF page_picture(0.0, 0.0, 500.0, 640.0);

inline constexpr double points_per_inch = 72.0;

/// The pen for all lines of a page: black, a point wide, with square ends.
[[nodiscard]] QPen page_pen();

/// Something that can be drawn on a page.
class Printable {
 public:
  Printable() = default;
  Printable(const Printable&) = delete;
  Printable& operator=(const Printable&) = delete;
  Printable(Printable&&) = delete;
  Printable& operator=(Printable&&) = delete;
  virtual ~Printable() = default;

  /// Draws on a page, in points with y upwards.
  virtual void paint(QPainter& page) = 0;
};

/// Writes a text on a page whose y points upwards.
/// \param place lower left corner of the text
void print_text(QPainter& page, QPointF place, const QString& text);

/// Writes the line of an event's values at its place on a page.
void print_values(QPainter& page, const QString& values);

}  // namespace velquon
