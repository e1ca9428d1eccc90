// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wording/names.h"

#include "model/event_rows.h"
#include "widgets/model_text.h"

namespace velquon {

QString from_utf8(std::string_view text) {
  return QString::fromUtf8(text);
}

QString particle_name(const ParticleKind& kind) {
  return model_text(kind.name);
}

QString track_color_name(std::int16_t code) {
  return model_text(color_name(code));
}

}  // namespace velquon
