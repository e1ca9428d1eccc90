// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/event_telling.h"

#include "chamber/chamber_window.h"
#include "model/event_numbering.h"
#include "projection/projector_window.h"
#include "wording/told_event.h"

namespace velquon {

EventTelling::EventTelling(ChamberModel& model, const EventNumbering& numbering,
                           ChamberWindow& chamber_window, ProjectorWindow& projector_window)
    : model_(model),
      numbering_(numbering),
      chamber_window_(chamber_window),
      projector_window_(projector_window) {
  changes_ = model_.changed.add([this] { refresh(); });
}

void EventTelling::setSeed(std::optional<std::uint32_t> seed) {
  seed_ = seed;
  const QString longest = long_status(seed);
  chamber_window_.makeRoomForStatus(longest);
  projector_window_.makeRoomForStatus(longest);
}

void EventTelling::refresh() {
  const ChamberPreferences& preferences = model_.preferences();
  State state{.event = model_.shown(),
              .number = numbering_.numberOfShown(),
              .answers_shown = model_.answersShown(),
              .colored_projector = preferences.colored_projector,
              .show_legend = preferences.show_legend};
  if (told_ == state) {
    return;
  }
  told_ = std::move(state);
  chamber_window_.showLegend(told_->show_legend);
  projector_window_.showLegend(told_->show_legend);
  if (told_->event->has_event) {
    tellEvent(*told_);
  } else {
    tellBeginning();
  }
}

void EventTelling::tellBeginning() {
  const ToldEvent told{.legend = {},
                       .spoken_legend = {},
                       .status = tr("Choose an event and press New Event (%1).")
                                     .arg(begin_key_.toString(QKeySequence::NativeText)),
                       .spoken = tr("There is no event yet.")};
  chamber_window_.tell(told);
  projector_window_.tell(told);
}

void EventTelling::tellEvent(const State& state) {
  const StatusFacts facts{
      .number = state.number, .seed = seed_, .answers_shown = state.answers_shown};
  chamber_window_.tell(told_event(*state.event, facts, TrackColoring::by_code));
  projector_window_.tell(
      told_event(*state.event, facts,
                 state.colored_projector ? TrackColoring::by_code : TrackColoring::white));
}

}  // namespace velquon
