// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

#include "events/particle_kinds.h"

namespace velquon {

[[nodiscard]] QString from_utf8(std::string_view text);

/// The name of a kind of particle in the user's language, "Negative pion".
[[nodiscard]] QString particle_name(const ParticleKind& kind);

/// The colour of a track code in the user's language, "Red".
[[nodiscard]] QString track_color_name(std::int16_t code);

}  // namespace velquon
