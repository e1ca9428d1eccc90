// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/event_history.h"

#include <utility>

namespace velquon {

void EventHistory::add(std::shared_ptr<const ShownEvent> event) {
  events_.push_back(std::move(event));
  if (events_.size() > longest) {
    events_.pop_front();
  }
  position_ = events_.size() - 1;
}

void EventHistory::replace(std::shared_ptr<const ShownEvent> event) {
  if (!events_.empty()) {
    events_.at(position_) = std::move(event);
  }
}

}  // namespace velquon
