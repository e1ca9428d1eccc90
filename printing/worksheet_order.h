// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPageSize>
#include <cstdint>
#include <span>
#include <string_view>

#include "engine/chamber_values.h"
#include "events/event_types.h"

namespace velquon {

/// Which worksheets are printed, a page for each of the first events of a seed.
struct WorksheetOrder {
  const EventType* type = nullptr;
  ChamberValues values;  ///< as the controls hold them
  std::uint32_t seed = 0;
  int events = 1;
  QPageSize::PageSizeId paper = QPageSize::A4;
};

/// More worksheets than that in one file are a slip of the hand.
inline constexpr int most_worksheets = 1000;

/// One entry of an order as a person writes it.
struct OrderEntry {
  std::string_view key;          ///< name on a command line
  std::string_view placeholder;  ///< what stands for its value in a help text
  std::string_view help;
  std::string_view wanted;  ///< what a value must be: "a finite field in kG"
  /// Puts a value into an order, if it is one that the order can have.
  bool (*take)(WorksheetOrder& order, std::string_view value);
};

/// The entries that take the same values, and refuse the same, as the options of `velquon-events` of
/// these names; but for the number of events, of which there is at least one and at most
/// `most_worksheets`.
[[nodiscard]] std::span<const OrderEntry> order_entries();

/// The entry with a key; there must be one.
[[nodiscard]] const OrderEntry& order_entry(std::string_view key);

}  // namespace velquon
