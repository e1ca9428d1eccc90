// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/chamber_values.h"
#include "engine/event_record.h"
#include "events/event_types.h"
#include "files/event_file.h"
#include "model/event_history.h"
#include "model/listeners.h"
#include "model/shown_event.h"
#include "model/turntable.h"

namespace velquon {

/// How the user wants events to be shown.
struct ChamberPreferences {
  bool show_axes = true;
  bool show_values = true;
  bool reset_each = false;         ///< go back to the resting viewpoint for each new event
  bool slomo = false;              ///< show each new event point by point
  bool chamber_on_top = true;      ///< the window brought to the front with each new event
  bool hide_answers = false;       ///< tell nothing of an event but what is seen, until asked to
  bool show_legend = true;         ///< beside the pictures
  bool axis_letters = false;       ///< at the tips of the chamber's axes
  bool field_arrow = false;        ///< the direction of the magnetic field, in the chamber
  bool colored_projector = false;  ///< the projector's points in the colours of their codes
};

/// What the program knows of its chamber: the kind and the values of the next event, how events are
/// shown, and the event that is shown. The windows show it and tell it what the user does.
class ChamberModel {
 public:
  /// Told after each change of what is shown or chosen.
  Listeners changed;
  /// Told when the user has marked other points of the shown event, or none, after `changed`; not when
  /// another event takes the marks away.
  Listeners marks_changed;

  /// Seeds the process-wide random generator, once for the program's run.
  /// \param seed the seed; without one the low 32 bits of the microsecond clock
  explicit ChamberModel(std::optional<std::uint32_t> seed);

  /// With which the random generator began.
  [[nodiscard]] std::uint32_t seed() const { return seed_; }

  /// Kind of the next event, an index of `event_types`.
  [[nodiscard]] int event_type() const { return event_type_; }
  void setEventType(int type);

  /// Values that the user has chosen, as the controls hold them.
  [[nodiscard]] const ChamberValues& chosen() const { return chosen_; }
  void setChosen(const ChamberValues& values);

  /// Values that the next event is made with; the chosen ones, once the user wants an event.
  [[nodiscard]] const ChamberValues& next() const { return next_; }
  void setNext(const ChamberValues& values);

  [[nodiscard]] const ChamberPreferences& preferences() const { return preferences_; }
  /// Hiding the answers from now on takes back that those of the shown event were asked for.
  void setPreferences(const ChamberPreferences& preferences);

  /// The turntable's choices and motion. Whoever changes rate or axis calls `turntableChanged`.
  [[nodiscard]] Turntable& turntable() { return turntable_; }
  [[nodiscard]] const Turntable& turntable() const { return turntable_; }
  void turntableChanged() { changed.tell(); }

  /// The event that is shown; never null.
  [[nodiscard]] const std::shared_ptr<const ShownEvent>& shown() const { return shown_; }

  /// Whether there is an event that was made or opened before the one that is shown, or after it.
  [[nodiscard]] bool hasPreviousEvent() const { return history_.hasPrevious(); }
  [[nodiscard]] bool hasNextEvent() const { return history_.hasNext(); }
  /// Shows it again, with its values and its name; the next values stay. Nothing where there is none.
  void showPreviousEvent();
  void showNextEvent();

  /// Makes an event of the chosen kind with the next values and shows it. An event whose tracks
  /// are not handed over leaves those that are shown; values and name change all the same.
  void makeNewEvent();
  /// Reads an event file of any layout and shows what it holds.
  /// \param tell_negative_field as for `show`
  /// \return why the file is refused, when nothing has changed; nothing when it is shown
  std::optional<Refusal> open(std::span<const std::byte> file, const std::string& name,
                              const std::function<void()>& tell_negative_field);
  /// Shows an event that was read from a file. Its values, as the controls hold them, are the next
  /// ones, too.
  /// \param tell_negative_field called for a file that held a negative field, when the event's points
  ///                            are shown, and its values and its name not yet; or null
  void show(const StoredEvent& event, const std::string& name,
            const std::function<void()>& tell_negative_field);

  // Change the event that is shown, which keeps its place in the history.

  /// Shows the next values as those of the event.
  void showNextValues();
  void showName(const std::string& name);

  /// Points of the shown event that the views emphasise: their indices, rising. Another event has
  /// none.
  [[nodiscard]] const std::vector<std::size_t>& marked() const { return marked_; }
  /// \param points indices below the number of points, rising
  void mark(std::vector<std::size_t> points);

  /// Whether what happened in the shown event may be told.
  [[nodiscard]] bool answersShown() const { return !preferences_.hide_answers || revealed_; }
  /// Has what happened told, until there is another event.
  void revealAnswers();

  // What legacy.cpp has. They change the event that is shown, which keeps its place in the history.

  /// Runs a chain of decays under the next values and shows the tracks if they are handed over.
  /// \param type kind of the event, of which the chain is
  void makeTracks(const EventType& type);
  /// Shows tracks that were not made here.
  void showTracks(std::span<const PlotPoint> points);

 private:
  void showAnother(const ShownEvent& event);
  void changeShown(const ShownEvent& event);
  void showAgain(std::shared_ptr<const ShownEvent> event);
  void take(std::shared_ptr<const ShownEvent> event);
  /// Takes away the marks, and that the answers were asked for.
  void forgetWhatWasSeen();

  std::uint32_t seed_;
  int event_type_ = 0;
  ChamberValues chosen_;
  ChamberValues next_;
  ChamberPreferences preferences_;
  Turntable turntable_;
  std::shared_ptr<const ShownEvent> shown_ = std::make_shared<const ShownEvent>();
  EventHistory history_;
  std::vector<std::size_t> marked_;
  bool revealed_ = false;
};

/// Values as the controls of the windows hold them, who have the side in metres.
[[nodiscard]] ChamberValues as_controls_hold(const ChamberValues& values);

}  // namespace velquon
