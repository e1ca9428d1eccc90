// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/names.h"

#include <QCoreApplication>
#include <string>

#include "model/event_rows.h"

namespace velquon {

namespace {

// The names come from tables that know nothing of languages.
[[maybe_unused]] constexpr std::array particle_names{
    QT_TRANSLATE_NOOP("ParticleKind", "Positive pion"),
    QT_TRANSLATE_NOOP("ParticleKind", "Negative pion"),
    QT_TRANSLATE_NOOP("ParticleKind", "Neutral pion"),
    QT_TRANSLATE_NOOP("ParticleKind", "Negative muon"),
    QT_TRANSLATE_NOOP("ParticleKind", "Positive muon"),
    QT_TRANSLATE_NOOP("ParticleKind", "Electron"),
    QT_TRANSLATE_NOOP("ParticleKind", "Positron"),
    QT_TRANSLATE_NOOP("ParticleKind", "Neutrino"),
    QT_TRANSLATE_NOOP("ParticleKind", "Antineutrino"),
    QT_TRANSLATE_NOOP("ParticleKind", "Neutrino and antineutrino"),
    QT_TRANSLATE_NOOP("ParticleKind", "Photon"),
    QT_TRANSLATE_NOOP("ParticleKind", "Lambda"),
    QT_TRANSLATE_NOOP("ParticleKind", "Proton"),
    QT_TRANSLATE_NOOP("ParticleKind", "Neutron"),
};
[[maybe_unused]] constexpr std::array color_names{
    QT_TRANSLATE_NOOP("TrackColor", "Red"),        QT_TRANSLATE_NOOP("TrackColor", "Yellow"),
    QT_TRANSLATE_NOOP("TrackColor", "Green"),      QT_TRANSLATE_NOOP("TrackColor", "Blue"),
    QT_TRANSLATE_NOOP("TrackColor", "Light blue"),
};

QString translated(const char* context, std::string_view text) {
  return QCoreApplication::translate(context, std::string(text).c_str());
}

}  // namespace

QString from_utf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString particle_name(const ParticleKind& kind) {
  return translated("ParticleKind", kind.name);
}

QString track_color_name(std::int16_t code) {
  return translated("TrackColor", color_name(code));
}

}  // namespace velquon
