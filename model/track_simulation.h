// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace velquon {

/// Size of the area that the particle crosses, view units; the origin is at the lower left.
inline constexpr int track_area_width = 490;
inline constexpr int track_area_height = 456;
/// How far beyond it the particle still moves on, view units.
inline constexpr double track_area_margin = 0.01;

/// What the user has chosen.
struct LiveTrackSettings {
  double B_field = 0.0;        ///< from the slider, signed
  double speed = 0.0;          ///< view units per step of length 1
  double charge = 0.0;         ///< -1 for the electron, +1 for the positron
  std::int32_t direction = 0;  ///< 1 from left to right, 2 from right to left
};

/// What one step leaves for the next.
struct SteppingState {
  std::int32_t istep = 0;             ///< index of the next point to write
  double old_x = 0.0, old_y = 0.0;    ///< the last position, view units
  double old_vx = 0.0, old_vy = 0.0;  ///< the velocity before the last rotation
  double rot_fac = 0.0;               ///< radians that one unit of field and charge turns in a step
  double B_rot = 0.0;                 ///< the last rotation, radians
  double sn = 0.0, cs = 0.0;          ///< its sine and cosine
};

/// How a run begins.
struct TrackStart {
  double y;              ///< height of the entry, view units
  double time_interval;  ///< length of one step
};

inline constexpr TrackStart timed_start{.y = 228.0, .time_interval = 1.0};

/// A particle that crosses a plane with a magnetic field perpendicular to it, and the track it
/// leaves. A step is `advance`, then a drawing of the track, then `takeClearSignal` and `goOn`.
class TrackSimulation {
 public:
  static constexpr std::size_t capacity = 10'000;

  LiveTrackSettings settings;

  // The flags by which the next drawing begins with an empty picture, beside `show_points`.
  bool resetting = false;   ///< the point arrays were just compacted
  bool stretching = false;  ///< the tape is being dragged

  [[nodiscard]] bool is_tracking() const { return is_tracking_; }
  void setTracking(bool tracking) { is_tracking_ = tracking; }

  /// Gives the particle the chosen speed in the chosen direction.
  void launch();
  /// Puts the particle at its entry point.
  void enter(const TrackStart& start);

  /// Whether the particle can be moved on: it is in the area and there is room for its next point.
  [[nodiscard]] bool canStep() const;

  /// Moves the particle by its velocity, then turns the velocity in the field.
  void advance();
  /// Asks for the track to be dropped at the next step.
  void setClearSignal() { clear_signal_ = true; }
  [[nodiscard]] bool clear_signal() const { return clear_signal_; }
  /// When asked for, drops the track but for the present point.
  /// \return whether that was done, so that the picture is to be cleared
  bool takeClearSignal();
  /// Goes on to the next point; drops the older half of a track that has become too long.
  void goOn();

  /// Number of points of the track.
  [[nodiscard]] std::int32_t show_points() const { return show_points_; }

  [[nodiscard]] std::span<const float> x_points() const { return shown(x_points_); }
  [[nodiscard]] std::span<const float> y_points() const { return shown(y_points_); }
  [[nodiscard]] double vx() const { return vx_; }
  [[nodiscard]] double vy() const { return vy_; }
  [[nodiscard]] double time_interval() const { return time_interval_; }
  [[nodiscard]] const SteppingState& stepping() const { return stepping_; }

  // What legacy.cpp has.

  /// Whether the particle is inside of what the legacy loop regards as the area.
  [[nodiscard]] bool isInLegacyArea() const;

 private:
  using Points = std::array<float, capacity>;

  [[nodiscard]] std::span<const float> shown(const Points& points) const {
    return std::span(points).first(static_cast<std::size_t>(show_points_));
  }
  void compact();

  SteppingState stepping_;
  double time_interval_ = 1.0;
  double vx_ = 0.0;  ///< view units per unit of time
  double vy_ = 0.0;
  Points x_points_{};
  Points y_points_{};
  std::int32_t show_points_ = 0;
  bool is_tracking_ = false;
  bool clear_signal_ = false;
};

}  // namespace velquon
