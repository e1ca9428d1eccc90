// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "model/listeners.h"
#include "model/place.h"
#include "model/step_pace.h"
#include "model/tape.h"
#include "model/track_simulation.h"

namespace velquon {

/// The electron and the positron.
enum class TrackParticle : std::uint8_t { e_minus, e_plus };

enum class TrackDirection : std::uint8_t { left_to_right, right_to_left };

/// How fast the steps of a run follow each other.
enum class ScreenSpeed : std::uint8_t { faster, standard, slower };

/// What the live track allows or forbids the user.
enum class TrackItem : std::uint8_t {
  activate,         ///< to activate or deactivate the window
  inject,           ///< to inject a particle
  clear,            ///< to clear the screen
  choice,           ///< of particle, direction and speed
  screen_speed,     ///< to choose it
  window,           ///< to bring the window back
  rest_of_program,  ///< to open, save, make, turn and show events
};

/// What the program knows of its live track: what is chosen, whether the window is active, the
/// particle and its run, and the tape measure. Times are microseconds of one clock that never steps
/// back; it reads no clock and runs no timer itself. Places are view units with y upwards.
///
/// A run is `inject`, `enter` and `setTracking`, `startPace`, then the steps while the simulation's
/// `canStep`, then `endRun`. A step is `advance`, then a drawing, then `takeClearSignal` and `goOn`.
class TrackModel {
 public:
  /// Told after each change of what is chosen, allowed or read; not after every step.
  Listeners changed;

  TrackModel();

  [[nodiscard]] const TrackSimulation& simulation() const { return simulation_; }

  /// A choice counts from the next injection on; the charge of a particle from the next step on.
  void setParticle(TrackParticle particle);
  void setDirection(TrackDirection direction);
  /// \param speed view units per step, 1 to 3; with another the present choice is set again
  void setSpeed(int speed);
  [[nodiscard]] TrackParticle particle() const { return particle_; }
  [[nodiscard]] TrackDirection direction() const { return direction_; }
  [[nodiscard]] int speed() const { return speed_; }

  /// Moves the particle by other settings than those chosen.
  void setSettings(const LiveTrackSettings& settings);
  /// Takes a field, or that of the tick mark when one is next to it. Counts from the next step on.
  void takeField(double field, double closest_tick);

  /// Period of the steps from the next start on.
  void setScreenSpeed(ScreenSpeed speed);
  /// \param seconds rounded to milliseconds
  void setTimerSecs(double seconds);
  [[nodiscard]] double timerSecs() const { return timerSecs_; }
  [[nodiscard]] std::chrono::milliseconds stepPeriod() const;

  /// Whether the window is active. A window that was closed while active stays so.
  [[nodiscard]] bool activated() const { return activated_; }
  void activate();
  void deactivate();
  /// \param on allows what the window offers and forbids the rest of the program, or the reverse
  void doMenus(bool on);
  /// Whether the user may do something now.
  [[nodiscard]] bool isEnabled(TrackItem item) const;

  /// Gives the particle speed and direction, with which a run is going on, and empties the reading.
  void inject();
  /// Puts the particle at its entry point.
  void enter(const TrackStart& start);
  /// Says whether a run goes on.
  void setTracking(bool tracking);
  [[nodiscard]] bool is_tracking() const { return simulation_.is_tracking(); }
  /// Makes the first step due a period from now.
  void startPace(std::uint64_t now);
  /// Takes the steps that are to be made when the timer has fired, at least 1.
  [[nodiscard]] std::uint64_t takeStepsDue(std::uint64_t now);
  void endRun();

  void advance();
  /// Asks for the track to be dropped at the next step.
  void setClearSignal() { simulation_.setClearSignal(); }
  /// \return whether the track was dropped but for the present point
  [[nodiscard]] bool takeClearSignal() { return simulation_.takeClearSignal(); }
  void goOn() { simulation_.goOn(); }

  /// The mouse button went down at a place, moved or went up: lays out the tape.
  void press(Place place) { tape_start_ = place; }
  void drag(Place place);
  void release(Place place);
  /// The tape, visible while it is being stretched.
  [[nodiscard]] Tape tape() const { return {tape_start_, tape_end_, simulation_.stretching}; }
  /// Length of the tape, a tenth of its view units.
  [[nodiscard]] double tapeLength() const;
  /// What the tape read last; nothing since the last injection.
  [[nodiscard]] std::optional<double> reading() const { return reading_; }

 private:
  void readTape();

  TrackSimulation simulation_;
  TrackParticle particle_ = TrackParticle::e_minus;
  TrackDirection direction_ = TrackDirection::left_to_right;
  int speed_ = 2;
  double timerSecs_ = 0.01;  ///< as at the start; no choice sets it again
  bool activated_ = false;
  bool menus_on_ = false;  ///< as `doMenus` set it last
  StepPace pace_;
  std::uint64_t run_period_ = 0;  ///< of the present run, microseconds
  Place tape_start_;
  Place tape_end_;
  std::optional<double> reading_;
};

/// Charge of a particle as the simulation counts it.
[[nodiscard]] float charge_of(TrackParticle particle);
/// Number of a direction as the simulation counts it.
[[nodiscard]] std::int32_t number_of(TrackDirection direction);

}  // namespace velquon
