// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_numbering.h"

namespace velquon {

EventNumbering::EventNumbering(ChamberModel& model)
    : model_(model), tracks_(model.shown()->tracks) {
  model.changed.add([this] { look(); });
}

std::string EventNumbering::nameOfShown() const {
  const ShownEvent& shown = *model_.shown();
  return shown.has_event ? shown.name + " " + std::to_string(number_) : std::string();
}

void EventNumbering::look() {
  if (model_.shown()->tracks != tracks_) {
    tracks_ = model_.shown()->tracks;
    ++number_;
  }
}

}  // namespace velquon
