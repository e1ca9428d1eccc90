// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/answer_key.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainter>
#include <algorithm>
#include <array>
#include <string_view>

#include "events/particle_kinds.h"
#include "model/shown_event.h"
#include "printing/page.h"
#include "printing/print_view.h"
#include "printing/worksheet_text.h"
#include "widgets/model_text.h"

namespace velquon {

namespace {

// Points. Heights count from the upper margin downwards.
constexpr double head_depth = 78.0;
constexpr double first_line_depth = 106.0;
constexpr double answer_line_height = 15.0;
constexpr double notes_height = 52.0;

struct AnswerKey {
  Q_DECLARE_TR_FUNCTIONS(velquon::AnswerKey)
};

/// A column of the key: where it stands on a page 523 points wide, and what stands above it.
struct Column {
  double edge;  ///< the left one of a text, the right one of a number
  bool is_number;
  const char* head;
  const char* unit;
};

constexpr std::array<Column, 11> columns{{
    {28.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "Sheet"), ""},
    {40.0, false, QT_TRANSLATE_NOOP("velquon::AnswerKey", "Particle"), ""},
    {84.0, false, QT_TRANSLATE_NOOP("velquon::AnswerKey", "From"), ""},
    {158.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "p"), "MeV/c"},
    {210.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "p trans."), "MeV/c"},
    {260.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "Radius"), "cm"},
    {310.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "Length"), "cm"},
    {360.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "on paper"), "cm"},
    {408.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "Angle"), "°"},
    {458.0, true, QT_TRANSLATE_NOOP("velquon::AnswerKey", "on paper"), "°"},
    {472.0, false, QT_TRANSLATE_NOOP("velquon::AnswerKey", "Fate"), ""},
}};

constexpr std::array<const char*, 3> notes{
    QT_TRANSLATE_NOOP("velquon::AnswerKey",
                      "p trans. is the momentum across the field: 0.3 B R for B in kG and the "
                      "radius R in cm."),
    QT_TRANSLATE_NOOP("velquon::AnswerKey",
                      "Lengths and angles are given in space and on the paper; the angle is that "
                      "to the parent at the vertex."),
    QT_TRANSLATE_NOOP("velquon::AnswerKey",
                      "Fates: decayed, left the chamber, or full: the track is cut where the "
                      "event holds no more points."),
};

QString symbol_of(int number) {
  return QString::fromUtf8(particle_kind(number).symbol);
}

QString number_or_dash(const std::optional<double>& value) {
  return value ? sheet_number(*value) : QStringLiteral("–");
}

/// An angle with one decimal: more is not drawn.
QString angle_text(const std::optional<double>& degrees) {
  return degrees ? QString::number(*degrees, 'f', 1) : QStringLiteral("–");
}

AnswerLine line_of(int number, const TrackAnswer& answer) {
  return {QString::number(number),
          symbol_of(answer.pdg),
          answer.parent_pdg ? symbol_of(*answer.parent_pdg) : QStringLiteral("–"),
          sheet_number(answer.momentum),
          sheet_number(answer.transverse_momentum),
          answer.radius_cm ? number_or_dash(answer.radius_cm) : AnswerKey::tr("straight"),
          sheet_number(answer.length_cm),
          sheet_number(answer.paper_length_cm),
          angle_text(answer.angle_deg),
          angle_text(answer.paper_angle_deg),
          model_text(name_of(answer.fate))};
}

void print_in(QPainter& page, const Column& column, QPointF line_start, const QString& text) {
  const QPointF place = line_start + QPointF(column.edge, 0.0);
  column.is_number ? print_text_right(page, place, text) : print_text(page, place, text);
}

void paint_column_heads(QPainter& page, QPointF line_start, double width) {
  constexpr double unit_gap = 12.0;
  constexpr double rule_gap = 16.0;
  for (const Column& column : columns) {
    print_in(page, column, line_start, AnswerKey::tr(column.head));
    print_in(page, column, line_start - QPointF(0.0, unit_gap), QString::fromUtf8(column.unit));
  }
  const QPointF rule = line_start - QPointF(0.0, rule_gap);
  page.drawLine(QLineF(rule, rule + QPointF(width, 0.0)));
}

void paint_head(QPainter& page, QSizeF paper, const WorksheetOrder& order, int index, int pages) {
  const double left = page_margin;
  const double right = paper.width() - page_margin;
  const double top = paper.height() - page_margin;
  set_text_size(page, title_size, TextWeight::bold);
  print_text(page, {left, top - title_depth}, AnswerKey::tr("Answers to the worksheets"));
  set_text_size(page, text_size);
  print_text_right(page, {right, top - title_depth},
                   AnswerKey::tr("Page %1 of %2").arg(index + 1).arg(pages));
  const QString kind = model_text(order.type->name);
  print_text(page, {left, top - kind_depth}, AnswerKey::tr("Incoming particle: %1").arg(kind));
  print_text_right(page, {right, top - kind_depth},
                   AnswerKey::tr("Seed %1, events 1 to %2").arg(order.seed).arg(order.events));
  print_text(page, {left, top - values_depth}, QString::fromStdString(values_text(order.values)));
}

}  // namespace

std::vector<AnswerLine> answer_lines(int number, const std::vector<TrackAnswer>& answers) {
  if (answers.empty()) {
    return {{QString::number(number), AnswerKey::tr("no track is visible")}};
  }
  std::vector<AnswerLine> lines;
  lines.reserve(answers.size());
  for (const TrackAnswer& answer : answers) {
    lines.push_back(line_of(number, answer));
  }
  return lines;
}

int lines_on_key_page(QSizeF paper) {
  const double room = paper.height() - 2.0 * page_margin - first_line_depth - notes_height;
  return static_cast<int>(room / answer_line_height);
}

void paint_key_page(QPainter& page, QSizeF paper, const WorksheetOrder& order,
                    const std::vector<AnswerLine>& lines, int index) {
  constexpr double note_height = 12.0;
  const auto first =
      static_cast<std::size_t>(index) * static_cast<std::size_t>(lines_on_key_page(paper));
  const std::size_t end =
      std::min(first + static_cast<std::size_t>(lines_on_key_page(paper)), lines.size());
  const int pages = (static_cast<int>(lines.size()) - 1) / lines_on_key_page(paper) + 1;
  page.setPen(QPen(Qt::black, thin_line, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  paint_head(page, paper, order, index, pages);
  set_text_size(page, small_text_size);
  QPointF place(page_margin, paper.height() - page_margin - head_depth);
  paint_column_heads(page, place, paper.width() - 2.0 * page_margin);
  place.setY(paper.height() - page_margin - first_line_depth);
  for (std::size_t i = first; i < end; ++i) {
    for (std::size_t column = 0; column < lines[i].size(); ++column) {
      print_in(page, columns[column], place, lines[i][column]);
    }
    place.ry() -= answer_line_height;
  }
  place.setY(page_margin + static_cast<double>(notes.size() - 1) * note_height);
  for (const char* const note : notes) {
    print_text(page, place, AnswerKey::tr(note));
    place.ry() -= note_height;
  }
}

}  // namespace velquon
