// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <deque>
#include <memory>

#include "model/shown_event.h"

namespace velquon {

/// The last events of the program's run, in the order in which they were made or opened, and which of
/// them is shown. Before the first there is none.
class EventHistory {
 public:
  /// More events are not kept; the oldest goes.
  static constexpr std::size_t longest = 100;

  /// From now on this event is shown, which comes last.
  void add(std::shared_ptr<const ShownEvent> event);
  /// Puts an event in the place of the one that is shown. Does nothing before the first event.
  void replace(std::shared_ptr<const ShownEvent> event);

  [[nodiscard]] bool hasPrevious() const { return position_ > 0; }
  [[nodiscard]] bool hasNext() const { return position_ + 1 < events_.size(); }
  /// Goes to the event made before or after the one that is shown. Only where there is one.
  const std::shared_ptr<const ShownEvent>& previous() { return events_.at(--position_); }
  const std::shared_ptr<const ShownEvent>& next() { return events_.at(++position_); }

 private:
  std::deque<std::shared_ptr<const ShownEvent>> events_;
  std::size_t position_ = 0;  ///< of the event that is shown
};

}  // namespace velquon
