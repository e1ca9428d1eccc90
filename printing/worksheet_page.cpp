// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/worksheet_page.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainter>
#include <QString>
#include <array>
#include <cmath>

#include "model/projector.h"
#include "model/shown_event.h"
#include "printing/page.h"
#include "printing/print_view.h"
#include "printing/projection_page.h"
#include "printing/worksheet_ruler.h"
#include "printing/worksheet_text.h"
#include "widgets/model_text.h"

namespace velquon {

namespace {

// Points. Heights count from the upper margin downwards.
constexpr double field_depth = 68.0;
constexpr double frame_depth = 80.0;
constexpr double ruler_gap = 8.0;
constexpr double caption_gap = 44.0;
constexpr double table_gap = 54.0;
constexpr double head_height = 28.0;
constexpr double row_height = 24.0;
// A Lambda with a neutral pion whose photons both convert has four tracks; no event has more.
constexpr int answer_rows = 4;

struct Worksheet {
  Q_DECLARE_TR_FUNCTIONS(velquon::Worksheet)
};

/// Whether +z points out of the paper of a projection onto the xy plane, to the reader.
bool z_points_to_reader() {
  const Place x = project({.coords = {1.0, 0.0, 0.0, 1.0}}, ProjectionPlane::xy);
  const Place y = project({.coords = {0.0, 1.0, 0.0, 1.0}}, ProjectionPlane::xy);
  return x.x * y.y - x.y * y.x > 0.0;
}

/// The paper between the margins, y upwards.
struct TextArea {
  double left;
  double right;
  double top;
  double bottom;

  explicit TextArea(QSizeF paper)
      : left(page_margin),
        right(paper.width() - page_margin),
        top(paper.height() - page_margin),
        bottom(page_margin) {}
  [[nodiscard]] double width() const { return right - left; }
};

/// Writes a label with a line behind it to write on.
/// \return where the line ends
double paint_blank(QPainter& page, QPointF place, const QString& label, double length) {
  constexpr double gap = 4.0;
  print_text(page, place, label);
  const double start = place.x() + QFontMetricsF(page.font()).horizontalAdvance(label) + gap;
  page.drawLine(QLineF(start, place.y() + 1.0, start + length, place.y() + 1.0));
  return start + length;
}

void paint_head(QPainter& page, const TextArea& area, const WorksheetOrder& order, int number) {
  constexpr double blanks_indent = 170.0;
  constexpr double name_length = 200.0;
  constexpr double blank_gap = 10.0;
  set_text_size(page, title_size, TextWeight::bold);
  const double title_height = area.top - title_depth;
  print_text(page, {area.left, title_height}, Worksheet::tr("Worksheet %1").arg(number));
  set_text_size(page, text_size);
  const double name_end = paint_blank(page, {area.left + blanks_indent, title_height},
                                      Worksheet::tr("Name"), name_length);
  const QString date = Worksheet::tr("Date");
  const double date_width = QFontMetricsF(page.font()).horizontalAdvance(date) + 4.0;
  paint_blank(page, {name_end + blank_gap, title_height}, date,
              area.right - name_end - blank_gap - date_width);
  const QString kind = model_text(order.type->name);
  print_text(page, {area.left, area.top - kind_depth},
             Worksheet::tr("Incoming particle: %1").arg(kind));
  print_text_right(page, {area.right, area.top - kind_depth},
                   Worksheet::tr("Seed %1, event %2").arg(order.seed).arg(number));
  print_text(page, {area.left, area.top - values_depth},
             QString::fromStdString(values_text(order.values)));
}

/// Draws the sign of a direction: a circle with the point of an arrow that comes out of the paper,
/// or with the cross of its feathers.
void paint_direction_sign(QPainter& page, QPointF middle, bool to_reader) {
  constexpr double radius = 5.0;
  constexpr double dot = 1.5;
  page.drawEllipse(middle, radius, radius);
  if (to_reader) {
    page.save();
    page.setPen(Qt::NoPen);
    page.setBrush(Qt::black);
    page.drawEllipse(middle, dot, dot);
    page.restore();
    return;
  }
  const double arm = radius * std::sqrt(0.5);
  for (const double side : {-arm, arm}) {
    page.drawLine(QLineF(middle + QPointF(-arm, side), middle + QPointF(arm, -side)));
  }
}

void paint_field(QPainter& page, const TextArea& area, double field_kG) {
  constexpr double sign_room = 16.0;
  const double height = area.top - field_depth;
  if (field_kG == 0.0) {
    print_text(page, {area.left, height}, Worksheet::tr("No magnetic field"));
    return;
  }
  const bool to_reader = (field_kG > 0.0) == z_points_to_reader();
  paint_direction_sign(page, {area.left + 6.0, height + 6.0}, to_reader);
  print_text(page, {area.left + sign_room, height},
             (to_reader ? Worksheet::tr("Magnetic field of %1 kG, out of the paper")
                        : Worksheet::tr("Magnetic field of %1 kG, into the paper"))
                 .arg(sheet_number(std::fabs(field_kG))));
}

/// Draws the chamber's projection.
/// \return its frame
QRectF paint_picture(QPainter& page, const TextArea& area, double middle,
                     std::span<const PlotPoint> points) {
  const Projector projector;
  const QRectF frame = projection_frame(projector);
  const QPointF shift(middle - frame.center().x(), area.top - frame_depth - frame.bottom());
  page.save();
  page.translate(shift);
  paint_projection(page, points, projector);
  page.restore();
  const QRectF shifted = frame.translated(shift);
  if (points.empty()) {
    print_text_centred(page, shifted.center(), Worksheet::tr("No track is visible in this event."));
  }
  return shifted;
}

/// Draws the room for answers.
/// \return height of its lower edge
double paint_table(QPainter& page, const TextArea& area, double top) {
  constexpr double track_width = 50.0;
  constexpr double padding = 5.0;
  const std::array<std::array<QString, 2>, 5> heads{
      {{Worksheet::tr("Track"), {}},
       {Worksheet::tr("Radius"), Worksheet::tr("cm")},
       {Worksheet::tr("Momentum"), Worksheet::tr("MeV/c")},
       {Worksheet::tr("Angle at its vertex"), Worksheet::tr("degrees")},
       {Worksheet::tr("Length"), Worksheet::tr("cm")}}};
  const double column_width = (area.width() - track_width) / 4.0;
  const double bottom = top - head_height - answer_rows * row_height;
  const auto column = [&](std::size_t i) {
    return i == 0 ? area.left : area.left + track_width + static_cast<double>(i - 1) * column_width;
  };
  for (std::size_t i = 0; i < heads.size(); ++i) {
    print_text(page, {column(i) + padding, top - 13.0}, heads[i][0]);
    print_text(page, {column(i) + padding, top - 25.0}, heads[i][1]);
    page.drawLine(QLineF(column(i), top, column(i), bottom));
  }
  page.drawLine(QLineF(area.right, top, area.right, bottom));
  page.drawLine(QLineF(area.left, top, area.right, top));
  for (int row = 0; row <= answer_rows; ++row) {
    const double height = top - head_height - row * row_height;
    page.drawLine(QLineF(area.left, height, area.right, height));
    if (row < answer_rows) {
      print_text(page, {area.left + padding, height - row_height + 7.0}, QString::number(row + 1));
    }
  }
  return bottom;
}

/// Draws lines to write on, down to the lower margin.
void paint_notes(QPainter& page, const TextArea& area, double top) {
  constexpr double label_gap = 18.0;
  constexpr double line_gap = 22.0;
  print_text(page, {area.left, top - label_gap}, Worksheet::tr("Notes"));
  double height = top - label_gap - line_gap;
  while (height >= area.bottom) {
    page.drawLine(QLineF(area.left, height, area.right, height));
    height -= line_gap;
  }
}

void paint_ruler_with_caption(QPainter& page, const QRectF& frame, double side_cm) {
  constexpr double points_per_mm = 72.0 / 25.4;
  paint_ruler(page, frame.topLeft() - QPointF(0.0, ruler_gap), frame.width(), side_cm);
  print_text_centred(
      page, {frame.center().x(), frame.top() - caption_gap},
      Worksheet::tr("Ruler in cm of the chamber. Printed at full size, 1 mm on the paper is %1 cm.")
          .arg(sheet_number(side_cm / frame.width() * points_per_mm)));
}

}  // namespace

void paint_worksheet(QPainter& page, QSizeF paper, const WorksheetOrder& order, int number,
                     std::span<const PlotPoint> points) {
  const TextArea area(paper);
  page.setPen(QPen(Qt::black, thin_line, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  paint_head(page, area, order, number);
  paint_field(page, area, static_cast<double>(order.values.B_field));
  const QRectF frame = paint_picture(page, area, paper.width() / 2.0, points);
  set_text_size(page, small_text_size);
  paint_ruler_with_caption(page, frame, static_cast<double>(order.values.sides_cm));
  const double table_bottom = paint_table(page, area, frame.top() - table_gap);
  paint_notes(page, area, table_bottom);
}

}  // namespace velquon
