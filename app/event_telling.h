// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QKeySequence>
#include <QObject>
#include <cstdint>
#include <memory>
#include <optional>

#include "model/chamber_model.h"
#include "model/listeners.h"

namespace velquon {

class ChamberWindow;
class EventNumbering;
class ProjectorWindow;

/// Has the windows of the views tell the shown event: legend, status line and the words for who cannot
/// see the picture. Before the first event they tell how to begin.
class EventTelling : public QObject {
  Q_OBJECT

 public:
  /// \param numbering hears of changes of the model before this object does
  EventTelling(ChamberModel& model, const EventNumbering& numbering, ChamberWindow& chamber_window,
               ProjectorWindow& projector_window);

  /// The seed that was given for this run; it is told.
  void setSeed(std::optional<std::uint32_t> seed);
  /// The key of New Event.
  void setBeginKey(const QKeySequence& key) { begin_key_ = key; }

  /// Brings what the windows tell up to the model's state.
  void refresh();

 private:
  /// What the texts depend on.
  struct State {
    std::shared_ptr<const ShownEvent> event;
    std::uint64_t number = 0;
    bool answers_shown = true;
    bool colored_projector = false;
    bool show_legend = true;
    friend bool operator==(const State&, const State&) = default;
  };

  void tellBeginning();
  void tellEvent(const State& state);

  ChamberModel& model_;
  const EventNumbering& numbering_;
  ChamberWindow& chamber_window_;
  ProjectorWindow& projector_window_;
  std::optional<std::uint32_t> seed_;
  QKeySequence begin_key_;
  std::optional<State> told_;
  Subscription changes_;
};

}  // namespace velquon
