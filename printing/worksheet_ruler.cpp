// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/worksheet_ruler.h"

#include <QLineF>
#include <QPainter>
#include <QString>
#include <cmath>

#include "printing/worksheet_text.h"

namespace velquon {

namespace {

// A mark at the very end of the side counts in spite of the rounding of its place.
constexpr double place_rounding = 1e-6;

double mark_length(int part) {
  constexpr double longest = 9.0;
  constexpr double middle = 6.5;
  constexpr double shortest = 4.0;
  if (part % RulerMarks::parts_of_step == 0) {
    return longest;
  }
  return part % (RulerMarks::parts_of_step / 2) == 0 ? middle : shortest;
}

}  // namespace

RulerMarks ruler_marks(double side_cm) {
  constexpr double most_steps = 10.0;
  const double power = std::pow(10.0, std::floor(std::log10(side_cm / most_steps)));
  double step = power;
  for (const double factor : {2.0, 5.0, 10.0}) {
    if (side_cm > most_steps * step * (1.0 + place_rounding)) {
      step = factor * power;
    }
  }
  const double parts = side_cm / step * RulerMarks::parts_of_step + place_rounding;
  return {step, static_cast<int>(std::floor(parts))};
}

void paint_ruler(QPainter& page, QPointF start, double length, double side_cm) {
  constexpr double label_room = 22.0;
  const RulerMarks marks = ruler_marks(side_cm);
  const auto mark_place = [&](int part) {
    return start + QPointF(part * marks.part_cm() / side_cm * length, 0.0);
  };
  page.drawLine(QLineF(start, mark_place(marks.parts)));
  for (int part = 0; part <= marks.parts; ++part) {
    const QPointF place = mark_place(part);
    page.drawLine(QLineF(place, place - QPointF(0.0, mark_length(part))));
    if (part % RulerMarks::parts_of_step == 0) {
      print_text_centred(page, place - QPointF(0.0, label_room),
                         sheet_number(part * marks.part_cm()));
    }
  }
}

}  // namespace velquon
