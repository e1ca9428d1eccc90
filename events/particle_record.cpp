// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "events/particle_record.h"

#include "engine/model_text.h"

namespace velquon {

std::string_view name_of(Fate fate) {
  constexpr std::array<std::string_view, 6> names{
      MODEL_TEXT("velquon::Model", "decayed"), MODEL_TEXT("velquon::Model", "converted"),
      MODEL_TEXT("velquon::Model", "left"),    MODEL_TEXT("velquon::Model", "full"),
      MODEL_TEXT("velquon::Model", "escaped"), MODEL_TEXT("velquon::Model", "undetected")};
  return names[static_cast<std::size_t>(fate)];
}

void ParticleRecord::clear() {
  size_ = 0;
  owners_.clear();
  merged_ = false;
}

}  // namespace velquon
