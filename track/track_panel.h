// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>
#include <memory>

#include "model/listeners.h"

class QAbstractButton;
class QLabel;

namespace Ui {
class track_panel;
}

namespace velquon {

class NewTrackView;
class TrackModel;
class ValueSlider;
class ViewScrollArea;

/// What the track window holds: the view, the field slider with its value, the tape's reading, what
/// is chosen of the particle, and two buttons.
class TrackPanel : public QWidget {
  Q_OBJECT

 public:
  /// \param model what it shows
  explicit TrackPanel(TrackModel& model, QWidget* parent = nullptr);
  ~TrackPanel() override;

  [[nodiscard]] NewTrackView* track_view() const { return view_; }
  [[nodiscard]] ViewScrollArea* track_area() const;
  /// Field and tape as the window shows them, a line each.
  [[nodiscard]] QString shownReadings() const;
  [[nodiscard]] ValueSlider* vSlider() const;
  [[nodiscard]] QLabel* field_text() const;
  [[nodiscard]] QLabel* tape_box() const;
  [[nodiscard]] QAbstractButton* inject_button() const;
  [[nodiscard]] QAbstractButton* clear_button() const;

 private:
  void connectChoices();
  void makeRoomForReadings();
  void showModel();

  TrackModel& model_;
  std::unique_ptr<Ui::track_panel> ui_;
  NewTrackView* view_;
  Subscription changes_;
};

}  // namespace velquon
