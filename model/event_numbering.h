// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/chamber_model.h"
#include "model/listeners.h"

namespace velquon {

/// Numbers the events that are shown one after another, from 1: several of one run have one name. An
/// event that is shown again keeps its number.
class EventNumbering {
 public:
  /// \param model where events are shown
  explicit EventNumbering(ChamberModel& model);
  EventNumbering(const EventNumbering&) = delete;
  EventNumbering& operator=(const EventNumbering&) = delete;
  EventNumbering(EventNumbering&&) = delete;
  EventNumbering& operator=(EventNumbering&&) = delete;
  ~EventNumbering() = default;

  /// Name and number of the shown event, such as "Untitled Type 1 Decay 3"; empty before the first.
  [[nodiscard]] std::string nameOfShown() const;
  /// Number of the shown event; 0 before the first.
  [[nodiscard]] std::uint64_t numberOfShown() const { return number_; }

 private:
  void look();

  const ChamberModel& model_;
  /// Tracks that may be shown again, and their numbers.
  std::vector<std::pair<std::weak_ptr<const EventTracks>, std::uint64_t>> known_;
  std::uint64_t number_ = 0;  ///< of what is shown
  std::uint64_t last_ = 0;    ///< number given
  Subscription changes_;
};

}  // namespace velquon
