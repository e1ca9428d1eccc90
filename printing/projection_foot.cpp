// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/projection_foot.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <array>
#include <cmath>

#include "printing/page.h"
#include "printing/worksheet_text.h"
#include "widgets/number_text.h"

namespace velquon {

namespace {

// Points, depths from the upper edge downwards.
constexpr double bar_depth = 15.0;
constexpr double bar_text_depth = 22.0;
constexpr double words_depth = 46.0;
constexpr double longest_bar = 120.0;

struct ProjectionFoot {
  Q_DECLARE_TR_FUNCTIONS(velquon::ProjectionFoot)
};

QString name_of(ProjectionPlane plane) {
  constexpr std::array names{"xy", "xz", "yz"};
  return QLatin1String(names.at(static_cast<std::size_t>(plane) - 1));
}

void paint_bar(QPainter& page, QPointF start, const ScaleBar& bar) {
  constexpr double half_tick = 4.0;
  const QPointF end = start + QPointF(bar.length, 0.0);
  page.drawLine(QLineF(start, end));
  for (const QPointF tick : {start, end}) {
    page.drawLine(QLineF(tick - QPointF(0.0, half_tick), tick + QPointF(0.0, half_tick)));
  }
}

QString words_of(const Projector& projector) {
  QStringList words{ProjectionFoot::tr("%1 plane, zoom %2")
                        .arg(name_of(projector.plane()))
                        .arg(static_cast<double>(projector.zoom()))};
  if (projector.tape().visible) {
    words << ProjectionFoot::tr("tape %1").arg(
        QStringLiteral("D = %1 cm").arg(fixed_text(projector.reading(), 5, 2)));
  }
  return words.join(QStringLiteral(", "));
}

}  // namespace

ScaleBar scale_bar(double unit_cm, double most) {
  const double most_cm = unit_cm * most;
  if (!std::isnormal(most_cm) || most_cm < 0.0) {
    return {};
  }
  constexpr double rounding = 1e-9;
  const double power = std::pow(10.0, std::floor(std::log10(most_cm)));
  double length_cm = power;
  for (const double factor : {2.0, 5.0, 10.0}) {
    if (factor * power <= most_cm * (1.0 + rounding)) {
      length_cm = factor * power;
    }
  }
  return {length_cm, length_cm / unit_cm};
}

void paint_projection_foot(QPainter& page, QPointF place, const Projector& projector) {
  constexpr double gap = 8.0;
  const ScaleBar bar =
      scale_bar(projector.scaler() / static_cast<double>(projector.zoom()), longest_bar);
  if (bar.length > 0.0) {
    paint_bar(page, place - QPointF(0.0, bar_depth), bar);
    print_text(page, place + QPointF(bar.length + gap, -bar_text_depth),
               ProjectionFoot::tr("%1 cm").arg(sheet_number(bar.length_cm)));
  }
  print_text(page, place - QPointF(0.0, words_depth), words_of(projector));
}

}  // namespace velquon
