// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/event_text.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

#include "events/event_types.h"
#include "widgets/model_text.h"
#include "widgets/number_text.h"
#include "wording/names.h"

namespace velquon {

namespace {

struct EventText {
  Q_DECLARE_TR_FUNCTIONS(velquon::EventText)
};

int as_int(std::size_t count) {
  return static_cast<int>(count);
}

/// Why one particle left no points.
QString reason_of_one(Fate fate) {
  switch (fate) {
    case Fate::decayed:
      return EventText::tr("the %1 decayed", "symbol of a particle");
    case Fate::converted:
      return EventText::tr("the %1 converted to a pair", "symbol of a particle");
    case Fate::left:
      return EventText::tr("the %1 left the chamber at once", "symbol of a particle");
    case Fate::full:
      return EventText::tr("the event holds no points of the %1", "symbol of a particle");
    case Fate::escaped:
      return EventText::tr("the %1 left the chamber", "symbol of a particle");
    case Fate::undetected:
      break;
  }
  return EventText::tr("the %1 is not detected", "symbol of a particle");
}

/// Why several particles of a kind left no points.
QString reason_of_several(Fate fate, int count) {
  switch (fate) {
    case Fate::decayed:
      return EventText::tr("%n %1 decayed", "symbol of particles", count);
    case Fate::converted:
      return EventText::tr("%n %1 converted to pairs", "symbol of particles", count);
    case Fate::left:
      return EventText::tr("%n %1 left the chamber at once", "symbol of particles", count);
    case Fate::full:
      return EventText::tr("the event holds no points of %n %1", "symbol of particles", count);
    case Fate::escaped:
      return EventText::tr("%n %1 left the chamber", "symbol of particles", count);
    case Fate::undetected:
      break;
  }
  return EventText::tr("%n %1 are not detected", "symbol of particles", count);
}

/// Reasons why particles are not seen, "the Λ left the chamber"; empty where there are none to tell.
QString reasons(const std::vector<UnseenParticles>& unseen) {
  QStringList texts;
  for (const UnseenParticles& particles : unseen) {
    const QString text = particles.count == 1
                             ? reason_of_one(particles.fate)
                             : reason_of_several(particles.fate, as_int(particles.count));
    texts << text.arg(from_utf8(particles.particle->symbol));
  }
  return texts.join(QStringLiteral(", "));
}

QString no_track_text(const EventInWords& words) {
  const QString why = reasons(words.unseen);
  return why.isEmpty() ? EventText::tr("No visible track")
                       : EventText::tr("No visible track: %1").arg(why);
}

QString kind_or_name(const ShownEvent& event, bool answers_shown) {
  const auto& type = event.tracks->type;
  return type && answers_shown ? model_text(event_types()[*type].name)
                               : event_name_text(event.name);
}

QString bend_text(Bend bend) {
  switch (bend) {
    case Bend::straight:
      return EventText::tr("straight");
    case Bend::clockwise:
      return EventText::tr("turns clockwise");
    case Bend::anticlockwise:
      return EventText::tr("turns anticlockwise");
    case Bend::not_seen:
      break;
  }
  return EventText::tr("too short to tell which way it turns");
}

QString length_text(double length_cm) {
  constexpr double short_cm = 10.0;
  return EventText::tr("%1 cm").arg(fixed_text(length_cm, 0, length_cm < short_cm ? 1 : 0));
}

/// "Negative pion, red", or "Track 2" where neither is to be told.
QString track_name(const SeenTrack& track, std::size_t number, TrackColoring coloring) {
  const QString name = track.particle != nullptr ? particle_name(*track.particle)
                                                 : EventText::tr("Track %1").arg(number);
  return coloring == TrackColoring::by_code ? EventText::tr("%1, %2", "particle, colour")
                                                  .arg(name, track_color_name(track.code).toLower())
                                            : name;
}

}  // namespace

QString status_text(const ShownEvent& event, const EventInWords& words, const StatusFacts& facts) {
  QStringList parts{kind_or_name(event, facts.answers_shown),
                    EventText::tr("event %1").arg(facts.number)};
  if (facts.seed) {
    parts << EventText::tr("seed %1").arg(*facts.seed);
  }
  if (words.tracks.empty()) {
    parts << no_track_text(words);
  } else {
    parts << EventText::tr("%n points", nullptr, as_int(event.points().size()))
          << EventText::tr("%n tracks", nullptr, as_int(words.tracks.size()));
    if (!words.unseen.empty()) {
      parts << reasons(words.unseen);
    }
  }
  return parts.join(QStringLiteral(" · "));
}

QString spoken_event(const EventInWords& words, TrackColoring coloring) {
  if (words.tracks.empty()) {
    return no_track_text(words);
  }
  QStringList sentences{
      EventText::tr("%n tracks on the xy plane", nullptr, as_int(words.tracks.size()))};
  for (std::size_t i = 0; i < words.tracks.size(); ++i) {
    const SeenTrack& track = words.tracks[i];
    sentences << EventText::tr("%1: %2, %3", "track: length, which way it turns")
                     .arg(track_name(track, i + 1, coloring), length_text(track.length_cm),
                          bend_text(track.bend));
  }
  if (!words.unseen.empty()) {
    sentences << EventText::tr("Not seen: %1").arg(reasons(words.unseen));
  }
  return sentences.join(QStringLiteral(". ")) + QLatin1Char('.');
}

}  // namespace velquon
