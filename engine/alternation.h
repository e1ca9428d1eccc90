// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace velquon {

/// Writes items one behind the other while there is room.
template <typename Item>
class LimitedWriter {
 public:
  /// \param out   at least the items written
  /// \param limit the most items that are written
  LimitedWriter(std::span<Item> out, std::int16_t limit)
      : out_(out), limit_(static_cast<std::size_t>(std::max<std::int16_t>(limit, 0))) {}

  [[nodiscard]] bool has_room() const { return written_ < limit_; }
  [[nodiscard]] std::int16_t written() const { return static_cast<std::int16_t>(written_); }

  void write(const Item& item) {
    if (has_room()) {
      out_[written_++] = item;
    }
  }
  void write(std::span<const Item> items) {
    for (const Item& item : items) {
      write(item);
    }
  }

 private:
  std::span<Item> out_;
  std::size_t limit_;
  std::size_t written_ = 0;
};

/// Merges two lists in turns: the one with fewer items leads (`first` on equal counts), and what is
/// left of the longer one follows.
/// \param out   receives the merged list; at least the items written
/// \param limit the most items that may be written
/// \return the number of items written
template <typename Item>
std::int16_t alternate(std::span<const Item> first, std::span<const Item> second,
                       std::span<Item> out, std::int16_t limit) {
  const bool first_leads = first.size() <= second.size();
  const auto leading = first_leads ? first : second;
  const auto trailing = first_leads ? second : first;
  LimitedWriter<Item> writer(out, limit);
  for (std::size_t i = 0; i < leading.size(); ++i) {
    writer.write(leading[i]);
    writer.write(trailing[i]);
  }
  writer.write(trailing.subspan(leading.size()));
  return writer.written();
}

}  // namespace velquon
