// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/chamber_model.h"

#include <cstdlib>
#include <utility>

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
  beginEvent();
  showNextValues();
  const auto type = static_cast<std::size_t>(event_type_);
  if (type < event_types().size()) {
    makeTracks(event_types()[type]);
    showName("Untitled Type " + std::to_string(type + 1) + " Decay");
  }
  setHasEvent();
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
  marked_.clear();
  revealed_ = false;
  shown_ = std::move(event);
  changed.tell();
}

void ChamberModel::makeTracks(const EventType& type) {
  TrackBuffer event;
  ParticleRecord record;
  if (make_event(type, next_, event, &record) == HandOver::no) {
    return;
  }
  const std::span<const PlotPoint> points = event.points();
  auto tracks = std::make_shared<EventTracks>();
  tracks->points.assign(points.begin(), points.end());
  tracks->type = static_cast<std::size_t>(&type - event_types().data());
  tracks->values = next_;
  tracks->record = std::move(record);
  takeTracks(std::move(tracks));
}

void ChamberModel::showTracks(std::span<const PlotPoint> points) {
  auto tracks = std::make_shared<EventTracks>();
  tracks->points.assign(points.begin(), points.end());
  takeTracks(std::move(tracks));
}

void ChamberModel::showNextValues() {
  changeShown([this](ShownEvent& shown) { shown.values = next_; });
}

void ChamberModel::showName(const std::string& name) {
  changeShown([&name](ShownEvent& shown) { shown.name = name; });
}

void ChamberModel::setHasEvent() {
  changeShown([](ShownEvent& shown) { shown.has_event = true; });
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

void ChamberModel::takeTracks(std::shared_ptr<const EventTracks> tracks) {
  marked_.clear();
  revealed_ = false;
  changeShown([&](ShownEvent& shown) { shown.tracks = std::move(tracks); });
}

template <typename Change>
void ChamberModel::changeShown(Change change) {
  auto shown = std::make_shared<ShownEvent>(*shown_);
  change(*shown);
  shown_ = std::move(shown);
  history_.update(shown_);
  changed.tell();
}

ChamberValues as_controls_hold(const ChamberValues& values) {
  ChamberValues held = values;
  held.sides_cm = cm_from_metres(metres_from_cm(values.sides_cm));
  return held;
}

}  // namespace velquon
