// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velquon {

/// The most points that a generated event holds.
inline constexpr std::int16_t event_point_limit = 350;

/// One point of an event.
struct PlotPoint {
  /// x, y, z in drawing units, then the homogeneous coordinate 1.0.
  std::array<double, 4> coords{};
  double time = 0.0;      ///< key of the timed merge; the track engine never writes it
  std::int16_t code = 0;  ///< track code: the colour in which the point is drawn

  friend bool operator==(const PlotPoint&, const PlotPoint&) = default;
};

/// Row of the colour table in which a track code is drawn: the rows are those of the codes 3 to 7, and
/// all other codes share the last one.
[[nodiscard]] constexpr std::size_t track_color_row(std::int16_t code) {
  constexpr std::int16_t first = 3;
  constexpr std::int16_t last = 7;
  return static_cast<std::size_t>((code >= first && code <= last ? code : last) - first);
}

/// A list of points of fixed capacity that tracks are laid into one behind the other.
class TrackBuffer {
 public:
  explicit TrackBuffer(std::int16_t limit = event_point_limit)
      : slots_(static_cast<std::size_t>(limit)) {}

  /// The points laid down so far.
  [[nodiscard]] std::span<const PlotPoint> points() const {
    return std::span(slots_).first(static_cast<std::size_t>(count));
  }
  /// The slots behind the last point.
  [[nodiscard]] std::span<PlotPoint> free_slots() {
    return std::span(slots_).subspan(static_cast<std::size_t>(count));
  }
  /// The point written last; there must be one.
  [[nodiscard]] const PlotPoint& last() const {
    return slots_[static_cast<std::size_t>(count) - 1];
  }

  [[nodiscard]] std::int16_t limit() const { return static_cast<std::int16_t>(slots_.size()); }

  /// Running point count; the track functions advance it.
  std::int16_t count = 0;

 private:
  std::vector<PlotPoint> slots_;
};

}  // namespace velquon
