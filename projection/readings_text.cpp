// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projection/readings_text.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cstddef>

#include "model/reading_text.h"
#include "widgets/model_text.h"

namespace velquon {

namespace {

struct Symbol {
  Quantity quantity;
  const char16_t* text;
};
constexpr std::array symbols{Symbol{Quantity::transverse_momentum, u"pT"},
                             Symbol{Quantity::radius, u"R"}, Symbol{Quantity::sagitta, u"s"},
                             Symbol{Quantity::chord, u"c"}, Symbol{Quantity::angle, u"∠"}};

QString text_of(const char* source) {
  return QCoreApplication::translate("velquon::Readings", source);
}

QString value_of(const Reading& reading) {
  return QString::fromStdString(measured_text(reading.value, reading.error)) + QChar(u' ') +
         model_text(name_of(reading.quantity).unit);
}

/// What to do next with a tool, by the number of points that are set; the last holds for more.
QString next_step(const Projector& projector) {
  constexpr std::array curve_steps{
      QT_TRANSLATE_NOOP("velquon::Readings", "Set three points or more along a track."),
      QT_TRANSLATE_NOOP("velquon::Readings", "Set two more points along the track."),
      QT_TRANSLATE_NOOP("velquon::Readings", "Set one more point along the track."),
      QT_TRANSLATE_NOOP("velquon::Readings", "The points have to lie apart.")};
  constexpr std::array angle_steps{
      QT_TRANSLATE_NOOP("velquon::Readings", "Set the vertex."),
      QT_TRANSLATE_NOOP("velquon::Readings", "Set a point of the first arm."),
      QT_TRANSLATE_NOOP("velquon::Readings", "Set a point of the second arm."),
      QT_TRANSLATE_NOOP("velquon::Readings", "The points have to lie apart.")};
  switch (projector.tool()) {
    case ProjectorTool::tape:
      return text_of(QT_TRANSLATE_NOOP("velquon::Readings", "Set both ends of the tape."));
    case ProjectorTool::grab:
      return text_of(QT_TRANSLATE_NOOP("velquon::Readings", "Take hold of the picture."));
    case ProjectorTool::curve:
      return text_of(
          curve_steps[std::min(projector.curve().points.places().size(), curve_steps.size() - 1)]);
    case ProjectorTool::angle:
      break;
  }
  return text_of(
      angle_steps[std::min(projector.angle().points.places().size(), angle_steps.size() - 1)]);
}

bool has_radius(const std::vector<Reading>& readings) {
  return std::ranges::find(readings, Quantity::radius, &Reading::quantity) != readings.end();
}

/// Said instead of a radius.
QString straight_note(const Projector& projector, const std::vector<Reading>& readings) {
  const bool is_straight = projector.tool() == ProjectorTool::curve && !has_radius(readings);
  return is_straight ? text_of(QT_TRANSLATE_NOOP("velquon::Readings", "straight")) : QString();
}

}  // namespace

QString shown_readings(const Projector& projector) {
  if (projector.tool() == ProjectorTool::tape || projector.tool() == ProjectorTool::grab) {
    return {};
  }
  const auto readings = projector.readings();
  if (readings.empty()) {
    return next_step(projector);
  }
  QStringList circle(straight_note(projector, readings));
  circle.removeAll(QString());
  QStringList arc;
  for (const Reading& reading : readings) {
    const auto* const symbol = std::ranges::find(symbols, reading.quantity, &Symbol::quantity);
    const bool is_of_arc =
        reading.quantity == Quantity::sagitta || reading.quantity == Quantity::chord;
    (is_of_arc ? arc : circle) << QStringLiteral("%1 = %2").arg(QString::fromUtf16(symbol->text),
                                                                value_of(reading));
  }
  const QString gap = QStringLiteral("   ");
  return arc.isEmpty() ? circle.join(gap) : circle.join(gap) + QChar(u'\n') + arc.join(gap);
}

QString spoken_readings(const Projector& projector) {
  const auto readings = projector.readings();
  if (readings.empty()) {
    return next_step(projector);
  }
  QStringList parts(straight_note(projector, readings));
  parts.removeAll(QString());
  for (const Reading& reading : readings) {
    parts << model_text(name_of(reading.quantity).name) + QChar(u' ') + value_of(reading);
  }
  return parts.join(QStringLiteral(", "));
}

}  // namespace velquon
