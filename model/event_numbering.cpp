// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_numbering.h"

#include <algorithm>

namespace velquon {

EventNumbering::EventNumbering(ChamberModel& model)
    : model_(model), known_{{model.shown()->tracks, 0}} {
  changes_ = model.changed.add([this] { look(); });
}

std::string EventNumbering::nameOfShown() const {
  const ShownEvent& shown = *model_.shown();
  return shown.has_event ? shown.name + " " + std::to_string(number_) : std::string();
}

void EventNumbering::look() {
  const auto& shown = model_.shown()->tracks;
  const auto known = std::ranges::find_if(
      known_, [&shown](const auto& entry) { return entry.first.lock() == shown; });
  if (known != known_.end()) {
    number_ = known->second;
    return;
  }
  std::erase_if(known_, [](const auto& entry) { return entry.first.expired(); });
  number_ = ++last_;
  known_.emplace_back(shown, number_);
}

}  // namespace velquon
