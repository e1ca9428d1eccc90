// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/chamber_model.h"

#include <cstdlib>
#include <utility>
#include <variant>

#include "model/clock.h"

namespace velquon {

ChamberModel::ChamberModel(std::optional<std::uint32_t> seed)
    : seed_(seed.value_or(static_cast<std::uint32_t>(Microseconds()))) {
  std::srand(seed_);
}

void ChamberModel::setEventType(int type) {
  event_type_ = type;
  changed.tell();
}

void ChamberModel::setChosen(const ChamberValues& values) {
  const bool differ = values != chosen_;
  // Zeros of either sign are equal.
  chosen_ = values;
  if (differ) {
    changed.tell();
  }
}

void ChamberModel::setNext(const ChamberValues& values) {
  next_ = values;
  changed.tell();
}

void ChamberModel::setPreferences(const ChamberPreferences& preferences) {
  if (preferences.hide_answers && !preferences_.hide_answers) {
    revealed_ = false;
  }
  preferences_ = preferences;
  changed.tell();
}

void ChamberModel::makeNewEvent() {
  ShownEvent event = *shown_;
  event.values = next_;
  event.has_event = true;
  const auto type = static_cast<std::size_t>(event_type_);
  if (type < event_types().size()) {
    if (auto tracks = made_tracks(event_types()[type], next_)) {
      event.tracks = std::move(tracks);
    }
    event.name = "Untitled Type " + std::to_string(type + 1) + " Decay";
  }
  showAnother(event);
}

std::optional<Refusal> ChamberModel::open(std::span<const std::byte> file, const std::string& name,
                                          const std::function<void()>& tell_negative_field) {
  const ReadResult result = read_event_file(file);
  if (const auto* const refusal = std::get_if<Refusal>(&result)) {
    return *refusal;
  }
  show(std::get<StoredEvent>(result), name, tell_negative_field);
  return std::nullopt;
}

void ChamberModel::show(const StoredEvent& event, const std::string& name,
                        const std::function<void()>& tell_negative_field) {
  const auto tracks = tracks_of(event.points);
  const ChamberValues values = as_controls_hold(event.values);
  const ShownEvent opened{.tracks = tracks, .values = values, .name = name, .has_event = true};
  if (!event.field_was_negative) {
    next_ = values;
    showAnother(opened);
    return;
  }
  ShownEvent points_alone = *shown_;
  points_alone.tracks = tracks;
  showAnother(points_alone);
  if (tell_negative_field) {
    tell_negative_field();
  }
  next_ = values;
  changeShown(opened);
}

void ChamberModel::showPreviousEvent() {
  if (hasPreviousEvent()) {
    showAgain(history_.previous());
  }
}

void ChamberModel::showNextEvent() {
  if (hasNextEvent()) {
    showAgain(history_.next());
  }
}

void ChamberModel::showAgain(std::shared_ptr<const ShownEvent> event) {
  forgetWhatWasSeen();
  take(std::move(event));
}

void ChamberModel::showNextValues() {
  ShownEvent event = *shown_;
  event.values = next_;
  changeShown(event);
}

void ChamberModel::showName(const std::string& name) {
  ShownEvent event = *shown_;
  event.name = name;
  changeShown(event);
}

void ChamberModel::mark(std::vector<std::size_t> points) {
  if (points == marked_) {
    return;
  }
  marked_ = std::move(points);
  changed.tell();
  marks_changed.tell();
}

void ChamberModel::revealAnswers() {
  revealed_ = true;
  changed.tell();
}

void ChamberModel::showAnother(const ShownEvent& event) {
  auto shown = std::make_shared<const ShownEvent>(event);
  history_.add(shown);
  take(std::move(shown));
}

void ChamberModel::changeShown(const ShownEvent& event) {
  auto shown = std::make_shared<const ShownEvent>(event);
  history_.replace(shown);
  take(std::move(shown));
}

void ChamberModel::forgetWhatWasSeen() {
  marked_.clear();
  revealed_ = false;
}

void ChamberModel::take(std::shared_ptr<const ShownEvent> event) {
  if (event->tracks != shown_->tracks) {
    forgetWhatWasSeen();
  }
  shown_ = std::move(event);
  changed.tell();
}

ChamberValues as_controls_hold(const ChamberValues& values) {
  ChamberValues held = values;
  held.sides_cm = cm_from_metres(metres_from_cm(values.sides_cm));
  return held;
}

}  // namespace velquon
