// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/legend_text.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

#include "render/track_colors.h"
#include "wording/names.h"

namespace velquon {

namespace {

struct Legend {
  Q_DECLARE_TR_FUNCTIONS(velquon::Legend)
};

QColor color_of(const LegendEntry& entry) {
  const auto& [red, green, blue] = track_colors[entry.color];
  return QColor::fromRgbF(red, green, blue);
}

/// Symbols of the particles that it may be, "π/μ"; a question mark where nothing is known.
QString possible_symbols(const LegendEntry& entry) {
  QStringList symbols;
  std::ranges::transform(entry.families, std::back_inserter(symbols), from_utf8);
  return symbols.isEmpty() ? QStringLiteral("?") : symbols.join(QLatin1Char('/'));
}

QString symbol_of(const LegendEntry& entry) {
  switch (entry.meaning) {
    case LegendMeaning::particle:
      return from_utf8(entry.particle->symbol);
    case LegendMeaning::decay_point:
      return QStringLiteral("•");
    case LegendMeaning::not_told:
      break;
  }
  return possible_symbols(entry);
}

QString name_of(const LegendEntry& entry, TrackColoring coloring) {
  switch (entry.meaning) {
    case LegendMeaning::particle:
      return particle_name(*entry.particle);
    case LegendMeaning::decay_point:
      return Legend::tr("Decay of %1").arg(from_utf8(entry.particle->symbol));
    case LegendMeaning::not_told:
      break;
  }
  return coloring == TrackColoring::by_code ? track_color_name(entry.code) : QString();
}

bool tells_only_a_color(const LegendEntry& entry) {
  return entry.meaning == LegendMeaning::not_told && entry.families.empty();
}

}  // namespace

std::vector<LegendLine> legend_lines(const std::vector<LegendEntry>& entries,
                                     TrackColoring coloring) {
  const bool has_colors = coloring == TrackColoring::by_code;
  std::vector<LegendLine> lines;
  for (const LegendEntry& entry : entries) {
    if (!has_colors && tells_only_a_color(entry)) {
      continue;
    }
    lines.push_back({.color = has_colors ? std::optional(color_of(entry)) : std::nullopt,
                     .symbol = symbol_of(entry),
                     .name = name_of(entry, coloring)});
  }
  return lines;
}

QString spoken_legend(const std::vector<LegendEntry>& entries, TrackColoring coloring) {
  QStringList sentences;
  for (const LegendEntry& entry : entries) {
    const bool has_colors = coloring == TrackColoring::by_code;
    if (!has_colors && tells_only_a_color(entry)) {
      continue;
    }
    const QString meaning = entry.meaning == LegendMeaning::not_told ? possible_symbols(entry)
                                                                     : name_of(entry, coloring);
    sentences << (has_colors ? Legend::tr("%1: %2").arg(track_color_name(entry.code), meaning)
                             : meaning);
  }
  return sentences.join(QStringLiteral("; "));
}

}  // namespace velquon
