// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSizeF>
#include <QString>

class QPagedPaintDevice;
class QPainter;

namespace velquon {

class Printable;

/// Free room at each edge of the paper, points.
inline constexpr double page_margin = 36.0;

/// The printed page: date and time, title and chamber values above a picture.
class PrintView {
 public:
  /// \param pview  what to print
  /// \param title  the title of its window
  /// \param values the line of the event's values, or empty
  PrintView(Printable& pview, QString title, QString values);

  [[nodiscard]] const QString& title() const { return title_; }

  /// Draws the page in the middle of the device's paper, at its own size where that fits with
  /// margins of 36 points.
  /// \return whether the device could be drawn on
  bool print(QPagedPaintDevice& device);

  /// Draws the page in the middle of a paper whose upper left corner is the painter's origin, with
  /// a point as its unit.
  /// \param paper size of the paper, points
  void draw(QPainter& page, QSizeF paper);

 private:
  void drawRect(QPainter& page);

  Printable& pview_;
  QString title_;
  QString values_;
};

}  // namespace velquon
